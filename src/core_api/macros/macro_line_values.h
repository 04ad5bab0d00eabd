// The values of a macro file's lines, taken with a word on what is wrong with them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core_api/macros/macro_words.h"
#include "core_api/macros/vor_prpl.h"
#include "core_api/property_list.h"

namespace macro_file {

/// What is wrong with a line and what to do; empty when the line was taken.
using Damage = std::string;
/// The names that a key is made of, or the last of them.
using Names = std::span<const std::string>;

inline constexpr std::string_view outOfRange = "the value is out of range; correct it";
Damage unknownKey();

/// What a set or add of the model gave, as a damage.
inline Damage refusedAs(ErrorStatus status, std::string_view damage) {
    return status == Acad::eOk ? Damage() : Damage(damage);
}

/// A name as messages show it: between quotation marks, without control characters, not too long.
std::string quoted(std::string_view name);

Damage wrongType(std::string_view letter, std::string_view what);
/// Why an item of that name could not be added.
Damage nameDamage(std::string_view kind, std::string_view name);

/// Each leaves its output as it was when it reports a damage.
Damage readNumber(const Property& property, double& number);
Damage readFlag(const Property& property, bool& flag);
Damage readText(const Property& property, Vor_String& text);
/// One of the texts of a placement that stand on lines of their own.
Damage readPlacementText(const Property& property, const std::string& field, Vor_PrPl& placement);

template <class Words, class Value>
Damage readWord(const Property& property, const Words& words, Value& value) {
    if (property.type != Property::Type::text) return wrongType("s", "a text");
    const auto* row = findMacroWord(words, property.value);
    if (!row) return "this word is not known here; write one of " + macroWordList(words);
    value = row->value;
    return {};
}

}  // namespace macro_file
