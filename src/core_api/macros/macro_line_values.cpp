#include "core_api/macros/macro_line_values.h"

#include "core_api/macros/macro_limits.h"

namespace macro_file {

Damage unknownKey() {
    return "this key is not known; compare it with the description of macro files";
}

std::string quoted(std::string_view name) {
    constexpr size_t longest = 60;
    std::string text(name.substr(0, longest));
    for (char& character : text) {
        if (static_cast<unsigned char>(character) < 0x20 || character == 0x7F) character = '?';
    }
    return "\"" + text + (name.size() > longest ? "...\"" : "\"");
}

Damage wrongType(std::string_view letter, std::string_view what) {
    return std::string(what) + " stands here; write " + std::string(letter) + " as the type";
}

Damage nameDamage(std::string_view kind, std::string_view name) {
    const std::string what = std::string(kind) + " " + quoted(name);
    if (!isMacroName(name)) {
        return what + " cannot be named so; use up to " + std::to_string(maxMacroNameLength) +
               " ordinary characters without blanks at the ends";
    }
    return what + " is there already, or there are more than " + std::to_string(maxMacroItems) +
           "; rename it or remove it";
}

Damage readNumber(const Property& property, double& number) {
    if (property.type != Property::Type::number && property.type != Property::Type::whole) {
        return wrongType("d", "a number");
    }
    const std::optional<double> read = macroNumber(property.value);
    if (!read) return "the number is too large; lengths lie within a billion millimetres";
    number = *read;
    return {};
}

Damage readFlag(const Property& property, bool& flag) {
    if (property.type != Property::Type::flag) return wrongType("b", "a flag");
    flag = property.value == "1";
    return {};
}

Damage readText(const Property& property, Vor_String& text) {
    if (property.type != Property::Type::text) return wrongType("s", "a text");
    if (!isMacroText(property.value)) {
        return "the text is longer than " + std::to_string(maxMacroNameLength) +
               " characters or has control characters; shorten it";
    }
    text = property.value;
    return {};
}

Damage readPlacementText(const Property& property, const std::string& field, Vor_PrPl& placement) {
    if (field == "material") return readText(property, placement.material);
    if (field == "member") return readText(property, placement.memberName);
    return unknownKey();
}

}  // namespace macro_file
