#include "spread/control/formula/coerce.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "spread/control/formula/decimal.h"

namespace formula {
namespace {

char* append(char* out, const char* digits, int count) {
    std::memcpy(out, digits, static_cast<size_t>(count));
    return out + count;
}

char* appendZeros(char* out, int count) {
    std::memset(out, '0', static_cast<size_t>(count));
    return out + count;
}

char* writeFixed(const Decimal& decimal, char* out) {
    const char* digits = decimal.digits.data();
    if (decimal.exponent < 0) {
        *out++ = '0';
        *out++ = '.';
        return append(appendZeros(out, -decimal.exponent - 1), digits, decimal.count);
    }
    const int whole = decimal.exponent + 1;
    if (decimal.count <= whole)
        return appendZeros(append(out, digits, decimal.count), whole - decimal.count);
    out = append(out, digits, whole);
    *out++ = '.';
    return append(out, digits + whole, decimal.count - whole);
}

char* writeScientific(const Decimal& decimal, char* out) {
    *out++ = decimal.digits[0];
    if (decimal.count > 1) {
        *out++ = '.';
        out = append(out, decimal.digits.data() + 1, decimal.count - 1);
    }
    *out++ = 'E';
    *out++ = decimal.exponent < 0 ? '-' : '+';
    const int exponent = std::abs(decimal.exponent);
    if (exponent < 10) *out++ = '0';
    return std::to_chars(out, out + 3, exponent).ptr;
}

/// Where every byte stands in the order of the programs: symbols, digits, letters. A letter and its
/// capital share one place.
struct TextOrder {
    std::array<uint8_t, 256> base{};   ///< an accented letter stands with its plain one
    std::array<uint8_t, 256> place{};  ///< and right behind it where all else is equal
};

constexpr bool isHighLetter(unsigned c) {
    if (c >= 0xC0) return c != 0xD7 && c != 0xF7;
    return c == 0x83 || c == 0x8A || c == 0x8C || c == 0x8E || c == 0x9A || c == 0x9C ||
           c == 0x9E || c == 0x9F;
}

constexpr std::string_view symbols = " _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";
constexpr std::string_view letterGroups[] = {
    "a\xE1\xE0\xE2\xE4\xE3\xE5\xE6",
    "b",
    "c\xE7",
    "d\xF0",
    "e\xE9\xE8\xEA\xEB",
    "f\x83",
    "g",
    "h",
    "i\xED\xEC\xEE\xEF",
    "j",
    "k",
    "l",
    "m",
    "n\xF1",
    "o\xF3\xF2\xF4\xF6\xF5\xF8\x9C",
    "p",
    "q",
    "r",
    "s\x9A\xDF",
    "t",
    "u\xFA\xF9\xFB\xFC",
    "v",
    "w",
    "x",
    "y\xFD\xFF",
    "z\x9E",
    "\xFE",
};

constexpr TextOrder makeTextOrder() {
    TextOrder order;
    uint8_t next = 1;
    // The bytes of `group`, all with the base of the first.
    const auto place = [&](std::string_view group) {
        const uint8_t base = next;
        for (const char c : group) {
            order.base[static_cast<uint8_t>(c)] = base;
            order.place[static_cast<uint8_t>(c)] = next++;
        }
    };
    const auto placeOne = [&](unsigned c) {
        const char byte = static_cast<char>(c);
        place({&byte, 1});
    };
    const auto copyPlace = [&order](unsigned from, unsigned to) {
        order.base[to] = order.base[from];
        order.place[to] = order.place[from];
    };
    for (unsigned c = 1; c < ' '; ++c) placeOne(c);
    placeOne(0x7F);
    for (const char& c : symbols) place({&c, 1});
    for (unsigned c = 0x80; c < 0x100; ++c)
        if (!isHighLetter(c)) placeOne(c);
    for (unsigned c = '0'; c <= '9'; ++c) placeOne(c);
    for (const std::string_view group : letterGroups) place(group);
    for (unsigned c = 'A'; c <= 'Z'; ++c) copyPlace(c + 0x20, c);
    for (unsigned c = 0xC0; c <= 0xDE; ++c)
        if (c != 0xD7) copyPlace(c + 0x20, c);
    for (const unsigned c : {0x8AU, 0x8CU, 0x8EU}) copyPlace(c + 0x10, c);
    copyPlace(0xFF, 0x9F);
    return order;
}
constexpr TextOrder order = makeTextOrder();

/// Numbers, texts, booleans, in this order; empty and missing have no place of their own.
int rank(const Value& value) {
    switch (value.type()) {
        case ValueType::number:
            return 1;
        case ValueType::text:
            return 2;
        case ValueType::boolean:
            return 3;
        default:
            return 0;
    }
}

int compareWithEmpty(const Value& value) {
    switch (value.type()) {
        case ValueType::number:
            return value.number() < 0 ? -1 : value.number() > 0;
        case ValueType::text:
            return value.text().empty() ? 0 : 1;
        case ValueType::boolean:
            return value.truth() ? 1 : 0;
        default:
            return 0;
    }
}

}  // namespace

Result<double> toNumber(const Value& value) {
    switch (value.type()) {
        case ValueType::number:
            return value.number();
        case ValueType::boolean:
            return value.truth() ? 1.0 : 0.0;
        case ValueType::empty:
        case ValueType::missing:
            return 0.0;
        case ValueType::error:
            return value.error();
        case ValueType::text:
            if (const auto number = textToNumber(value.text())) return *number;
            return ErrorCode::value;
        default:
            return ErrorCode::value;
    }
}

Result<bool> toBoolean(const Value& value) {
    switch (value.type()) {
        case ValueType::number:
            return value.number() != 0;
        case ValueType::boolean:
            return value.truth();
        case ValueType::empty:
        case ValueType::missing:
            return false;
        case ValueType::error:
            return value.error();
        case ValueType::text:
            if (compareTexts(value.text(), "TRUE") == 0) return true;
            if (compareTexts(value.text(), "FALSE") == 0) return false;
            return ErrorCode::value;
        default:
            return ErrorCode::value;
    }
}

std::string numberToText(double number) {
    char buffer[numberTextSize];
    return {buffer, writeNumber(number, buffer)};
}

size_t writeNumber(double number, char (&buffer)[numberTextSize]) {
    char* out = buffer;
    const double magnitude = std::fabs(number);
    if (magnitude < 1e15) {
        const auto whole = static_cast<int64_t>(number);
        if (static_cast<double>(whole) == number)
            return static_cast<size_t>(std::to_chars(out, out + numberTextSize, whole).ptr -
                                       buffer);
    } else if (!std::isfinite(number)) {
        constexpr std::string_view noNumber = "#NUM!";  // the engine makes errors of these before
        return static_cast<size_t>(std::copy(noNumber.begin(), noNumber.end(), out) - buffer);
    }
    if (!std::isnormal(magnitude)) {
        *out = '0';
        return 1;
    }
    if (number < 0) *out++ = '-';
    Decimal decimal = toDecimal(magnitude);
    if (std::abs(decimal.exponent) >= 99) keepDigits(decimal, 14);
    // The programs write out what fits 20 characters, the sign aside.
    const int fixedSize =
        decimal.exponent < 0 ? 1 - decimal.exponent + decimal.count : decimal.exponent + 1;
    out = fixedSize <= 20 ? writeFixed(decimal, out) : writeScientific(decimal, out);
    return static_cast<size_t>(out - buffer);
}

int compareTexts(std::string_view a, std::string_view b) {
    const size_t common = std::min(a.size(), b.size());
    int accents = 0;
    for (size_t i = 0; i < common; ++i) {
        const auto left = static_cast<uint8_t>(a[i]);
        const auto right = static_cast<uint8_t>(b[i]);
        if (left == right) continue;
        if (order.base[left] != order.base[right]) return order.base[left] - order.base[right];
        if (accents == 0) accents = order.place[left] - order.place[right];
    }
    if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
    return accents;
}

int compareNumbers(double a, double b) {
    if (a == b) return 0;
    const int exact = a < b ? -1 : 1;
    if (std::fabs(a - b) > 1e-14 * std::fabs(a)) return exact;
    char textOfA[numberTextSize];
    char textOfB[numberTextSize];
    const std::string_view left(textOfA, writeNumber(a, textOfA));
    const std::string_view right(textOfB, writeNumber(b, textOfB));
    return left == right ? 0 : exact;
}

int compareValues(const Value& a, const Value& b) {
    const int rankOfA = rank(a);
    const int rankOfB = rank(b);
    if (rankOfA == 0) return -compareWithEmpty(b);
    if (rankOfB == 0) return compareWithEmpty(a);
    if (rankOfA != rankOfB) return rankOfA - rankOfB;
    switch (a.type()) {
        case ValueType::number:
            return compareNumbers(a.number(), b.number());
        case ValueType::text:
            return compareTexts(a.text(), b.text());
        default:
            return static_cast<int>(a.truth()) - static_cast<int>(b.truth());
    }
}

}  // namespace formula
