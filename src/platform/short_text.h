// Short texts as two numbers, which compare and hash in few steps: names and words are looked up by
// the thousand.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace encodings {

/// Up to so many bytes, the ends of a text hold all of it.
inline constexpr std::size_t longestShortText = 16;

template <class Number>
std::uint64_t numberAt(const char* bytes) {
    Number number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

/// The first bytes and the last ones of a short text; between them they hold it all.
inline std::array<std::uint64_t, 2> endsOf(std::string_view text) {
    const char* const start = text.data();
    const char* const end = start + text.size();
    if (text.size() >= 8) return {numberAt<std::uint64_t>(start), numberAt<std::uint64_t>(end - 8)};
    if (text.size() >= 4) return {numberAt<std::uint32_t>(start), numberAt<std::uint32_t>(end - 4)};
    if (text.size() >= 2) return {numberAt<std::uint16_t>(start), numberAt<std::uint16_t>(end - 2)};
    return {text.empty() ? 0 : numberAt<std::uint8_t>(start), 0};
}

}  // namespace encodings
