#include "platform/encodings.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "platform/short_text.h"

namespace encodings {

namespace {

// The characters of bytes 0x80 to 0x9F; all other bytes stand for the character of their number.
constexpr std::array<char16_t, 32> c1Characters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Reads the multi-byte character at `position` and moves past it. Nothing for malformed, overlong
// or surrogate sequences.
std::optional<char32_t> takeCharacter(std::string_view utf8, size_t& position) {
    const auto byteAt = [&](size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned lead = byteAt(position);
    size_t length = 0;
    char32_t character = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, character = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, character = lead & 0x0F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, character = lead & 0x07;
    } else {
        return std::nullopt;
    }
    if (utf8.size() - position < length) return std::nullopt;
    for (size_t i = 1; i < length; ++i) {
        const unsigned next = byteAt(position + i);
        if ((next & 0xC0) != 0x80) return std::nullopt;
        character = (character << 6) | (next & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest[length] || surrogate || character > 0x10FFFF) return std::nullopt;
    position += length;
    return character;
}

// Nearly all texts are ASCII, which is the same in both forms.
bool isAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

}  // namespace

char32_t characterOf(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? c1Characters[byte - 0x80u] : byte;
}

std::optional<char> byteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    const auto* found = std::find(c1Characters.begin(), c1Characters.end(), character);
    if (found == c1Characters.end()) return std::nullopt;
    return static_cast<char>(0x80 + (found - c1Characters.begin()));
}

std::string lowered(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = toLower(c);
    return result;
}

std::string uppered(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = toUpper(c);
    return result;
}

bool equalFolded(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && toLower(a[i]) != toLower(b[i])) return false;
    }
    return true;
}

int compareFolded(std::string_view a, std::string_view b) {
    const size_t common = std::min(a.size(), b.size());
    for (size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(toLower(a[i]));
        const auto y = static_cast<unsigned char>(toLower(b[i]));
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::uint32_t hashFolded(std::string_view text) {
    constexpr std::uint64_t caseBits = 0x2020202020202020U, notAscii = 0x8080808080808080U;
    if (text.size() <= longestShortText) {
        const auto [first, last] = endsOf(text);
        if (((first | last) & notAscii) == 0) {
            const std::uint64_t mixed = ((first | caseBits) * 0x9E3779B97F4A7C15U) ^
                                        ((last | caseBits) * 0xBF58476D1CE4E5B9U);
            return static_cast<std::uint32_t>((mixed ^ text.size()) >> 32 ^ mixed >> 17);
        }
    }
    std::uint32_t hash = 2166136261u;  // FNV-1a
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(toLower(c));
        hash *= 16777619u;
    }
    return hash;
}

std::string Utf8Error::message(std::string_view utf8) const {
    char text[64];
    if (character != 0) {
        std::snprintf(text, sizeof text, "character U+%04X is not in Windows-1252",
                      static_cast<unsigned>(character));
    } else {
        const unsigned byte =
            position < utf8.size() ? static_cast<unsigned char>(utf8[position]) : 0u;
        std::snprintf(text, sizeof text, "byte 0x%02X is not UTF-8", byte);
    }
    return text;
}

std::optional<std::string> fromUtf8(std::string_view utf8, Utf8Error& error) {
    if (isAscii(utf8)) return std::string(utf8);
    std::string result;
    result.reserve(utf8.size());
    for (size_t position = 0; position < utf8.size();) {
        const auto byte = static_cast<unsigned char>(utf8[position]);
        if (byte < 0x80) {
            result.push_back(utf8[position++]);
            continue;
        }
        const size_t start = position;
        const std::optional<char32_t> character = takeCharacter(utf8, position);
        const std::optional<char> found = character ? byteOf(*character) : std::nullopt;
        if (!found) {
            error = {start, character.value_or(0)};
            return std::nullopt;
        }
        result.push_back(*found);
    }
    return result;
}

std::optional<std::string> fromUtf8(std::string_view utf8) {
    Utf8Error ignored;
    return fromUtf8(utf8, ignored);
}

std::string toUtf8(std::string_view windows1252) {
    if (isAscii(windows1252)) return std::string(windows1252);
    std::string result;
    result.reserve(windows1252.size());
    for (const char c : windows1252) {
        const char32_t character = characterOf(static_cast<unsigned char>(c));
        if (character < 0x80) {
            result.push_back(c);
        } else if (character < 0x800) {
            result.push_back(static_cast<char>(0xC0 | (character >> 6)));
            result.push_back(static_cast<char>(0x80 | (character & 0x3F)));
        } else {
            result.push_back(static_cast<char>(0xE0 | (character >> 12)));
            result.push_back(static_cast<char>(0x80 | ((character >> 6) & 0x3F)));
            result.push_back(static_cast<char>(0x80 | (character & 0x3F)));
        }
    }
    return result;
}

}  // namespace encodings
