#include "core_api/macros/macro_key.h"

std::string joinMacroKey(std::initializer_list<std::string_view> names) {
    std::string key;
    for (const std::string_view name : names) {
        if (!key.empty()) key += '.';
        for (const char character : name) key.append(character == '.' ? 2 : 1, character);
    }
    return key;
}

std::vector<std::string> splitMacroKey(std::string_view key) {
    std::vector<std::string> names(1);
    for (size_t at = 0; at < key.size(); ++at) {
        const bool isDot = key[at] == '.';
        const bool isDouble = isDot && at + 1 < key.size() && key[at + 1] == '.';
        if (!isDot || isDouble) {
            names.back() += key[at];
            at += isDouble ? 1 : 0;
        } else if (names.back().empty()) {
            return {};
        } else {
            names.emplace_back();
        }
    }
    if (names.back().empty()) return {};
    return names;
}
