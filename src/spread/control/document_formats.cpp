#include "spread/control/document_formats.h"

#include <array>
#include <limits>
#include <type_traits>

namespace control {
namespace {

struct KindName {
    CellKind kind;
    std::string_view name;
};
constexpr std::array kindNames = {
    KindName{CellKind::general, "general"},   KindName{CellKind::edit, "edit"},
    KindName{CellKind::staticText, "static"}, KindName{CellKind::button, "button"},
    KindName{CellKind::picture, "picture"},   KindName{CellKind::pictureHandle, "icon"},
    KindName{CellKind::checkBox, "checkbox"}, KindName{CellKind::comboBox, "combo"},
    KindName{CellKind::number, "number"},
};

// Calls visit(name, field of a, field of b) for every field. The order is that of the file.
template <class A, class B, class Visit>
void eachField(A& a, B& b, Visit&& visit) {
    visit("decimals", a.type.decimals, b.type.decimals);
    visit("editable", a.type.editable, b.type.editable);
    visit("isicon", a.type.isIcon, b.type.isIcon);
    visit("maxlength", a.type.maxLength, b.type.maxLength);
    visit("style", a.type.style, b.type.style);
    visit("picture", a.type.picture, b.type.picture);
    visit("otherpicture", a.type.otherPicture, b.type.otherPicture);
    visit("least", a.type.least, b.type.least);
    visit("most", a.type.most, b.type.most);
    visit("text", a.type.text, b.type.text);
    visit("font", a.font.name, b.font.name);
    visit("height", a.font.height, b.font.height);
    visit("weight", a.font.weight, b.font.weight);
    visit("italic", a.font.italic, b.font.italic);
    visit("underlined", a.font.underlined, b.font.underlined);
    visit("colour", a.textColour, b.textColour);
    visit("background", a.background, b.background);
    visit("border", a.borderSides, b.borderSides);
    visit("borderstyle", a.borderStyle, b.borderStyle);
    visit("bordercolour", a.borderColour, b.borderColour);
    visit("align", a.alignment, b.alignment);
    visit("locked", a.locked, b.locked);
}

// Takes `key=value` from the start of `text`; the value of a quoted text comes without quotes.
struct Entry {
    std::string_view key;
    std::string_view value;
    bool isQuoted = false;
};

std::optional<Entry> takeEntry(std::string_view& text) {
    Entry entry;
    const size_t equals = text.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    entry.key = text.substr(0, equals);
    text.remove_prefix(equals + 1);
    size_t end = 0;
    if (text.starts_with('"')) {
        entry.isQuoted = true;
        text.remove_prefix(1);
        while (end < text.size() && text[end] != '"') end += text[end] == '\\' ? 2 : 1;
        if (end >= text.size()) return std::nullopt;
        entry.value = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (!text.empty() && text[0] != ' ') return std::nullopt;
    } else {
        end = std::min(text.find(' '), text.size());
        entry.value = text.substr(0, end);
        text.remove_prefix(end);
    }
    if (text.starts_with(' ')) text.remove_prefix(1);
    return entry;
}

// Each reads an entry's value into a field; false when it does not fit there.
bool readField(const Entry& entry, std::string& field, std::string& error) {
    std::string buffer;
    if (!entry.isQuoted) return false;
    const auto text = unescaped(entry.value, buffer, error);
    if (text) field = *text;
    return text.has_value();
}

bool readField(const Entry& entry, double& field, std::string&) {
    const auto number = readNumber(entry.value);
    if (number) field = *number;
    return number.has_value();
}

template <class Whole>
requires std::is_integral_v<Whole>
bool readField(const Entry& entry, Whole& field, std::string&) {
    const auto number = readNumber(entry.value);
    if (!number || *number < static_cast<double>(std::numeric_limits<Whole>::min()) ||
        *number > static_cast<double>(std::numeric_limits<Whole>::max()))
        return false;
    field = static_cast<Whole>(*number);
    return static_cast<double>(field) == *number;
}

bool isSane(const CellFormat& format) {
    return format.type.decimals <= 15 && format.type.maxLength >= 0 && format.font.height > 0 &&
           format.font.height <= 1000 && format.borderSides < 16 && format.alignment <= 3;
}

}  // namespace

void writeFormat(DocumentOutput& out, const CellFormat& format) {
    for (const KindName& known : kindNames)
        if (known.kind == format.type.kind) out << known.name;
    const CellFormat standard;
    eachField(format, standard, [&](std::string_view name, const auto& field, const auto& usual) {
        if (field == usual) return;
        out << ' ' << name << '=';
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>) {
            out << '"';
            out.escaped(field, true);
            out << '"';
        } else {
            out << static_cast<double>(field);
        }
    });
}

std::optional<CellFormat> readFormat(std::string_view text, std::string& error) {
    const size_t end = std::min(text.find(' '), text.size());
    CellFormat format;
    bool isKnown = false;
    for (const KindName& known : kindNames) {
        if (known.name != text.substr(0, end)) continue;
        format.type.kind = known.kind;
        isKnown = true;
    }
    if (!isKnown) {
        error = "unknown kind of cell \"" + std::string(text.substr(0, std::min(end, size_t{40}))) +
                '"';
        return std::nullopt;
    }
    text.remove_prefix(std::min(end + 1, text.size()));
    while (!text.empty()) {
        const auto entry = takeEntry(text);
        bool isRead = false;
        std::string why;
        if (entry)
            eachField(format, format, [&](std::string_view name, auto& field, auto&) {
                if (name == entry->key) isRead = readField(*entry, field, why);
            });
        if (isRead) continue;
        error = entry ? "bad entry \"" + std::string(entry->key.substr(0, 40)) + "\" of a look"
                      : std::string("an entry of a look is no key=value");
        if (!why.empty()) error += " (" + why + ')';
        return std::nullopt;
    }
    if (isSane(format)) return format;
    error = "a look has values out of range";
    return std::nullopt;
}

}  // namespace control
