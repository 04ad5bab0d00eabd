#include "sections/section_types.h"

#include <gtest/gtest.h>

#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "sections/vor_prof_values_table.h"
#include "test_folders.h"

namespace {

TEST(SectionTypes, HaveTheirPicturesTextsAndColumns) {
    const struct {
        int type;
        const char* picture;
        const char* display;
        const char* columns;
    } cases[] = {
        {0, "", "<>", ""},
        {1, "ProfSectionI", "<I section>", "Height,Width,Web thickness,Flange thickness,Radius"},
        {3, "ProfSectionHL", "<Angle>",
         "Height,Width,Web thickness,Flange thickness,Root radius,Toe radius"},
        {4, "ProfSectionCU", "<Cold formed channel>",
         "Height,Flange width1,Flange width2,Thickness"},
        {9, "ProfSectionRound", "<Round bar>", "Diameter"},
        {13, "ProfSectionZ", "<Z section>", "Height,Lip1,Flange1,Flange2,Lip2,Thickness"},
        {19, "ProfSectionSigma+", "<Sigma section, unequal>",
         "Height,Width,Thickness,Web part1,Web part2,Web depth,Edge length1,Edge length2,Edge "
         "angle"},
        {24, "ProfSectionDouble Cleat", "<Double cleat>",
         "Height,Width,Thickness,Width1,Width2,Edge length,Edge angle"},
        {25, "", "<>", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(sectionTypePicture(c.type), c.picture) << c.type;
        EXPECT_EQ(sectionTypeDisplay(c.type).str(), c.display) << c.type;
        EXPECT_EQ(arrToStr(sectionTypeColumns(c.type), ",").str(), c.columns) << c.type;
    }
}

TEST(SectionTypes, AreFoundByWhatListsShowInEveryLanguage) {
    for (int language = 0; language < languageCount; ++language) {
        gSettings.current().language = static_cast<Language>(language);
        for (int type = 1; type <= sectionTypeCount; ++type)
            EXPECT_EQ(findSectionType(sectionTypeDisplay(type)), type) << language;
        for (const char* none : {"", "<>", "I section", "<I section", "Frame.dwg"})
            EXPECT_EQ(findSectionType(none), -1) << none;
    }
    gSettings = Vor_Settings();
}

TEST(SectionTypes, ATableNamesATypeByItsNumberAlone) {
    const struct {
        const char* drawnAs;
        int type;
        bool isDrawn;
    } cases[] = {{"1", 1, false},   {"24", 24, false},       {"0", -1, false},
                 {"25", -1, false}, {"-1", -1, false},       {"", -1, false},
                 {"1 ", -1, false}, {"Frame.DWG", -1, true}, {"99999999999", -1, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(sectionTypeNumber(c.drawnAs), c.type) << c.drawnAs;
        EXPECT_EQ(isDrawnTemplate(c.drawnAs), c.isDrawn) << c.drawnAs;
    }
}

TEST(SectionTypes, TablesOfTheSampleLibraryBeginWithTheirColumnsAndNameEverySize) {
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library/");
    for (const Vor_String& path : ObjectExportFindFiles(gSettings.libDir() + "prof\\", "*.pr")) {
        SCOPED_TRACE(path.view());
        Vor_ProfValuesTable table;
        ASSERT_TRUE(table.readFromPath(path));
        const int type = sectionTypeNumber(table.drawnAs);
        Vor_StringArray header{"SysName", "I/O"};
        header.appendAll(gMacroLangs.GetAllLanguages());
        header.appendAll(sectionTypeColumns(type, Language::english));
        ASSERT_GE(type, 1);
        ASSERT_GE(table.columnNames.length(), header.length());
        for (int i = 0; i < header.length(); ++i) EXPECT_EQ(table.columnNames[i], header[i]);
        for (const Vor_StringArray& row : table.rows) {
            ASSERT_EQ(row.length(), table.columnNames.length()) << row[0].view();
            EXPECT_EQ(row[Vor_ProfValuesTable::activeColumn].view(), "1");
            for (const Vor_String& cell : row) EXPECT_FALSE(cell.isEmpty()) << row[0].view();
        }
    }
    gSettings = Vor_Settings();
}

}  // namespace
