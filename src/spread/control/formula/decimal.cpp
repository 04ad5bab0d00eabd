#include "spread/control/formula/decimal.h"

#include <charconv>
#include <cmath>

namespace formula {
namespace {

void dropZeros(Decimal& decimal) {
    while (decimal.count > 0 && decimal.digits[static_cast<size_t>(decimal.count - 1)] == '0')
        --decimal.count;
    if (decimal.isZero()) decimal.exponent = 0;
}

/// Splits what to_chars wrote in scientific form ("1.25e-07").
Decimal splitScientific(const char* text, const char* end) {
    Decimal decimal;
    for (; text != end && *text != 'e'; ++text)
        if (*text != '.') decimal.digits[static_cast<size_t>(decimal.count++)] = *text;
    if (text != end) ++text;
    if (text != end && *text == '+') ++text;
    std::from_chars(text, end, decimal.exponent);
    dropZeros(decimal);
    return decimal;
}

}  // namespace

Decimal toDecimal(double magnitude) {
    if (!std::isnormal(magnitude)) return {};
    char text[48];
    char* const limit = text + sizeof text;
    // The shortest text is several times faster to make than one of a given length, and is the
    // same where it has no more digits than that.
    auto written = std::to_chars(text, limit, magnitude, std::chars_format::scientific);
    const Decimal shortest = splitScientific(text, written.ptr);
    if (shortest.count <= 15) return shortest;
    written = std::to_chars(text, limit, magnitude, std::chars_format::scientific, 14);
    return splitScientific(text, written.ptr);
}

void keepDigits(Decimal& decimal, int digits) {
    if (digits >= decimal.count) return;
    const bool up = digits >= 0 && decimal.digits[static_cast<size_t>(digits)] >= '5';
    decimal.count = digits > 0 ? digits : 0;
    if (!up) return dropZeros(decimal);
    int last = decimal.count - 1;
    while (last >= 0 && decimal.digits[static_cast<size_t>(last)] == '9') --last;
    if (last < 0) {
        decimal.digits[0] = '1';
        ++decimal.exponent;
        last = 0;
    } else {
        ++decimal.digits[static_cast<size_t>(last)];
    }
    decimal.count = last + 1;
}

}  // namespace formula
