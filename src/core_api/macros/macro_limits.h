// What a name, a number and a count inside a macro may be. Every set and the reading of macro files
// ask here, so a macro in memory is always one that can be saved and mapped.
#pragma once

#include <optional>
#include <string_view>

#include "platform/export.h"

inline constexpr int maxMacroNameLength = 255;  // bytes
inline constexpr double maxMacroNumber = 1e9;   // millimetres; a thousand kilometres
inline constexpr int maxBoltCount = 10000;      // bolts of one pattern in one direction
inline constexpr int maxMacroItems = 1000;      // modules of a macro; items of one kind in a module

/// A name of a module, group, variable, cut, pattern or placement: 1 to 255 bytes without control
/// characters and without the three separators of mapping files (0x83, 0x95, 0xBF), not beginning
/// with a dot, no blank at either end.
VORMANT_API bool isMacroName(std::string_view text);

/// A free text (section, material, member name, mapping key): up to 255 bytes, no control
/// characters; may be empty.
VORMANT_API bool isMacroText(std::string_view text);

/// Finite and within ±1e9.
VORMANT_API bool isMacroNumber(double number);

/// The number that the whole of `text` is, when isMacroNumber; blanks around it are allowed.
VORMANT_API std::optional<double> macroNumber(std::string_view text);

/// The bolt count that the whole of `text` is: a whole number from 0 to 10,000 ("4", also "4.0").
VORMANT_API std::optional<int> macroBoltCount(std::string_view text);
