// Dates as bills and reports write them.
#pragma once

#include <ctime>

#include "core_api/text/vor_string.h"

/// "25 November, 2026 (04:27)", the month in the working language.
VORMANT_API Vor_String dateText(const std::tm& date);
/// "2026-11-25".
VORMANT_API Vor_String isoDate(const std::tm& date);
