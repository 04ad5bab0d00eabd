// A number in decimal digits, at most 15 of them: what the well-known spreadsheet programs show of
// a double, and what they round when they format it.
#pragma once

#include <array>
#include <cstddef>

namespace formula {

/// A number that is not negative: d.ddd * 10^exponent. Its digits have no zeros at the end; zero
/// has no digits at all and the exponent 0.
struct Decimal {
    std::array<char, 32> digits;  ///< '0' to '9'
    int count = 0;
    int exponent = 0;

    bool isZero() const { return count == 0; }
    /// The digit worth 10^power.
    char digitAt(int power) const {
        const int i = exponent - power;
        return i >= 0 && i < count ? digits[static_cast<size_t>(i)] : '0';
    }
    /// How many digits stand before the point; none for numbers below 1.
    int wholeDigits() const { return isZero() || exponent < 0 ? 0 : exponent + 1; }
};

/// `magnitude` (not below 0, finite) in at most 15 significant digits; denormal numbers are 0.
Decimal toDecimal(double magnitude);

/// Keeps `digits` significant digits, rounding half up; 0 and less leaves at most a carried 1.
void keepDigits(Decimal& decimal, int digits);

/// Keeps `places` digits behind the point, or zeros that many places before it when below 0.
inline void roundToPlaces(Decimal& decimal, int places) {
    keepDigits(decimal, decimal.exponent + 1 + places);
}

}  // namespace formula
