#include "spread/tw_prop_list.h"

#include <charconv>

#include "core_api/text/text_helpers.h"

namespace {

constexpr int doubleDecimals = 10;

bool hasSeparator(std::string_view text) {
    return text.find(TwPropList::separator) != std::string_view::npos;
}

/// The digits at the start as a number, 0 without any.
template <class Whole>
Whole readWhole(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('+')) text.remove_prefix(1);
    Whole number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

TwPropList::Value readValue(int type, std::string_view text) {
    switch (static_cast<TwPropList::Type>(type)) {
        case TwPropList::Type::number:
            return textToDouble(text);
        case TwPropList::Type::whole:
            return readWhole<int>(text);
        case TwPropList::Type::longWhole:
            return readWhole<int64_t>(text);
        case TwPropList::Type::text:
            return Vor_String(text);
        default:
            return {};
    }
}

Vor_String valueText(const TwPropList::Value& value) {
    if (const double* number = std::get_if<double>(&value))
        return Vor_String(*number, doubleDecimals, true);
    if (const int* number = std::get_if<int>(&value)) return std::to_string(*number);
    if (const int64_t* number = std::get_if<int64_t>(&value)) return std::to_string(*number);
    if (const Vor_String* text = std::get_if<Vor_String>(&value)) return *text;
    return {};
}

std::string elementKey(std::string_view key, int index) {
    return std::string(key) + std::to_string(index);
}

/// The next of the fields that separators part; nothing behind the last one.
std::optional<std::string_view> takeField(std::optional<std::string_view>& text) {
    if (!text) return std::nullopt;
    const size_t end = text->find(TwPropList::separator);
    const std::string_view field = text->substr(0, end);
    if (end == std::string_view::npos)
        text.reset();
    else
        text->remove_prefix(end + 1);
    return field;
}

}  // namespace

bool TwPropList::set(std::string_view key, Value value) {
    if (hasSeparator(key)) return false;
    for (Entry& entry : m_entries) {
        if (entry.key.view() != key) continue;
        entry.value = std::move(value);
        return true;
    }
    m_entries.push_back({key, std::move(value)});
    return true;
}

bool TwPropList::remove(std::string_view key) {
    return std::erase_if(m_entries, [&](const Entry& e) { return e.key.view() == key; }) > 0;
}

bool TwPropList::setDouble(std::string_view key, double number) {
    return set(key, number);
}
bool TwPropList::setInt(std::string_view key, int number) {
    return set(key, number);
}
bool TwPropList::setLong(std::string_view key, int64_t number) {
    return set(key, number);
}
bool TwPropList::setText(std::string_view key, std::string_view text) {
    return !hasSeparator(text) && set(key, Vor_String(text));
}

bool TwPropList::setTexts(std::string_view key, const Vor_StringArray& texts) {
    if (hasSeparator(key)) return false;
    for (const Vor_String& text : texts)
        if (hasSeparator(text)) return false;
    for (int i = 0; i < texts.length(); ++i) setText(elementKey(key, i), texts[i]);
    // Of a longer list before: reading goes on until a number is missing.
    for (int i = texts.length(); remove(elementKey(key, i)); ++i) {
    }
    return true;
}

template <class T>
std::optional<T> TwPropList::get(std::string_view key) const {
    for (const Entry& entry : m_entries) {
        if (entry.key.view() != key) continue;
        const T* value = std::get_if<T>(&entry.value);
        return value ? std::optional<T>(*value) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<double> TwPropList::getDouble(std::string_view key) const {
    return get<double>(key);
}
std::optional<int> TwPropList::getInt(std::string_view key) const {
    return get<int>(key);
}
std::optional<int64_t> TwPropList::getLong(std::string_view key) const {
    return get<int64_t>(key);
}
std::optional<bool> TwPropList::getBool(std::string_view key) const {
    const std::optional<int> number = getInt(key);
    return number ? std::optional(*number != 0) : std::nullopt;
}
std::optional<Vor_String> TwPropList::getText(std::string_view key) const {
    return get<Vor_String>(key);
}

Vor_StringArray TwPropList::getTexts(std::string_view key) const {
    Vor_StringArray texts;
    while (auto text = getText(elementKey(key, texts.length()))) texts.append(std::move(*text));
    return texts;
}

Vor_String TwPropList::write() const {
    std::string text;
    for (const Entry& entry : m_entries) {
        text += entry.key.view();
        text += separator;
        text += std::to_string(entry.value.index());
        text += separator;
        text += valueText(entry.value).view();
        text += separator;
    }
    return text;
}

void TwPropList::read(std::string_view text) {
    m_entries.clear();
    for (std::optional<std::string_view> rest = text;;) {
        const auto key = takeField(rest);
        const auto type = takeField(rest);
        const auto value = takeField(rest);
        if (!key || !type || !value) return;
        set(*key, readValue(textToInt(*type), *value));
    }
}
