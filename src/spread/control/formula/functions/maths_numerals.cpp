// Numbers written in other numerals: Roman ones and those of another base.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

constexpr std::string_view romanLetters = "IVXLCDM";
constexpr std::array<int, 7> romanValues = {1, 5, 10, 50, 100, 500, 1000};
constexpr double greatestRoman = 3999;
constexpr size_t longestNumeral = 255;

/// Appends the greatest numeral that `rest` still holds and takes it off. A letter may be written
/// before one of higher value to be subtracted: classically I, X, C before the next two letters;
/// each step of `brevity` (0 to 4) lets every letter reach one letter further.
void appendRoman(std::string& out, int& rest, int brevity) {
    for (int high = 6;; --high) {
        const int value = romanValues[static_cast<size_t>(high)];
        if (rest >= value) {
            out += romanLetters[static_cast<size_t>(high)];
            rest -= value;
            return;
        }
        // The lowest letter that may be subtracted leaves the greatest numeral.
        const int reach = (high % 2 == 0 ? 2 : 1) + brevity;
        for (int low = std::max(0, high - reach); low < high; ++low) {
            const int pair = value - romanValues[static_cast<size_t>(low)];
            const bool isFive = low % 2 == 1;
            if (isFive && high - low == 1) continue;  // 5 would be 10 - 5
            if (rest < pair) continue;
            out += romanLetters[static_cast<size_t>(low)];
            out += romanLetters[static_cast<size_t>(high)];
            rest -= pair;
            return;
        }
    }
}

/// 0 (classic) to 4 (shortest); TRUE is 0 and FALSE 4. #VALUE! otherwise.
Result<int> romanForm(const Value& argument) {
    if (argument.isBoolean()) return argument.truth() ? 0 : 4;
    const Result<double> form = numberOf(argument);
    if (!form) return form.error();
    if (!(*form >= 0 && *form < 5)) return ErrorCode::value;
    return static_cast<int>(*form);
}

Value roman(Calculation& c, std::span<const Value> args) {
    const Result<double> number = numberOf(args[0]);
    if (!number) return number.error();
    const Result<int> form = args.size() > 1 ? romanForm(args[1]) : Result<int>(0);
    if (!form) return form.error();
    const double whole = std::trunc(*number);
    if (!(whole >= 0 && whole <= greatestRoman) || *number < 0) return ErrorCode::value;
    std::string text;
    for (int rest = static_cast<int>(whole); rest > 0;) appendRoman(text, rest, *form);
    return c.text(text);
}

std::string_view trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

Value arabic(Calculation& c, std::span<const Value> args) {
    const Result<std::string_view> given = textOf(c, args[0]);
    if (!given) return given.error();
    if (given->size() > longestNumeral) return ErrorCode::value;
    std::string_view text = trimmed(*given);
    const bool isNegative = text.starts_with('-');
    if (isNegative) text.remove_prefix(1);
    int total = 0;
    for (size_t i = text.size(); i-- > 0;) {
        const size_t letter = romanLetters.find(upper(text[i]));
        if (letter == std::string_view::npos) return ErrorCode::value;
        const int value = romanValues[letter];
        const int next =
            i + 1 < text.size() ? romanValues[romanLetters.find(upper(text[i + 1]))] : 0;
        total += value < next ? -value : value;
    }
    return Value(static_cast<double>(isNegative ? -total : total));
}

constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr double exactLimit = 9007199254740992.0;  // 2^53

/// 2 to 36, else #NUM!.
Result<int> radixOf(const Value& argument) {
    const Result<double> radix = numberOf(argument);
    if (!radix) return radix.error();
    if (!(*radix >= 2 && *radix < 37)) return ErrorCode::num;
    return static_cast<int>(*radix);
}

Value inBase(Calculation& c, std::span<const Value> args) {
    const Result<double> number = numberOf(args[0]);
    if (!number) return number.error();
    const Result<int> radix = radixOf(args[1]);
    if (!radix) return radix.error();
    const Result<double> length = args.size() > 2 ? numberOf(args[2]) : Result<double>(0);
    if (!length) return length.error();
    if (!(*number >= 0 && *number < exactLimit) || !(*length >= 0 && *length < 256))
        return ErrorCode::num;
    std::string text;
    for (auto rest = static_cast<uint64_t>(*number); rest > 0 || text.empty();
         rest /= static_cast<uint64_t>(*radix))
        text.insert(text.begin(), digits[rest % static_cast<uint64_t>(*radix)]);
    if (const auto wanted = static_cast<size_t>(*length); text.size() < wanted)
        text.insert(0, wanted - text.size(), '0');
    return c.text(text);
}

Value fromBase(Calculation& c, std::span<const Value> args) {
    const Result<std::string_view> text = textOf(c, args[0]);
    if (!text) return text.error();
    const Result<int> radix = radixOf(args[1]);
    if (!radix) return radix.error();
    if (text->size() > longestNumeral) return ErrorCode::value;
    double result = 0;
    for (const char character : trimmed(*text)) {
        const size_t digit = digits.find(upper(character));
        if (digit == std::string_view::npos || digit >= static_cast<size_t>(*radix))
            return ErrorCode::num;
        result = result * *radix + static_cast<double>(digit);
    }
    return numberOrError(result);
}

constexpr FunctionSpec rows[] = {
    {"ROMAN", 1, 2, "v", roman, plain, "number, [form]",
     "The number, 0 to 3999, in Roman numerals; form 0 is the classic one, 1 to 4 are ever "
     "shorter."},
    {"ARABIC", 1, 1, "v", arabic, plain, "text", "The number that a text in Roman numerals means."},
    {"BASE", 2, 3, "v", inBase, plain, "number, base, [length]",
     "The whole number as a text in a base from 2 to 36, with zeros before it up to the length."},
    {"DECIMAL", 2, 2, "v", fromBase, plain, "text, base",
     "The number that a text means in a base from 2 to 36."},
};

}  // namespace

std::span<const FunctionSpec> numeralFunctions() {
    return rows;
}

}  // namespace formula
