#include "core_api/texts/texts.h"

#include <algorithm>
#include <iterator>

#include "core_api/texts/text_tables.h"
#include "platform/encodings.h"

MacroLangs gMacroLangs;

namespace {

constexpr std::array<const char*, languageCount> languageNames = {"English", "Dutch", "German",
                                                                  "French"};

const texts::TextRow* findRow(int number) {
    for (const auto table : texts::allTables()) {
        const auto row = std::lower_bound(
            table.begin(), table.end(), number,
            [](const texts::TextRow& each, int wanted) { return each.number < wanted; });
        if (row != table.end() && row->number == number) return &*row;
    }
    return nullptr;
}

}  // namespace

Vor_String dialString(int number) {
    return dialString(number, gSettings.current().language);
}

Vor_String dialString(int number, Language language) {
    const texts::TextRow* row = findRow(number);
    if (!row) return "#" + std::to_string(number);
    return encodings::fromUtf8(row->words[static_cast<size_t>(language)]).value_or("");
}

Vor_StringArray dialStringAllLangs(int number) {
    Vor_StringArray words;
    for (int i = 0; i < languageCount; ++i) {
        words.append(dialString(number, static_cast<Language>(i)));
    }
    return words;
}

Vor_StringArray MacroLangs::GetAllLanguages() const {
    Vor_StringArray names;
    for (const char* name : languageNames) names.append(name);
    return names;
}

Vor_String MacroLangs::GetCurLanguage() const {
    return languageNames[static_cast<size_t>(gSettings.current().language)];
}
