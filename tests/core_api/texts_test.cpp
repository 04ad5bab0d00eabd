#include "core_api/texts/texts.h"

#include <gtest/gtest.h>

#include <set>

#include "core_api/texts/text_tables.h"
#include "platform/encodings.h"

namespace {

// A row out of order would never be found, a character beyond Windows-1252 would vanish.
TEST(Texts, EveryRowIsFoundInEveryLanguage) {
    std::set<int> numbers;
    for (const auto table : texts::allTables()) {
        for (const auto& row : table) {
            EXPECT_TRUE(numbers.insert(row.number).second) << row.number << " stands twice";
            for (int i = 0; i < languageCount; ++i) {
                const Vor_String word = dialString(row.number, static_cast<Language>(i));
                EXPECT_EQ(encodings::toUtf8(word), row.words[static_cast<size_t>(i)]);
                EXPECT_FALSE(word.isEmpty()) << row.number;
            }
        }
    }
}

TEST(Texts, FollowTheWorkingLanguage) {
    EXPECT_EQ(dialString(2).str(), "Cancel");
    gSettings.current().language = Language::german;
    EXPECT_EQ(dialString(285).str(),
              "Schlie\xDF"
              "en");
    EXPECT_EQ(gMacroLangs.GetCurLanguage().str(), "German");
    gSettings.current().language = Language::english;
    EXPECT_EQ(dialString(3).str(), "#3");
    EXPECT_EQ(dialString(-7).str(), "#-7");
    EXPECT_EQ(dialStringAllLangs(764)[3].str(), "Nouveau type");
}

}  // namespace
