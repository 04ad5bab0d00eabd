// Reads dates and times as people type them in the English (US) manner. Used wherever a text
// stands for a number, and by DATEVALUE and TIMEVALUE, which want one half of the result.
#pragma once

#include <optional>
#include <string_view>

namespace formula {

struct DateText {
    std::optional<int> day;      ///< day number (calendar.h)
    std::optional<double> time;  ///< in days; 1 and more when hours beyond 24 are written
};

/// "5/31/2024", "2024-05-31", "31-May-2024", "May 31, 2024", "5/31" (this year), "May 2024" (its
/// first), "12:30", "12:30:15.5", "6 PM", or a date and a time with a blank between. Two-digit
/// years are 2000 to 2029 and 1930 to 1999. Nothing when the text is none of these or not in the
/// calendar.
std::optional<DateText> readDateText(std::string_view text);

/// The number, from 1, of the month whose English name starts with `name`, which has at least
/// three letters; 0 when there is none. Letter case does not matter.
int monthFromName(std::string_view name);

}  // namespace formula
