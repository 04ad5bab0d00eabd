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

/// Place of every byte in the order of the programs: symbols, digits, letters; a letter and its
/// capital share one place, accented letters follow their plain one.
constexpr std::array<uint8_t, 256> makeOrder() {
    constexpr std::string_view symbols = " _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";
    constexpr std::string_view letters =
        "a\xE1\xE0\xE2\xE4\xE3\xE5\xE6"
        "bc\xE7"
        "d\xF0"
        "e\xE9\xE8\xEA\xEB"
        "f\x83"
        "ghi\xED\xEC\xEE\xEF"
        "jklmn\xF1"
        "o\xF3\xF2\xF4\xF6\xF5\xF8\x9C"
        "pqrs\x9A\xDF"
        "tu\xFA\xF9\xFB\xFC"
        "vwxy\xFD\xFF"
        "z\x9E\xFE";
    std::array<uint8_t, 256> order{};
    uint8_t next = 1;
    const auto place = [&](std::string_view bytes) {
        for (const char c : bytes) order[static_cast<uint8_t>(c)] = next++;
    };
    for (unsigned c = 1; c < ' '; ++c) order[c] = next++;
    order[0x7F] = next++;
    place(symbols);
    for (unsigned c = 0x80; c < 0x100; ++c) {
        const bool isLetter = c >= 0xC0 ? c != 0xD7 && c != 0xF7
                                        : c == 0x83 || c == 0x8A || c == 0x8C || c == 0x8E ||
                                              c == 0x9A || c == 0x9C || c == 0x9E || c == 0x9F;
        if (!isLetter) order[c] = next++;
    }
    place("0123456789");
    place(letters);
    for (unsigned c = 'A'; c <= 'Z'; ++c) order[c] = order[c + 0x20];
    for (unsigned c = 0xC0; c <= 0xDE; ++c)
        if (c != 0xD7) order[c] = order[c + 0x20];
    for (const unsigned c : {0x8AU, 0x8CU, 0x8EU}) order[c] = order[c + 0x10];
    order[0x9F] = order[0xFF];
    return order;
}
constexpr std::array<uint8_t, 256> order = makeOrder();

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
    for (size_t i = 0; i < common; ++i) {
        const int difference =
            order[static_cast<uint8_t>(a[i])] - order[static_cast<uint8_t>(b[i])];
        if (difference != 0) return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size();
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
