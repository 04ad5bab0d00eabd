// The catalogue of section groups and types, and its files.
#include "core_api/sections/section_catalogue.h"

#include <errno.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/dialog_data/dlg_edit_lib_data.h"
#include "core_api/settings.h"
#include "core_api/texts/texts.h"
#include "support/failing_steps.h"
#include "support/temporary_folder.h"

namespace {

class SectionCatalogueTest : public testing::Test {
  protected:
    SectionCatalogueTest() {
        gSettings.setLibDir(folder.inside());
        catalogue.groups.appendNewGrp();
        catalogue.groups.appendNewGrp();
        catalogue.groups.setLangs(0, {"", "Liggers", "Tr\xE4ger", "Pou\ttres"});
        catalogue.groups.setImage(0, "Beams.bmp");
        catalogue.groups.setEnabled(1, false);
        SectionType type;
        type.group = 2;
        type.remark = "line\nfeed \\";
        catalogue.types.append(type);
        catalogue.types.append({});
    }
    ~SectionCatalogueTest() override { gSettings = Vor_Settings(); }

    TemporaryFolder folder;
    SectionCatalogue catalogue;
};

TEST_F(SectionCatalogueTest, IsThereTheNextDay) {
    ASSERT_TRUE(writeSectionCatalogue(catalogue));  // there is no such folder before
    SectionCatalogue read;
    Vor_String message;
    ASSERT_TRUE(readSectionCatalogue(read, &message)) << message.view();
    EXPECT_TRUE(read == catalogue);
    EXPECT_TRUE(writeSectionCatalogue({}));
    EXPECT_TRUE(readSectionCatalogue(read));
    EXPECT_TRUE(read == SectionCatalogue());
}

TEST_F(SectionCatalogueTest, IsEmptyWithoutFiles) {
    EXPECT_TRUE(readSectionCatalogue(catalogue));
    EXPECT_TRUE(catalogue == SectionCatalogue());
    gSettings.setLibDir("");
    Vor_String message;
    EXPECT_FALSE(readSectionCatalogue(catalogue, &message));
    EXPECT_EQ(message, "no library folder is set; choose the library first");
    EXPECT_FALSE(writeSectionCatalogue(catalogue));
}

TEST_F(SectionCatalogueTest, SaysWhatIsWrongWhereAndKeepsWhatWasRead) {
    const std::string groupTitles = "Number\tEnabled\tPicture\tEnglish\tDutch\tGerman\tFrench\n";
    const std::string typeTitles =
        "Enabled\tPicture\tGroup\tRemark\tEnglish\tDutch\tGerman\tFrench\n";
    struct Row {
        const char* file;
        std::string text;
        const char* message;
    };
    const Row rows[] = {
        {"Groups.dat", "", ":1: the titles are others"},
        {"Groups.dat", "Number\tEnabled\n", ":1: the titles are others"},
        {"Groups.dat", groupTitles + "1\t1\t\ta\tb\tc\n", ":2: there are 6 fields in place of 7"},
        {"Groups.dat", groupTitles + "1\t1\t\ta\tb\tc\td\n1x\t1\t\ta\tb\tc\td\n",
         ":3: \"1x\" is no whole number"},
        {"Groups.dat", groupTitles + "1\tyes\t\ta\tb\tc\td\n", ":2: \"yes\" is neither 1"},
        {"Groups.dat", groupTitles + "1\t1\t\ta\tb\tc\td\n1\t1\t\ta\tb\tc\td\n",
         ":3: another group has this number"},
        {"Groups.dat", groupTitles + "1\t1\t\\\ta\tb\tc\td\n", ":2: a backslash stands alone"},
        {"Types.dat", typeTitles + "\t\t-1\t\ta\tb\tc\td\n", ":2: \"\" is neither 1"},
        {"Types.dat", typeTitles + "1\t\t\t\ta\tb\tc\td\n", ":2: \"\" is no whole number"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        folder.write(std::string("prof/") + row.file, row.text);
        SectionCatalogue kept = catalogue;
        Vor_String message;
        EXPECT_FALSE(readSectionCatalogue(kept, &message));
        EXPECT_THAT(message.str(), testing::HasSubstr(row.file + std::string(row.message)));
        EXPECT_TRUE(kept == catalogue);
        folder.write("prof/Groups.dat", groupTitles);
    }
}

TEST_F(SectionCatalogueTest, AFailedWriteLeavesTheOldFiles) {
    ASSERT_TRUE(writeSectionCatalogue(catalogue));
    const std::string before = folder.read("prof/Groups.dat");
    Vor_String message;
    {
        const FailingSteps disk(FailingSteps::flushing, ENOSPC);
        EXPECT_FALSE(writeSectionCatalogue({}, &message));
    }
    EXPECT_THAT(message.str(), testing::HasSubstr("Groups.dat"));
    EXPECT_EQ(folder.read("prof/Groups.dat"), before);
}

TEST_F(SectionCatalogueTest, GroupsKeepTheirNumbers) {
    SectionGroupArray& groups = catalogue.groups;
    EXPECT_TRUE(groups.removeAt(0));
    EXPECT_EQ(groups.getId(0), 2);
    EXPECT_EQ(groups.getId(groups.appendNewGrp()), 3);
    EXPECT_EQ(groups.getName(1), "New group");
    Vor_StringArray names;
    AcArray<long> ids;
    groups.namesOfAllGroups(names, ids);
    EXPECT_EQ(ids, (AcArray<long>{2, 3}));
    EXPECT_EQ(names.length(), 2);
    for (const int none : {-1, 2}) {
        EXPECT_FALSE(groups.removeAt(none) || groups.setEnabled(none, true) ||
                     groups.setImage(none, "a") || groups.setLangs(none, {}) ||
                     groups.getEnabled(none));
        EXPECT_EQ(groups.getName(none), "");
        EXPECT_EQ(groups.getId(none), -1);
    }
}

TEST_F(SectionCatalogueTest, NamesFollowTheWorkingLanguageWhereThereIsOne) {
    EXPECT_EQ(catalogue.groups.getName(0), "Liggers");  // there is no English one
    gSettings.current().language = Language::german;
    EXPECT_EQ(catalogue.groups.getName(0), "Tr\xE4ger");
    EXPECT_EQ(catalogue.types[0].getName(), "Neuer Typ");
    gSettings.current().language = Language::english;
}

TEST_F(SectionCatalogueTest, TheDialogsDataListsFilesAndKeepsWhyItCouldNotRead) {
    for (const char* file : {"prof/HEA.pr", "prof/ipe.PR", "prof/Castellated.dwg", "prof/a.txt"})
        folder.write(file, "");
    folder.write("prof/Types.dat", "?\n");
    DlgEditLibData data;
    data.GetAvailableFiles();
    EXPECT_EQ(data.tableNames, (Vor_StringArray{"HEA", "ipe"}));
    EXPECT_EQ(data.templateNames, (Vor_StringArray{"Castellated.dwg"}));
    EXPECT_FALSE(data.readCatalogue());
    EXPECT_THAT(data.catalogueProblem().str(), testing::HasSubstr("Types.dat:1: "));
    data.catalogue = catalogue;
    EXPECT_TRUE(data.writeCatalogue());
    EXPECT_EQ(data.catalogueProblem(), "");
    DlgEditLibData again;
    EXPECT_TRUE(again.readCatalogue());
    EXPECT_TRUE(again.catalogue == catalogue);
}

TEST(MacroLangs, TranslatesTheValuesOfSections) {
    gSettings.current().language = Language::german;
    EXPECT_EQ(gMacroLangs.GetString("Prof", "Height"), "H\xF6he");
    EXPECT_EQ(gMacroLangs.GetString("Prof", "Breedte2"), "Breite2");
    EXPECT_EQ(gMacroLangs.GetString("Prof", "Mass kg/m"), "Mass kg/m");
    EXPECT_EQ(gMacroLangs.GetString("", "Height"), "Height");
    gSettings.current().language = Language::english;
    EXPECT_EQ(gMacroLangs.GetString("Prof", "H\xF6he"), "Height");
}

}  // namespace
