#include "core_api/texts/language_codes.h"

#include <algorithm>
#include <array>

#include "platform/encodings.h"

std::optional<Language> languageOfCode(std::string_view code) {
    static constexpr std::array<std::string_view, languageCount> codes = {"en", "nl", "de", "fr"};
    const auto found = std::find_if(codes.begin(), codes.end(), [&](std::string_view each) {
        return encodings::equalFolded(each, code);
    });
    if (found == codes.end()) return std::nullopt;
    return static_cast<Language>(found - codes.begin());
}
