// The core module's text: a value holding Windows-1252 bytes. Positions count from 0 and are byte
// positions. Everything that travels between sheets, macros and files is a Vor_String; UTF-8
// exists only at the edges (platform/encodings.h).
#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "platform/export.h"

class VORMANT_API Vor_String {
  public:
    Vor_String() = default;
    Vor_String(const char* text) : m_text(text ? text : "") {}
    Vor_String(std::string_view text) : m_text(text) {}
    Vor_String(std::string text) : m_text(std::move(text)) {}

    /// `number` as text, rounded half away from zero to `decimals` (0 to 15) places as the number
    /// is written (2.675 to 2 places is 2.68). `keepZeros` keeps trailing zeros; without it 2 is
    /// "2" and 2.50 "2.5". Never "-0", never an exponent. Infinities and NaN give the empty text:
    /// callers refuse them before.
    Vor_String(double number, int decimals, bool keepZeros = false);

    const char* c_str() const { return m_text.c_str(); }
    std::string_view view() const { return m_text; }
    const std::string& str() const { return m_text; }
    operator std::string_view() const { return m_text; }
    int length() const { return static_cast<int>(m_text.size()); }
    bool isEmpty() const { return m_text.empty(); }
    char operator[](int position) const { return m_text[static_cast<size_t>(position)]; }

    Vor_String& append(std::string_view text);
    Vor_String& operator+=(std::string_view text) { return append(text); }
    /// Positions outside 0…length are taken to the nearer end; counts are cut at the end.
    void insertAt(int position, std::string_view text);
    void removeAt(int position, int count = 1);
    void clear() { m_text.clear(); }

    /// The flag of the comparing and searching calls says "case matters"; without it ASCII and
    /// Windows-1252 letters compare regardless of case.
    bool equal(std::string_view other, bool caseMatters = false) const;
    bool hasSubString(std::string_view part, bool caseMatters = false) const;
    bool beginsWith(std::string_view part, bool caseMatters = false) const;
    bool endsWith(std::string_view part, bool caseMatters = false) const;

    /// First occurrence of `part` at or after `start`, or -1. An empty `part` is never found.
    int findFirstFrom(std::string_view part, int start, bool caseMatters = false) const;

    /// Up to `count` bytes from `position`; `count` below 0 means up to the end.
    Vor_String getSubStringAt(int position, int count = -1) const;

    /// Replaces every occurrence of `from`, never scanning inserted text again; the number of
    /// replacements.
    int replaceSubString(std::string_view from, std::string_view to, bool caseMatters = false);

    /// Byte-wise, for containers and tests; the domain's comparison is equal().
    bool operator==(const Vor_String& other) const { return m_text == other.m_text; }
    std::strong_ordering operator<=>(const Vor_String& other) const {
        return m_text <=> other.m_text;
    }

  private:
    std::string m_text;
};

inline Vor_String operator+(const Vor_String& a, std::string_view b) {
    Vor_String sum(a);
    sum += b;
    return sum;
}
inline Vor_String operator+(const char* a, const Vor_String& b) {
    Vor_String sum(a);
    sum += b.view();
    return sum;
}
