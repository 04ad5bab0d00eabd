// The functions that a formula calls, for tests that count or sort formulas by them.
#pragma once

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "platform/encodings.h"

/// The names followed by "(" in a formula, upper case, texts in quotes left out.
inline std::vector<std::string> calledFunctions(std::string_view formula) {
    std::vector<std::string> names;
    std::string word;
    bool inText = false;
    for (const char c : formula) {
        if (c == '"') inText = !inText;
        const bool isWordCharacter =
            std::isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '_' || c < 0;
        if (!inText && c == '(' && !word.empty()) names.push_back(encodings::uppered(word));
        if (inText || !isWordCharacter)
            word.clear();
        else
            word += c;
    }
    return names;
}
