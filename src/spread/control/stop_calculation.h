// A way to end a calculation that takes too long. Single formulas are bounded (Calculation::spend);
// a sheet full of heavy ones is not.
#pragma once

#include <functional>

#include "platform/export.h"

namespace control {

/// Asked every few hundredths of a second while the formulas of any sheet are calculated; true ends
/// the calculation. Formulas that were not reached stay dirty (Sheet::isStopped). May show things
/// and let time pass, but must not change sheets.
using StopCalculation = std::function<bool()>;
/// Null, as at the start, for none.
VORMANT_API void setStopCalculation(StopCalculation stop);
bool mustStopCalculation();

}  // namespace control
