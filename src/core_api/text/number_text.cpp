#include "core_api/text/number_text.h"

#include "core_api/text/rounded_as_written.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

using rounding_as_written::maxDecimals;
using rounding_as_written::powersAsDoubles;
using rounding_as_written::scaledFast;

constexpr std::array<std::uint64_t, maxDecimals + 1> powersOfTen = [] {
    std::array<std::uint64_t, maxDecimals + 1> powers{};
    powers[0] = 1;
    for (size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
}();

char* writeScaled(char* out, std::uint64_t scaled, int decimals, bool keepZeros) {
    const std::uint64_t power = powersOfTen[static_cast<size_t>(decimals)];
    out = std::to_chars(out, out + 20, scaled / power).ptr;
    std::uint64_t fraction = scaled % power;
    if (decimals == 0 || (fraction == 0 && !keepZeros)) return out;
    int places = decimals;
    if (!keepZeros) {
        for (; fraction % 10 == 0; --places) fraction /= 10;
    }
    *out = '.';
    for (int i = places; i > 0; --i, fraction /= 10) {
        out[i] = static_cast<char>('0' + fraction % 10);
    }
    return out + 1 + places;
}

// The shortest decimal digits that stand for a number, 0.d1d2d3… x 10^point.
struct Digits {
    std::array<char, 24> digit{};
    int count = 0;
    int point = 0;
};

Digits shortestDigits(double magnitude) {
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::scientific)
                         .ptr;
    Digits digits;
    const char* at = text.data();
    for (; *at != 'e'; ++at) {
        if (*at != '.') digits.digit[static_cast<size_t>(digits.count++)] = *at;
    }
    at += at[1] == '+' ? 2 : 1;
    int exponent = 0;
    std::from_chars(at, end, exponent);
    digits.point = exponent + 1;
    return digits;
}

// Rounds half up to `decimals` places; no digits are left when the result is 0.
void roundDigits(Digits& digits, int decimals) {
    const int kept = digits.point + decimals;
    if (kept >= digits.count) return;
    const bool up = kept >= 0 && digits.digit[static_cast<size_t>(kept)] >= '5';
    digits.count = std::max(kept, 0);
    if (!up) return;
    int i = digits.count - 1;
    for (; i >= 0 && digits.digit[static_cast<size_t>(i)] == '9'; --i) digits.count = i;
    if (i >= 0) {
        ++digits.digit[static_cast<size_t>(i)];
    } else {
        digits.digit[0] = '1';
        digits.count = 1;
        ++digits.point;
    }
}

char* writeDigits(char* out, const Digits& digits, int decimals, bool keepZeros) {
    const auto digitAt = [&](int i) {
        return i >= 0 && i < digits.count ? digits.digit[static_cast<size_t>(i)] : '0';
    };
    if (digits.point <= 0) *out++ = '0';
    for (int i = 0; i < digits.point; ++i) *out++ = digitAt(i);
    const int places = keepZeros ? decimals : std::clamp(digits.count - digits.point, 0, decimals);
    if (places == 0) return out;
    *out++ = '.';
    for (int i = 0; i < places; ++i) *out++ = digitAt(digits.point + i);
    if (!keepZeros) {
        while (out[-1] == '0') --out;
        if (out[-1] == '.') --out;
    }
    return out;
}

// For a written number beyond the range of doubles: is it next to 0 rather than huge? The place of
// its first digit other than 0, shifted by the exponent, tells.
bool isSmall(std::string_view written) {
    const size_t mark = std::min(written.find_first_of("eE"), written.size());
    const std::string_view mantissa = written.substr(0, mark);
    const size_t point = std::min(mantissa.find('.'), mantissa.size());
    const size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    long long exponent = 0;
    if (mark < written.size()) {
        std::string_view digits = written.substr(mark + 1);
        if (digits[0] == '+') digits.remove_prefix(1);
        const bool down = digits[0] == '-';
        if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec !=
            std::errc())
            return down;
    }
    return static_cast<long long>(point) - static_cast<long long>(first) + exponent < 0;
}

}  // namespace

std::string_view writeNumber(NumberBuffer& buffer, double number, int decimals, bool keepZeros) {
    if (!std::isfinite(number)) return {};
    decimals = std::clamp(decimals, 0, maxDecimals);
    const double magnitude = std::fabs(number);
    char* out = buffer.data() + 1;  // room for the sign, which only a result other than 0 gets
    bool isZero = false;
    char* end = nullptr;
    if (const auto scaled = scaledFast(magnitude, powersAsDoubles[static_cast<size_t>(decimals)])) {
        isZero = *scaled == 0;
        end = writeScaled(out, static_cast<std::uint64_t>(*scaled), decimals, keepZeros);
    } else {
        Digits digits = shortestDigits(magnitude);
        roundDigits(digits, decimals);
        isZero = digits.count == 0;
        if (isZero) digits.point = 0;
        end = writeDigits(out, digits, decimals, keepZeros);
    }
    if (std::signbit(number) && !isZero) *--out = '-';
    return {out, static_cast<size_t>(end - out)};
}

double roundAsWritten(double number, int decimals) {
    decimals = std::clamp(decimals, 0, maxDecimals);
    // Both are exact doubles, so that the division gives the nearest one.
    const double power = powersAsDoubles[static_cast<size_t>(decimals)];
    if (const auto scaled = scaledFast(number, power)) [[likely]]
        return *scaled / power;
    constexpr double allWhole = 0x1p52;  // doubles from here on have no decimals, NaN is not below
    if (!(std::fabs(number) < allWhole) || std::trunc(number) == number) return number;
    NumberBuffer buffer;
    std::string_view text = writeNumber(buffer, number, decimals);
    return takeNumber(text).value_or(number);
}

std::optional<double> takeNumber(std::string_view& text) {
    const char* begin = text.data();
    const char* const end = begin + text.size();
    const char* digits = begin;
    if (digits != end && (*digits == '+' || *digits == '-')) ++digits;
    // Only a digit or a point may follow: from_chars alone would also take "inf", "nan" and "+-1".
    if (digits == end || !((*digits >= '0' && *digits <= '9') || *digits == '.'))
        return std::nullopt;
    if (*begin == '+') ++begin;
    double number = 0;
    const auto [next, error] = std::from_chars(begin, end, number);
    if (error == std::errc::invalid_argument) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        const bool small = isSmall({begin, static_cast<size_t>(next - begin)});
        number = small ? 0.0 : std::numeric_limits<double>::max();
        if (*begin == '-') number = -number;
    }
    text.remove_prefix(static_cast<size_t>(next - text.data()));
    return number;
}
