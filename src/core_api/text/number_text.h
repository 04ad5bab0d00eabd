// Numbers as the product writes them, and as it reads them. Every value of a standards run passes
// here, so both ways work without allocating.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "platform/export.h"

/// Room for any finite double written out with 15 decimals.
using NumberBuffer = std::array<char, 352>;

/// `number` rounded half away from zero to `decimals` (0 to 15) places *as the number is written*
/// (2.675 to 2 places is 2.68), without exponent and never "-0". `keepZeros` keeps trailing
/// zeros. The text lies in `buffer`; it is empty for infinities and NaN.
VORMANT_API std::string_view writeNumber(NumberBuffer& buffer, double number, int decimals,
                                         bool keepZeros = false);

/// The double nearest to what writeNumber writes; infinities and NaN as they are.
VORMANT_API double roundAsWritten(double number, int decimals);

/// Takes a decimal number from the start of `text` (no blanks before it; "+" allowed) and moves
/// `text` past it. What is too large or too small for a double becomes the largest double or 0.
/// Nothing, and `text` untouched, when it does not start with a number.
VORMANT_API std::optional<double> takeNumber(std::string_view& text);
