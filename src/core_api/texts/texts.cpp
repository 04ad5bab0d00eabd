#include "core_api/texts/texts.h"

#include <algorithm>
#include <iterator>

#include "core_api/texts/text_tables.h"
#include "platform/encodings.h"

MacroLangs gMacroLangs;

namespace {

constexpr std::array<const char*, languageCount> languageNames = {"English", "Dutch", "German",
                                                                  "French"};

// The names of the values of sections.
constexpr int firstValueWord = 736, lastValueWord = 753;
constexpr int firstSigmaWord = 1684, lastSigmaWord = 1687;

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

Vor_String nameToShow(const Vor_StringArray& names) {
    const auto current = static_cast<int>(gSettings.current().language);
    if (names.isIndex(current) && !names[current].isEmpty()) return names[current];
    for (const Vor_String& name : names)
        if (!name.isEmpty()) return name;
    return {};
}

Vor_StringArray MacroLangs::GetAllLanguages() const {
    Vor_StringArray names;
    for (const char* name : languageNames) names.append(name);
    return names;
}

Vor_String MacroLangs::GetCurLanguage() const {
    return languageNames[static_cast<size_t>(gSettings.current().language)];
}

Vor_String MacroLangs::GetString(std::string_view section, const Vor_String& word) const {
    if (section != "Prof") return word;
    const size_t end = word.view().find_last_not_of("0123456789") + 1;
    const auto known = encodings::toUtf8(word.view().substr(0, end));
    for (const texts::TextRow& row : texts::sectionsTexts) {
        const bool isValue = (row.number >= firstValueWord && row.number <= lastValueWord) ||
                             (row.number >= firstSigmaWord && row.number <= lastSigmaWord);
        if (isValue && std::find(row.words.begin(), row.words.end(), known) != row.words.end())
            return dialString(row.number) + word.view().substr(end);
    }
    return word;
}
