// Rounding to a step and sorting, as the core module offers them.
#pragma once

#include "core_api/text/vor_array.h"
#include "platform/export.h"

/// The multiple of `step` nearest to `value` as both are written, halves away from zero (2.675 to
/// 0.01 is 2.68). A step that is not above 0, or a value that is not finite, gives `value`.
VORMANT_API double ObjectExportRoundTo(double value, double step);

/// The smallest multiple of `step` that is not below `value`, a billionth of a step aside. A step
/// that is not above 0 gives `value`. `upTolerance` is the caller's room above the value; it is
/// for the caller to judge whether the result lies within it and has no effect here.
VORMANT_API double ObjectExportRoundUp(double value, double step, double upTolerance);

/// Sorts ascending, equal numbers in their old order; NaN goes last. `indexes` then holds where
/// each number stood before.
VORMANT_API void ObjectExportSort(Vor_Array<double>& numbers, Vor_Array<int>& indexes);
