// Ordered properties of a simple type, for files that people read and compare. Text form: a first
// line "properties 1" (the format's version), then one property a line:
//
//     type letter <tab> key <tab> value
//
// and a last line "end", without which a file counts as cut off. Type letters: s text, i whole
// number, d number, b flag (0 or 1). In keys and values tab, line end, carriage return and
// backslash are written \t \n \r \\. Texts are Windows-1252.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"

struct VORMANT_API Property {
    enum class Type : char { text = 's', whole = 'i', number = 'd', flag = 'b' };

    Type type = Type::text;
    Vor_String key;
    Vor_String value;  ///< as text; of the type's form
    int line = 0;      ///< where it was read, from 1; 0 when it was set

    bool operator==(const Property& other) const {
        return type == other.type && key == other.key && value == other.value;
    }
};

class VORMANT_API Vor_PropertyList {
  public:
    static constexpr int maxProperties = 200000;
    static constexpr int maxKeyLength = 4096;           // bytes
    static constexpr int maxValueLength = 1024 * 1024;  // bytes

    int length() const { return m_properties.length(); }
    const Property& operator[](int index) const { return m_properties[index]; }
    auto begin() const { return m_properties.begin(); }
    auto end() const { return m_properties.end(); }

    /// A set of a key that is there replaces its value and type and keeps its place; else it goes
    /// to the end. False, with nothing changed, when a key or value is too long, the key is empty
    /// or the list is full; for numbers also when infinite or NaN.
    bool setText(std::string_view key, std::string_view value);
    bool setInt(std::string_view key, int value);
    bool setDouble(std::string_view key, double value);
    bool setBool(std::string_view key, bool value);
    bool remove(std::string_view key);
    void clear();

    /// Index of a key (letter case matters), or -1.
    int find(std::string_view key) const;
    /// The value when the key is there with this type.
    const Vor_String* getText(std::string_view key) const;
    std::optional<int> getInt(std::string_view key) const;
    /// A whole number serves as a number too.
    std::optional<double> getDouble(std::string_view key) const;
    std::optional<bool> getBool(std::string_view key) const;

    /// Reads the text form; `source` names it in messages. False, with the list as it was and
    /// "source:line: what is wrong; what to do" in `message`.
    bool read(std::string_view text, std::string_view source, Vor_String& message);
    Vor_String write() const;

    /// By host-style path; larger files than `sizeLimit` bytes are refused. Saving is all or
    /// nothing.
    bool load(std::string_view path, Vor_String& message, std::size_t sizeLimit = 16u << 20);
    bool save(std::string_view path, Vor_String& message) const;

    bool operator==(const Vor_PropertyList& other) const {
        return m_properties == other.m_properties;
    }

  private:
    struct Hash {
        using is_transparent = void;
        size_t operator()(std::string_view key) const { return std::hash<std::string_view>()(key); }
    };

    bool set(Property property);
    const Property* get(std::string_view key, Property::Type type) const;

    Vor_Array<Property> m_properties;
    std::unordered_map<std::string, int, Hash, std::equal_to<>> m_index;
};

/// The number as the shortest text that reads back as the same double.
VORMANT_API Vor_String exactNumberText(double number);
