// The one place that knows Windows-1252: letter case of its bytes, and the way to and from UTF-8
// at the edges. The five bytes that Windows-1252 leaves open (81 8D 8F 90 9D) stand for the
// control characters of the same number, so that every byte survives a round trip.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace encodings {

using ByteTable = std::array<unsigned char, 256>;

constexpr ByteTable makeLowerTable() {
    ByteTable table{};
    for (unsigned i = 0; i < 256; ++i) {
        unsigned lower = i;
        if ((i >= 'A' && i <= 'Z') || (i >= 0xC0 && i <= 0xDE && i != 0xD7)) lower = i + 0x20;
        if (i == 0x8A || i == 0x8C || i == 0x8E) lower = i + 0x10;
        if (i == 0x9F) lower = 0xFF;
        table[i] = static_cast<unsigned char>(lower);
    }
    return table;
}

constexpr ByteTable makeUpperTable() {
    ByteTable table{};
    const ByteTable lower = makeLowerTable();
    for (unsigned i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
    for (unsigned i = 0; i < 256; ++i) {
        if (lower[i] != i) table[lower[i]] = static_cast<unsigned char>(i);
    }
    return table;
}

inline constexpr ByteTable lowerTable = makeLowerTable();
inline constexpr ByteTable upperTable = makeUpperTable();

constexpr char toLower(char c) {
    return static_cast<char>(lowerTable[static_cast<unsigned char>(c)]);
}
constexpr char toUpper(char c) {
    return static_cast<char>(upperTable[static_cast<unsigned char>(c)]);
}

VORMANT_API std::string lowered(std::string_view text);
VORMANT_API std::string uppered(std::string_view text);

/// Equal, letter case aside.
VORMANT_API bool equalFolded(std::string_view a, std::string_view b);
/// Below 0, 0 or above 0, letter case aside, in the order of the lowered bytes.
VORMANT_API int compareFolded(std::string_view a, std::string_view b);
/// A hash that is the same for texts that differ only in letter case.
VORMANT_API std::uint32_t hashFolded(std::string_view text);

/// The Unicode character that a byte stands for, and the byte of a character, if it has one.
VORMANT_API char32_t characterOf(unsigned char byte);
VORMANT_API std::optional<char> byteOf(char32_t character);

/// Why a UTF-8 text could not be taken over.
struct VORMANT_API Utf8Error {
    size_t position = 0;     ///< byte position in the UTF-8 text, from 0
    char32_t character = 0;  ///< the character Windows-1252 lacks; 0 when the bytes are no UTF-8
    /// "character U+4E2D is not in Windows-1252" or "byte 0xFF is not UTF-8", position left out.
    std::string message(std::string_view utf8) const;
};

/// The text in Windows-1252. Nothing, with `error` filled in, when it cannot be taken over whole.
VORMANT_API std::optional<std::string> fromUtf8(std::string_view utf8, Utf8Error& error);
VORMANT_API std::optional<std::string> fromUtf8(std::string_view utf8);
VORMANT_API std::string toUtf8(std::string_view windows1252);

}  // namespace encodings
