// Formats values the way the well-known spreadsheet programs do with a format such as
// "#,##0.00;(#,##0.00)", "0.0%", "# ?/?" or "d mmm yyyy hh:mm". format_section.h reads formats,
// format_number.cpp and format_date.cpp write numbers and dates by one section of them.
#pragma once

#include <string>
#include <string_view>

#include "spread/control/formula/value.h"

namespace formula {

/// `value` (single) by `format`. A text that is no number is shown by the section for texts, or as
/// it is. #VALUE! for a format that makes no sense and for a date outside 1900 to 9999.
Result<std::string> formatValue(const Value& value, std::string_view format);

/// A number as the format "General" shows it: at most 11 characters, the sign and exponent aside.
std::string formatGeneral(double number);

/// A number with `decimals` places (below 0: rounded to tens, hundreds, …; at most 127), halves
/// away from zero, with commas between thousands when asked for. Never "-0".
std::string formatFixed(double number, int decimals, bool withCommas);

}  // namespace formula
