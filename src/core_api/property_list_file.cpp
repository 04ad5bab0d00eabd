// The text form of property lists.
#include <string>

#include "core_api/property_list.h"
#include "core_api/text/number_text.h"
#include "core_api/text/text_helpers.h"
#include "platform/escaped_text.h"
#include "platform/files.h"

namespace {

constexpr std::string_view headerWord = "properties ";
constexpr std::string_view currentVersion = "1";
constexpr std::string_view endLine = "end";

// What is wrong with a line, as the end of a message; null when nothing is.
using Damage = const char*;

Damage checkHeader(std::string_view line) {
    if (line.substr(0, headerWord.size()) != headerWord)
        return "this is not a property list; check that it is the file meant";
    if (line.substr(headerWord.size()) != currentVersion)
        return "this version of property lists is not known; use a newer program";
    return nullptr;
}

bool isOfType(Property::Type type, std::string_view value) {
    switch (type) {
        case Property::Type::text:
            return true;
        case Property::Type::flag:
            return value == "0" || value == "1";
        case Property::Type::number:
            return takeNumber(value) && value.empty();
        case Property::Type::whole:
            return value == std::to_string(textToInt(value));
    }
    return false;
}

Damage parseLine(std::string_view line, Property& property) {
    const std::string_view letter = takePart(line, '\t');
    if (letter.size() != 1 || std::string_view("sidb").find(letter[0]) == std::string_view::npos)
        return "the type is none of s, i, d, b; write the type, a tab, the key, a tab, the value";
    if (line.find('\t') == std::string_view::npos)
        return "the value is missing; write the type, a tab, the key, a tab, the value";
    auto key = unescaped(takePart(line, '\t'));
    auto value = unescaped(line);
    if (!key || !value) return "a backslash stands alone; write it twice";
    property.type = static_cast<Property::Type>(letter[0]);
    if (key->empty()) return "the key is missing; write the type, a tab, the key, a tab, the value";
    if (key->size() > Vor_PropertyList::maxKeyLength) return "the key is too long; shorten it";
    if (value->size() > Vor_PropertyList::maxValueLength)
        return "the value is too long; shorten it";
    if (!isOfType(property.type, *value))
        return "the value is not of its type; write a whole number for i, a number for d, 0 or 1 "
               "for b";
    property.key = std::move(*key);
    property.value = std::move(*value);
    return nullptr;
}

}  // namespace

bool Vor_PropertyList::read(std::string_view text, std::string_view source, Vor_String& message) {
    const auto fail = [&](int line, std::string_view what) {
        message = std::string(source) + ":" + std::to_string(line) + ": " + std::string(what);
        return false;
    };
    if (const Damage damage = checkHeader(takeLine(text))) return fail(1, damage);
    Vor_PropertyList list;
    int number = 2;
    for (bool isEnded = false; !text.empty(); ++number) {
        const std::string_view line = takeLine(text);
        if (isEnded) return fail(number, "text after the end; remove it");
        if (line == endLine) {
            if (text.empty()) {
                *this = std::move(list);
                return true;
            }
            isEnded = true;
            continue;
        }
        Property property;
        property.line = number;
        if (const Damage damage = parseLine(line, property)) return fail(number, damage);
        if (const int first = list.find(property.key); first >= 0) {
            return fail(number, "the key is already on line " + std::to_string(list[first].line) +
                                    "; remove one of them");
        }
        if (!list.set(std::move(property)))
            return fail(number, "there are more than 200000 properties; split the file");
    }
    return fail(number, "the line \"end\" is missing, the file was cut off; restore it");
}

Vor_String Vor_PropertyList::write() const {
    std::string text(headerWord);
    text.append(currentVersion).append("\n");
    for (const Property& property : m_properties) {
        text += static_cast<char>(property.type);
        text += '\t';
        appendEscaped(text, property.key);
        text += '\t';
        appendEscaped(text, property.value);
        text += '\n';
    }
    return text.append(endLine).append("\n");
}

bool Vor_PropertyList::load(std::string_view path, Vor_String& message, std::size_t sizeLimit) {
    std::string error;
    const auto text = files::readWhole(path, error, sizeLimit);
    if (text) return read(*text, path, message);
    message = std::move(error);
    return false;
}

bool Vor_PropertyList::save(std::string_view path, Vor_String& message) const {
    std::string error;
    if (files::writeWhole(path, write(), error)) return true;
    message = std::move(error);
    return false;
}
