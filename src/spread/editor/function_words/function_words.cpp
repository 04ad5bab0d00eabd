#include "spread/editor/function_words/function_words.h"

#include <algorithm>

namespace editor {

namespace {

bool isAmong(std::string_view names, std::string_view name) {
    while (!names.empty()) {
        const size_t end = std::min(names.find(','), names.size());
        if (names.substr(0, end) == name) return true;
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return false;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::string_view wordsIn(Language language, std::span<const FunctionWords> table,
                         std::string_view name) {
    if (language == Language::english) return {};
    for (const FunctionWords& row : table)
        if (isAmong(row.names, name)) return row.words[static_cast<size_t>(language) - 1];
    return {};
}

std::string argumentIn(Language language, std::string_view argument) {
    const size_t start = argument.starts_with('[') ? 1 : 0;
    size_t end = argument.size() - (argument.ends_with(']') ? 1 : 0);
    const auto words = [&] {
        return wordsIn(language, argumentWords(), argument.substr(start, end - start));
    };
    // "a1" is a name of its own, "number1" is not.
    std::string_view found = words();
    while (found.empty() && end > start + 1 && isDigit(argument[end - 1])) {
        --end;
        found = words();
    }
    if (found.empty()) return std::string(argument);
    return std::string(argument.substr(0, start)).append(found).append(argument.substr(end));
}

}  // namespace editor
