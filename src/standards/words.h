// What counts as a word in equations: letters (ASCII), digits and underscores. Anything else,
// letters with accents too, is a boundary.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

inline constexpr std::array<bool, 256> wordCharacters = [] {
    std::array<bool, 256> table{};
    for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                         "0123456789_"))
        table[static_cast<unsigned char>(c)] = true;
    return table;
}();

inline bool isWordCharacter(char c) {
    return wordCharacters[static_cast<unsigned char>(c)];
}

inline bool isPlainWord(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isWordCharacter);
}

/// Calls word(text) for every word and other(text) for what stands between, in order.
template <class Word, class Other>
void eachWord(std::string_view text, Word&& word, Other&& other) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        const char* start = at;
        while (at != end && !isWordCharacter(*at)) ++at;
        if (at != start) other(std::string_view(start, static_cast<size_t>(at - start)));
        start = at;
        while (at != end && isWordCharacter(*at)) ++at;
        if (at != start) word(std::string_view(start, static_cast<size_t>(at - start)));
    }
}
