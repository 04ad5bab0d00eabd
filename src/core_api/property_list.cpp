#include "core_api/property_list.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core_api/text/number_text.h"
#include "core_api/text/text_helpers.h"

namespace {

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || at != end) return std::nullopt;
    return number;
}

std::optional<double> exactNumber(std::string_view text) {
    const auto number = takeNumber(text);
    return text.empty() ? number : std::nullopt;
}

}  // namespace

Vor_String exactNumberText(double number) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return std::string_view(buffer.data(), static_cast<size_t>(end - buffer.data()));
}

bool Vor_PropertyList::set(Property property) {
    if (property.key.isEmpty() || property.key.length() > maxKeyLength ||
        property.value.length() > maxValueLength)
        return false;
    const int found = find(property.key);
    if (found >= 0) {
        m_properties[found] = std::move(property);
        return true;
    }
    if (length() >= maxProperties) return false;
    m_index.emplace(property.key.str(), length());
    m_properties.append(std::move(property));
    return true;
}

bool Vor_PropertyList::setText(std::string_view key, std::string_view value) {
    return set({Property::Type::text, key, value});
}

bool Vor_PropertyList::setInt(std::string_view key, int value) {
    return set({Property::Type::whole, key, std::to_string(value)});
}

bool Vor_PropertyList::setDouble(std::string_view key, double value) {
    return std::isfinite(value) && set({Property::Type::number, key, exactNumberText(value)});
}

bool Vor_PropertyList::setBool(std::string_view key, bool value) {
    return set({Property::Type::flag, key, value ? "1" : "0"});
}

bool Vor_PropertyList::remove(std::string_view key) {
    const int found = find(key);
    if (found < 0) return false;
    m_properties.removeAt(found);
    m_index.clear();
    for (int i = 0; i < length(); ++i) m_index.emplace(m_properties[i].key.str(), i);
    return true;
}

void Vor_PropertyList::clear() {
    m_properties.clear();
    m_index.clear();
}

int Vor_PropertyList::find(std::string_view key) const {
    const auto found = m_index.find(key);
    return found == m_index.end() ? -1 : found->second;
}

const Property* Vor_PropertyList::get(std::string_view key, Property::Type type) const {
    const int found = find(key);
    return found >= 0 && m_properties[found].type == type ? &m_properties[found] : nullptr;
}

const Vor_String* Vor_PropertyList::getText(std::string_view key) const {
    const Property* property = get(key, Property::Type::text);
    return property ? &property->value : nullptr;
}

std::optional<int> Vor_PropertyList::getInt(std::string_view key) const {
    const Property* property = get(key, Property::Type::whole);
    return property ? wholeNumber(property->value) : std::nullopt;
}

std::optional<double> Vor_PropertyList::getDouble(std::string_view key) const {
    if (const auto whole = getInt(key)) return *whole;
    const Property* property = get(key, Property::Type::number);
    return property ? exactNumber(property->value) : std::nullopt;
}

std::optional<bool> Vor_PropertyList::getBool(std::string_view key) const {
    const Property* property = get(key, Property::Type::flag);
    return property ? std::optional(property->value == "1") : std::nullopt;
}
