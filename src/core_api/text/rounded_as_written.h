// The usual way of roundAsWritten (number_text.h) in line, for those who round thousands of
// results.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

#include "core_api/text/number_text.h"

namespace rounding_as_written {

inline constexpr int maxDecimals = 15;

// Powers of ten; as doubles all of them are exact.
inline constexpr std::array<double, maxDecimals + 1> powersAsDoubles = [] {
    std::array<double, maxDecimals + 1> powers{};
    powers[0] = 1;
    for (size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
}();

// The number in units of the last decimal place, rounded to a whole number of them. Nothing when it
// is too large for that, or so near a tie that the binary value could fall on the other side than
// the written one.
inline std::optional<double> scaledFast(double number, double power) {
    constexpr double largest = 0x1p50;  // a quarter of a unit is still exact
    // Doubles of this size have no decimals, so that adding it rounds to a whole number.
    constexpr double wholeOnly = 0x1.8p52;
    const double scaled = number * power;
    const double magnitude = std::fabs(scaled);
    if (!(magnitude < largest)) return std::nullopt;
    const double whole = (scaled + wholeOnly) - wholeOnly;
    // Half a unit in the last place of the number, scaled, and the rounding of the product.
    const double doubt = magnitude * 0x1p-51;
    if (0.5 - std::fabs(scaled - whole) <= doubt) return std::nullopt;
    return whole;
}

}  // namespace rounding_as_written

/// roundAsWritten for `decimals` known when the code is compiled.
template <int decimals>
inline double roundedAsWritten(double number) {
    using namespace rounding_as_written;
    constexpr double power = powersAsDoubles[static_cast<std::size_t>(decimals)];
    if (const auto scaled = scaledFast(number, power)) [[likely]]
        return *scaled / power;
    return roundAsWritten(number, decimals);
}
