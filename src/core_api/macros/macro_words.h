// The words that macro files use for kinds of modules and patterns and for flex states.
#pragma once

#include <array>
#include <string_view>

#include "core_api/macros/vor_bolt_module.h"

template <class Value>
struct MacroWord {
    std::string_view word;
    Value value;
};

inline constexpr std::array<MacroWord<Vor_ModuleType>, 5> moduleWords{{
    {"plate", Vor_ModuleType::plate},
    {"bolt", Vor_ModuleType::bolt},
    {"profile", Vor_ModuleType::profile},
    {"weld", Vor_ModuleType::weld},
    {"other", Vor_ModuleType::other},
}};

inline constexpr std::array<MacroWord<Vor_PatternType>, 3> patternWords{{
    {"row", Vor_PatternType::row},
    {"grid", Vor_PatternType::grid},
    {"circle", Vor_PatternType::circle},
}};

inline constexpr std::array<MacroWord<Vor_FlexState>, 3> flexWords{{
    {"none", Vor_FlexState::none},
    {"fixed", Vor_FlexState::fixed},
    {"flexible", Vor_FlexState::flexible},
}};

/// Null when no row has the word.
template <class Words>
auto findMacroWord(const Words& words, std::string_view word) -> decltype(words.data()) {
    for (const auto& row : words) {
        if (row.word == word) return &row;
    }
    return nullptr;
}

/// Empty when no row has the value.
template <class Words, class Value>
std::string_view macroWordOf(const Words& words, Value value) {
    for (const auto& row : words) {
        if (row.value == value) return row.word;
    }
    return {};
}

/// "plate, bolt, profile": what a message offers.
template <class Words>
std::string macroWordList(const Words& words) {
    std::string list;
    for (const auto& row : words) list.append(list.empty() ? "" : ", ").append(row.word);
    return list;
}
