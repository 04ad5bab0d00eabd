// What the functions do and how their arguments are called, in the languages besides English, whose
// words stand in the functions' own rows (FunctionSpec). One table a family; arguments share one.
// UTF-8, as in the rows.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "core_api/settings.h"

namespace editor {

struct FunctionWords {
    std::string_view names;  ///< of one, or of several that say the same, with commas between
    std::array<std::string_view, languageCount - 1> words;  ///< Dutch, German, French
};

std::span<const FunctionWords> mathWords();
std::span<const FunctionWords> trigonometryWords();
std::span<const FunctionWords> statisticsWords();
std::span<const FunctionWords> matrixWords();
std::span<const FunctionWords> logicWords();
std::span<const FunctionWords> lookupWords();
std::span<const FunctionWords> textWords();
std::span<const FunctionWords> informationWords();
std::span<const FunctionWords> dateWords();
std::span<const FunctionWords> engineeringWords();

/// By the English names of arguments, without brackets and numbers.
std::span<const FunctionWords> argumentWords();

/// Empty when the table does not have `name`, and for English.
std::string_view wordsIn(Language language, std::span<const FunctionWords> table,
                         std::string_view name);
/// An argument as it stands in a function's row, "[number2]", in another language. As it is when
/// it has no words there.
std::string argumentIn(Language language, std::string_view argument);

}  // namespace editor
