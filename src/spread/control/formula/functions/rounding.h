// Rounding that acts on numbers as they are written. 2.675 is stored a little below 2.675, and
// 0.3 / 0.1 comes out a little below 3; the well-known spreadsheet programs look at 15 significant
// digits before they decide, and so does everything here. The ordinary case costs a few
// nanoseconds: only near a tie or a whole number is the 15th digit looked up.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>

namespace formula {

inline constexpr std::array<double, 23> exactPowersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// 10^exponent; exponent from 0 to 308.
inline double powerOfTen(int exponent) {
    const auto i = static_cast<size_t>(exponent);
    return i < exactPowersOfTen.size() ? exactPowersOfTen[i] : std::pow(10.0, exponent);
}

namespace rounding {

// Numbers from here on have no 15-digit form that differs from them by less than one.
inline constexpr double noFraction = 1e15;

/// Half a unit of the 15th significant digit of `magnitude`, which is below noFraction; below 0.1
/// it is that of 0.1, as nothing so small is ever near a tie or a whole number.
inline double halfDigit(double magnitude) {
    size_t digits = 0;
    while (magnitude >= exactPowersOfTen[digits]) ++digits;
    return 0.5 / exactPowersOfTen[15 - digits];
}

/// The quick answer to most: whether `distance` is so small that the 15th digit must be looked up.
inline bool isNear(double distance, double magnitude) {
    return distance <= 5.1e-15 * magnitude;
}

// The three below take magnitudes from 0 up to noFraction. Half a unit of the 15th digit is rounded
// up, as anywhere.

inline double down(double magnitude) {
    const auto whole = static_cast<double>(static_cast<int64_t>(magnitude));
    const double toNext = 1 - (magnitude - whole);
    return isNear(toNext, magnitude) && toNext <= halfDigit(magnitude) ? whole + 1 : whole;
}

inline double up(double magnitude) {
    const auto whole = static_cast<double>(static_cast<int64_t>(magnitude));
    const double above = magnitude - whole;
    if (above == 0) return whole;
    return isNear(above, magnitude) && above < halfDigit(magnitude) ? whole : whole + 1;
}

inline double nearest(double magnitude) {
    const auto whole = static_cast<double>(static_cast<int64_t>(magnitude));
    const double toHalf = 0.5 - (magnitude - whole);
    if (toHalf <= 0) return whole + 1;
    // Above 1e14 the 15 digits end at the whole number: no tie can be seen in them.
    const bool isTie =
        isNear(toHalf, magnitude) && magnitude < 1e14 && toHalf <= halfDigit(magnitude);
    return isTie ? whole + 1 : whole;
}

/// `whole` applied to the magnitude of `x` at that decimal; `x` itself when its 15 digits end
/// before. `decimals` below 0 counts places left of the point.
template <double (*whole)(double)>
double atDecimal(double x, int decimals) {
    const double magnitude = std::fabs(x);
    if (decimals >= 0) {
        if (decimals > 308) return x;
        const double scale = powerOfTen(decimals);
        const double scaled = magnitude * scale;
        return scaled < noFraction ? std::copysign(whole(scaled) / scale, x) : x;
    }
    const double scale = powerOfTen(decimals < -308 ? 308 : -decimals);
    const double scaled = magnitude / scale;
    return scaled < noFraction ? std::copysign(whole(scaled) * scale, x) : x;
}

}  // namespace rounding

/// `x` to that many decimals, halves away from zero.
inline double roundHalfAway(double x, int decimals) {
    return rounding::atDecimal<rounding::nearest>(x, decimals);
}
inline double roundTowardZero(double x, int decimals) {
    return rounding::atDecimal<rounding::down>(x, decimals);
}
inline double roundAwayFromZero(double x, int decimals) {
    return rounding::atDecimal<rounding::up>(x, decimals);
}

/// The whole number at or below `x`.
inline double wholeBelow(double x) {
    if (!(std::fabs(x) < rounding::noFraction)) return std::floor(x);
    return x >= 0 ? rounding::down(x) : -rounding::up(-x);
}
/// The whole number at or above `x`.
inline double wholeAbove(double x) {
    return -wholeBelow(-x);
}
/// The whole number nearest to `x`, halves away from zero.
inline double wholeNearest(double x) {
    return roundHalfAway(x, 0);
}

}  // namespace formula
