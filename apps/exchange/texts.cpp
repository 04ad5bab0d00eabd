#include "exchange/texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core_api/text/number_text.h"
#include "platform/encodings.h"

namespace exchange {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= 0; });
}

}  // namespace

void appendUtf8(std::string& line, std::string_view text) {
    if (isAscii(text))
        line += text;
    else
        line += encodings::toUtf8(text);
}

void appendJsonText(std::string& line, std::string_view text) {
    if (isAscii(text))
        appendJsonUtf8(line, text);
    else
        appendJsonUtf8(line, encodings::toUtf8(text));
}

void appendJsonUtf8(std::string& line, std::string_view utf8) {
    static constexpr char digits[] = "0123456789abcdef";
    line += '"';
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            line += '\\';
            line += c;
        } else if (c == '\n') {
            line += "\\n";
        } else if (c == '\t') {
            line += "\\t";
        } else if (c >= 0 && c < ' ') {
            line += "\\u00";
            line += digits[c >> 4];
            line += digits[c & 15];
        } else {
            line += c;
        }
    }
    line += '"';
}

void appendNumber(std::string& line, double number) {
    // Results have few decimals, which are written faster than the shortest digits are found.
    constexpr int decimals = 7;
    if (std::fabs(number) < 1e8 && roundAsWritten(number, decimals) == number) {
        NumberBuffer buffer;
        line += writeNumber(buffer, number, decimals);
        return;
    }
    char text[32];
    const bool isPlain = std::fabs(number) < 1e15 && std::fabs(number) >= 1e-7;
    const auto end = isPlain
                         ? std::to_chars(text, text + sizeof text, number, std::chars_format::fixed)
                         : std::to_chars(text, text + sizeof text, number);
    line.append(text, end.ptr);
}

void appendRounded(std::string& line, double number) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::general, 6);
    line.append(text, end.ptr);
}

double asShown(double number) {
    std::string text;
    appendRounded(text, number);
    double shown = number;
    std::from_chars(text.data(), text.data() + text.size(), shown);
    return shown;
}

std::string shortened(std::string_view message) {
    constexpr size_t longest = 1000;
    constexpr size_t snapshotOfEnd = 300;  // it says what to do
    const auto isInsideCharacter = [&](size_t at) { return (message[at] & 0xC0) == 0x80; };
    std::string result;
    for (size_t begin = 0; begin < message.size();) {
        const size_t end = std::min(message.find('\n', begin), message.size() - 1) + 1;
        if (end - begin > longest) {
            size_t first = begin + longest - snapshotOfEnd;
            size_t last = end - snapshotOfEnd;
            while (first > begin && isInsideCharacter(first)) --first;
            while (last < end && isInsideCharacter(last)) ++last;
            result.append(message.substr(begin, first - begin)).append(" ... ");
            begin = last;
        }
        result += message.substr(begin, end - begin);
        begin = end;
    }
    return result;
}

bool fromUtf8(std::string_view utf8, std::string& text, std::string& error) {
    if (utf8.find('\0') != utf8.npos) {
        error = "a zero byte is not allowed in a text";
        return false;
    }
    if (isAscii(utf8)) {
        text.assign(utf8);
        return true;
    }
    encodings::Utf8Error problem;
    auto converted = encodings::fromUtf8(utf8, problem);
    if (!converted) {
        error = problem.message(utf8);
        return false;
    }
    text = std::move(*converted);
    return true;
}

std::optional<Assignment> splitAssignment(std::string_view text) {
    const size_t sign = text.find('=');
    if (sign == text.npos) return std::nullopt;
    std::string_view name = text.substr(0, sign);
    while (name.starts_with(' ')) name.remove_prefix(1);
    while (name.ends_with(' ')) name.remove_suffix(1);
    if (name.empty()) return std::nullopt;
    return Assignment{std::string(name), std::string(text.substr(sign + 1))};
}

}  // namespace exchange
