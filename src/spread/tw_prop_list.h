// A list of typed values by key, as the settings of a sheet travel in a cell's tag. Its text has a
// group of three fields for each entry: key, type code and value, each closed by the byte 0xA4 (the
// last one may lack it).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core_api/text/vor_string.h"
#include "core_api/text/vor_string_array.h"

class VORMANT_API TwPropList {
  public:
    enum class Type { none = 0, number = 1, whole = 2, longWhole = 3, text = 4 };
    static constexpr char separator = '\xA4';

    /// The alternatives stand at the index of their type code.
    using Value = std::variant<std::monostate, double, int, int64_t, Vor_String>;
    struct Entry {
        Vor_String key;
        Value value;
        Type type() const { return static_cast<Type>(value.index()); }
        bool operator==(const Entry&) const = default;
    };

    const std::vector<Entry>& entries() const { return m_entries; }

    /// A key that is there gets the new value in its place, a new one goes to the end. False, with
    /// nothing changed, when the key or the text holds the separator.
    bool setDouble(std::string_view key, double number);
    bool setInt(std::string_view key, int number);
    bool setLong(std::string_view key, int64_t number);
    bool setBool(std::string_view key, bool value) { return setInt(key, value ? 1 : 0); }
    bool setText(std::string_view key, std::string_view text);
    /// One text entry an element, under the key with the index (from 0) behind it; a longer list
    /// that was there loses its rest.
    bool setTexts(std::string_view key, const Vor_StringArray& texts);

    /// Nothing when the key is missing or its value is of another type.
    std::optional<double> getDouble(std::string_view key) const;
    std::optional<int> getInt(std::string_view key) const;
    std::optional<int64_t> getLong(std::string_view key) const;
    std::optional<bool> getBool(std::string_view key) const;
    std::optional<Vor_String> getText(std::string_view key) const;
    /// The elements from index 0 up to the first that is missing.
    Vor_StringArray getTexts(std::string_view key) const;

    Vor_String write() const;
    /// What `text` holds takes the place of everything here; an incomplete last group is left out.
    void read(std::string_view text);

    bool operator==(const TwPropList&) const = default;

  private:
    bool set(std::string_view key, Value value);
    bool remove(std::string_view key);
    template <class T>
    std::optional<T> get(std::string_view key) const;

    std::vector<Entry> m_entries;
};
