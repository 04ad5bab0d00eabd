#include "exchange/xml_text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

#include "platform/encodings.h"

namespace exchange {

namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

/// "_x0007_" stands at the start of `text`.
bool beginsMark(std::string_view text) {
    return text.size() >= 7 && text[1] == 'x' && text[6] == '_' &&
           std::all_of(text.begin() + 2, text.begin() + 6,
                       [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; });
}

void appendMark(std::string& xml, char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(c);
    xml += "_x00";
    xml += digits[code >> 4U];
    xml += digits[code & 0xFU];
    xml += '_';
}

void appendPlain(std::string& xml, char c) {
    switch (c) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        default:
            xml += c;
    }
}

}  // namespace

std::string xmlPart(std::string_view root) {
    std::string part = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
    return part.append(root);
}

void appendXmlText(std::string& xml, std::string_view text) {
    const std::string utf8 = encodings::toUtf8(text);
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const char c = utf8[at];
        if ((isControl(c) && c != '\n' && c != '\t') ||
            (c == '_' && beginsMark(std::string_view(utf8).substr(at))))
            appendMark(xml, c);
        else
            appendPlain(xml, c);
    }
}

std::string xmlTextElement(std::string_view text) {
    const bool hasEdges = !text.empty() && (text.front() == ' ' || text.back() == ' ' ||
                                            text.find_first_of("\n\t") != std::string_view::npos);
    std::string xml = hasEdges ? "<t xml:space=\"preserve\">" : "<t>";
    appendXmlText(xml, text);
    return xml + "</t>";
}

std::string xmlAttribute(std::string_view text) {
    std::string xml;
    for (const char c : encodings::toUtf8(text)) {
        if (isControl(c)) continue;
        if (c == '"')
            xml += "&quot;";
        else
            appendPlain(xml, c);
    }
    return xml;
}

void appendXmlNumber(std::string& xml, double number) {
    std::array<char, 32> text{};
    xml.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr);
}

std::string xmlNumber(double number) {
    std::string xml;
    appendXmlNumber(xml, number);
    return xml;
}

}  // namespace exchange
