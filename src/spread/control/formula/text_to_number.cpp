// textToNumber: what a person may have typed where a number is wanted.
//
//   text     = { blank | sign | currency | "%" | "(" } numeral { blank | currency | "%" | ")" }
//   numeral  = digits [ "." digits ] [ "E" exponent ]  |  digits blank digits "/" digits
//
// or a date or time (date_text.h). Every decoration may stand once; a bracket means
// minus and excludes a sign. Digits may hold thousands commas.
#include <charconv>
#include <cmath>
#include <cstring>

#include "spread/control/formula/coerce.h"
#include "spread/control/formula/date_text.h"

namespace formula {
namespace {

constexpr size_t longestNumber = 255;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// from_chars, where all of `text` must be a number; too small counts as 0.
std::optional<double> plainNumber(std::string_view text) {
    if (text.empty() || !(isDigit(text[0]) || text[0] == '.' || text[0] == '-')) return {};
    if (text[0] == '-' && (text.size() < 2 || !(isDigit(text[1]) || text[1] == '.'))) return {};
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end != text.data() + text.size()) return {};
    if (error == std::errc()) return number;
    if (text.find("E-") != std::string_view::npos || text.find("e-") != std::string_view::npos)
        return 0.0;
    return {};
}

struct Decorations {
    bool minus = false, sign = false, currency = false, percent = false;
    bool open = false, closed = false;
};

bool takeOnce(bool& flag) {
    if (flag) return false;
    flag = true;
    return true;
}

/// Notes what `c` means around a numeral. False when it means nothing there or stood before.
bool takeDecoration(char c, bool before, Decorations& found) {
    switch (c) {
        case ' ':
            return true;
        case '%':
            return takeOnce(found.percent);
        case '$':
        case '\x80':
            return takeOnce(found.currency);  // dollar and euro
        case '-':
            found.minus = true;
            [[fallthrough]];
        case '+':
            return before && !found.open && takeOnce(found.sign);
        case '(':
            return before && !found.sign && takeOnce(found.open);
        case ')':
            return !before && found.open && takeOnce(found.closed);
        default:
            return false;
    }
}

bool allDigits(std::string_view text) {
    for (const char c : text)
        if (!isDigit(c)) return false;
    return !text.empty();
}

std::optional<double> readFraction(std::string_view text) {
    const size_t blank = text.find(' ');
    const size_t slash = text.find('/', blank);
    if (blank == std::string_view::npos || slash == std::string_view::npos) return {};
    std::string_view top = text.substr(blank + 1, slash - blank - 1);
    while (!top.empty() && top.front() == ' ') top.remove_prefix(1);
    const std::string_view whole = text.substr(0, blank);
    const std::string_view bottom = text.substr(slash + 1);
    if (!allDigits(whole) || !allDigits(top) || !allDigits(bottom)) return {};
    const auto divisor = plainNumber(bottom);
    if (!divisor || *divisor == 0) return {};
    return *plainNumber(whole) + *plainNumber(top) / *divisor;
}

/// "1,234.50": a comma follows a digit, and at least three digits stand behind the last one.
std::optional<double> readGrouped(std::string_view text) {
    char plain[longestNumber];
    size_t count = 0;
    size_t behindComma = 3;
    size_t i = 0;
    for (; i < text.size() && (isDigit(text[i]) || text[i] == ','); ++i) {
        if (text[i] == ',') {
            if (i == 0 || text[i - 1] == ',') return {};
            behindComma = 0;
        } else {
            plain[count++] = text[i];
            ++behindComma;
        }
    }
    if (behindComma < 3) return {};
    std::memcpy(plain + count, text.data() + i, text.size() - i);
    return plainNumber({plain, count + text.size() - i});
}

std::optional<double> readNumeral(std::string_view text) {
    if (const auto number = plainNumber(text)) return number;
    if (text.find(',') != std::string_view::npos) return readGrouped(text);
    return readFraction(text);
}

std::optional<double> readDecorated(std::string_view text) {
    Decorations found;
    while (!text.empty() && !isDigit(text.front()) && text.front() != '.') {
        if (!takeDecoration(text.front(), true, found)) return {};
        text.remove_prefix(1);
    }
    while (!text.empty() && !isDigit(text.back()) && text.back() != '.') {
        if (!takeDecoration(text.back(), false, found)) return {};
        text.remove_suffix(1);
    }
    if (text.empty() || found.open != found.closed) return {};
    auto number = readNumeral(text);
    if (!number) return {};
    if (found.percent) *number /= 100;
    return found.minus || found.open ? -*number : *number;
}

}  // namespace

std::optional<double> textToNumber(std::string_view text) {
    if (text.empty() || text.size() > longestNumber) return {};
    if (const auto number = plainNumber(text)) return number;
    if (const auto number = readDecorated(text)) return number;
    // Blanks around a number are passed over, around a date they are not.
    if (text.front() == ' ' || text.back() == ' ') return {};
    if (const auto date = readDateText(text)) return date->day.value_or(0) + date->time.value_or(0);
    return {};
}

}  // namespace formula
