#include "platform/escaped_text.h"

#include <algorithm>

void appendEscaped(std::string& line, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '\t':
                line += "\\t";
                break;
            case '\n':
                line += "\\n";
                break;
            case '\r':
                line += "\\r";
                break;
            case '\\':
                line += "\\\\";
                break;
            default:
                line += c;
        }
    }
}

std::optional<std::string> unescaped(std::string_view field) {
    std::string text;
    text.reserve(field.size());
    for (size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\') {
            text += field[i];
            continue;
        }
        if (++i == field.size()) return std::nullopt;
        switch (field[i]) {
            case 't':
                text += '\t';
                break;
            case 'n':
                text += '\n';
                break;
            case 'r':
                text += '\r';
                break;
            case '\\':
                text += '\\';
                break;
            default:
                return std::nullopt;
        }
    }
    return text;
}

std::string_view takePart(std::string_view& rest, char separator) {
    const size_t end = std::min(rest.find(separator), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

std::string_view takeLine(std::string_view& rest) {
    std::string_view line = takePart(rest, '\n');
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}
