#include <algorithm>
#include <cmath>
#include <string>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/number_format.h"
#include "spread/control/formula/functions/text_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

constexpr int mostDecimals = 127;

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) result.append(c == '"' ? 2 : 1, c);
    return result + "\"";
}

}  // namespace

Value dollar(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = read.number(0);
    const int decimals = args.size() > 1 ? read.whole(1) : 2;
    if (read.failed()) return read.error();
    if (decimals > mostDecimals) return ErrorCode::value;
    const std::string amount = "$" + formatFixed(std::fabs(number), decimals, true);
    const bool isNegative = formatFixed(number, decimals, true)[0] == '-';
    return c.text(isNegative ? "(" + amount + ")" : amount);
}

Value fixed(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = read.number(0);
    const int decimals = read.whole(1, 2);
    const bool withoutCommas = read.truth(2, false);
    if (read.failed()) return read.error();
    if (decimals > mostDecimals) return ErrorCode::value;
    return c.text(formatFixed(number, decimals, !withoutCommas));
}

Value text(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view format = read.text(1);
    if (args[0].isError()) return args[0];
    if (read.failed()) return read.error();
    // Where a fraction may be wanted, the best one has to be found.
    const int64_t workOfPlace = format.find('?') == format.npos ? 60 : 600;
    c.spend(workOfPlace * static_cast<int64_t>(format.size()));
    const Result<std::string> formatted = formatValue(args[0], format);
    if (!formatted) return formatted.error();
    const std::string shown = *formatted;
    return shown.size() > longestText ? Value(ErrorCode::value) : c.text(shown);
}

Value value(Calculation&, Arguments args) {
    if (args[0].isBoolean()) return ErrorCode::value;
    const Result<double> number = toNumber(args[0]);
    if (!number) return number.error();
    return *number;
}

Value numberValue(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    std::string text(read.text(0));
    const std::string_view point = read.text(1, ".");
    const std::string_view group = read.text(2, point.substr(0, 1) == "," ? "." : ",");
    if (read.failed()) return read.error();
    if (point.empty() || (args.size() > 2 && group.empty())) return ErrorCode::value;
    std::erase_if(text, [](char letter) { return letter == ' '; });
    int percents = 0;
    for (; !text.empty() && text.back() == '%'; text.pop_back()) ++percents;
    if (text.empty()) return percents == 0 ? Value(0.0) : Value(ErrorCode::value);
    std::string plain;
    bool isBehindPoint = false;
    for (const char letter : text) {
        if (letter == point[0] && !isBehindPoint) {
            isBehindPoint = true;
            plain += '.';
        } else if (letter == group[0] && !isBehindPoint) {
            continue;
        } else if (letter == ',' || letter == '.' || letter == '%') {
            return ErrorCode::value;
        } else {
            plain += letter;
        }
    }
    const auto number = textToNumber(plain);
    if (!number) return ErrorCode::value;
    return *number / std::pow(100.0, percents);
}

Value valueToText(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const int isStrict = read.whole(1, 0);
    if (read.failed()) return read.error();
    if (isStrict != 0 && isStrict != 1) return ErrorCode::value;
    if (args[0].isError()) return c.text(errorText(args[0].error()));
    const Result<std::string_view> text = textOf(c, args[0]);
    if (!text) return text.error();
    return c.text(isStrict && args[0].isText() ? quoted(*text) : std::string(*text));
}

}  // namespace formula
