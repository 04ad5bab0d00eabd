// Between value types, with the rules of the well-known spreadsheet programs (English locale).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "spread/control/formula/value.h"

namespace formula {

/// A single value as a number: numbers as they are, booleans 1 or 0, empty and missing 0, text
/// when it reads as a number (textToNumber), else #VALUE!. Areas and arrays give #VALUE!.
Result<double> toNumber(const Value& value);

/// A single value as a truth: numbers differ from 0; the texts TRUE and FALSE in any case.
Result<bool> toBoolean(const Value& value);

/// Text that reads as a number: "12.5", " 1e3 ", "50%", "$1,200.50", "(3)", "1 1/2", dates
/// ("2024-05-31", "31-May-2024", "5/31/2024") and times ("12:30:15", "6:00 PM") as day numbers.
/// Text longer than 255 characters never does.
std::optional<double> textToNumber(std::string_view text);

/// A number as a formula joins it to a text: up to 15 significant digits, written out where that
/// takes at most 20 characters, the sign aside ("0.000001"), else as "1.5E+21".
std::string numberToText(double number);
/// As numberToText into `buffer`; the length written.
inline constexpr size_t numberTextSize = 32;
size_t writeNumber(double number, char (&buffer)[numberTextSize]);

/// The order of texts: symbols < digits < letters, without letter case (ASCII and Windows-1252
/// letters). Below 0, 0, above 0.
int compareTexts(std::string_view a, std::string_view b);

/// The order of numbers in the eyes of the programs' comparison operators: 15 significant digits
/// decide, so that 0.1 + 0.2 equals 0.3. Below 0, 0, above 0.
int compareNumbers(double a, double b);

/// The order of the comparison operators: numbers < texts < booleans; empty equals 0, "" and
/// FALSE. Both single and neither an error.
int compareValues(const Value& a, const Value& b);

}  // namespace formula
