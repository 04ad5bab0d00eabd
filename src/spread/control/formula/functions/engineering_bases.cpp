// Whole numbers as texts of binary, octal and hexadecimal digits: ten of them at most, negative
// numbers as the complement that fills all ten.

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

constexpr std::string_view digitCharacters = "0123456789ABCDEF";
constexpr size_t mostDigits = 10;

/// Binary, octal or hexadecimal: 1, 3 or 4 bits a digit.
struct Base {
    unsigned bits;

    unsigned radix() const { return 1U << bits; }
    /// How many numbers ten digits can write.
    int64_t range() const { return int64_t{1} << (bits * mostDigits); }
    bool canWrite(double x) const {
        const auto half = static_cast<double>(range() / 2);
        return x >= -half && x < half;
    }
};

constexpr Base binaryBase{1};
constexpr Base octalBase{3};
constexpr Base hexBase{4};

int digitValue(char c) {
    if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
    const size_t value = digitCharacters.find(c);
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

/// The number that the digits of `argument`, a text or a number, mean. No digits mean 0.
Result<double> fromDigits(Calculation& c, const Value& argument, Base base) {
    if (argument.isBoolean()) return ErrorCode::value;
    if (argument.isMissing()) return ErrorCode::na;
    const Result<std::string_view> text = textOf(c, argument);
    if (!text) return text.error();
    if (text->size() > mostDigits) return ErrorCode::num;
    int64_t number = 0;
    for (const char character : *text) {
        const int digit = digitValue(character);
        if (digit < 0 || digit >= static_cast<int>(base.radix())) return ErrorCode::num;
        number = number * base.radix() + digit;
    }
    if (number >= base.range() / 2) number -= base.range();
    return static_cast<double>(number);
}

/// `number` in digits, with zeros before it up to the count that the argument `places` gives. A
/// negative number always has ten digits.
Value toDigits(Calculation& c, double number, Base base, const Value* places) {
    double length = 1;
    if (places) {
        const Result<double> wanted = strictNumber(*places);
        if (!wanted) return wanted.error();
        if (!(*wanted >= 1 && *wanted < mostDigits + 1)) return ErrorCode::num;
        length = *wanted;
    }
    const double whole = std::trunc(number);
    if (!base.canWrite(whole)) return ErrorCode::num;
    auto rest = static_cast<int64_t>(whole);
    if (rest < 0) rest += base.range();
    std::string text;
    for (; rest > 0 || text.empty(); rest /= base.radix())
        text.insert(text.begin(), digitCharacters[static_cast<size_t>(rest % base.radix())]);
    const auto wanted = static_cast<size_t>(length);
    if (text.size() < wanted) text.insert(0, wanted - text.size(), '0');
    if (places && whole >= 0 && text.size() > wanted) return ErrorCode::num;
    return c.text(text);
}

const Value* placesOf(std::span<const Value> args) {
    return args.size() > 1 ? &args[1] : nullptr;
}

template <const Base& from>
Value toDecimal(Calculation& c, std::span<const Value> args) {
    const Result<double> number = fromDigits(c, args[0], from);
    return number ? Value(*number) : Value(number.error());
}

template <const Base& to>
Value fromDecimal(Calculation& c, std::span<const Value> args) {
    const Result<double> number = strictNumber(args[0]);
    return number ? toDigits(c, *number, to, placesOf(args)) : Value(number.error());
}

template <const Base& from, const Base& to>
Value convert(Calculation& c, std::span<const Value> args) {
    const Result<double> number = fromDigits(c, args[0], from);
    return number ? toDigits(c, *number, to, placesOf(args)) : Value(number.error());
}

constexpr std::string_view digitsAndPlaces = "digits, [places]";
constexpr std::string_view numberAndPlaces = "number, [places]";

constexpr FunctionSpec rows[] = {
    {"BIN2DEC", 1, 1, "v", toDecimal<binaryBase>, plain, "digits",
     "The number that binary digits mean."},
    {"BIN2OCT", 1, 2, "v", convert<binaryBase, octalBase>, plain, digitsAndPlaces,
     "Binary digits as octal ones."},
    {"BIN2HEX", 1, 2, "v", convert<binaryBase, hexBase>, plain, digitsAndPlaces,
     "Binary digits as hexadecimal ones."},
    {"OCT2DEC", 1, 1, "v", toDecimal<octalBase>, plain, "digits",
     "The number that octal digits mean."},
    {"OCT2BIN", 1, 2, "v", convert<octalBase, binaryBase>, plain, digitsAndPlaces,
     "Octal digits as binary ones."},
    {"OCT2HEX", 1, 2, "v", convert<octalBase, hexBase>, plain, digitsAndPlaces,
     "Octal digits as hexadecimal ones."},
    {"HEX2DEC", 1, 1, "v", toDecimal<hexBase>, plain, "digits",
     "The number that hexadecimal digits mean."},
    {"HEX2BIN", 1, 2, "v", convert<hexBase, binaryBase>, plain, digitsAndPlaces,
     "Hexadecimal digits as binary ones."},
    {"HEX2OCT", 1, 2, "v", convert<hexBase, octalBase>, plain, digitsAndPlaces,
     "Hexadecimal digits as octal ones."},
    {"DEC2BIN", 1, 2, "v", fromDecimal<binaryBase>, plain, numberAndPlaces,
     "A whole number from -512 to 511 in binary digits."},
    {"DEC2OCT", 1, 2, "v", fromDecimal<octalBase>, plain, numberAndPlaces,
     "A whole number in octal digits."},
    {"DEC2HEX", 1, 2, "v", fromDecimal<hexBase>, plain, numberAndPlaces,
     "A whole number in hexadecimal digits."},
};

}  // namespace

std::span<const FunctionSpec> baseFunctions() {
    return rows;
}

}  // namespace formula
