// A section values table on its ways out: its file, a sheet, the registry.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/files.h"
#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "sections/vor_prof_values_table.h"
#include "spread/vor_spread.h"
#include "support/temporary_folder.h"

namespace {

class ProfValuesFiles : public testing::Test {
  protected:
    ProfValuesFiles() {
        gSettings.setLibDir(folder.inside());
        table.tableName = "RHS";
        table.drawnAs = "10";
        table.columnNames = {"SysName", "I/O",    "English", "Dutch", "German",
                             "French",  "Height", "Width",   "Wall"};
        table.rows = {
            {"50x30x3.2", "1", "RHS 50 x 30 x 3.2", "K\tr", "", "=A1", "050", "30.0", "3.2"},
            {"50x30x4", "0", "", "", "", "\xC9", "50", "30"},
            {"60x40x4", "2", "", "", "", "", "1e3", "", "TRUE"}};
    }
    ~ProfValuesFiles() override { gSettings = Vor_Settings(); }

    static Vor_ProfValuesTable read(const Vor_String& name) {
        Vor_ProfValuesTable made;
        Vor_String message;
        EXPECT_TRUE(made.readFromFile(name, &message)) << message.view();
        return made;
    }
    static void expectEqual(const Vor_ProfValuesTable& a, const Vor_ProfValuesTable& b) {
        EXPECT_EQ(a.tableName.str(), b.tableName.str());
        EXPECT_EQ(a.drawnAs.str(), b.drawnAs.str());
        EXPECT_EQ(a.columnNames, b.columnNames);
        EXPECT_EQ(a.rows, b.rows);
    }

    TemporaryFolder folder;
    Vor_ProfValuesTable table;
};

TEST_F(ProfValuesFiles, ReadsBackWhatItWroteUnderEitherName) {
    ASSERT_TRUE(table.writeToFile("RHS"));  // there is no such folder before
    EXPECT_TRUE(ObjectExportFileExists(folder.inside("prof\\RHS.pr")));
    expectEqual(read("RHS"), table);
    expectEqual(read("RHS.pr"), table);
    table.rows.removeAt(0);
    ASSERT_TRUE(table.writeToFile("rhs.PR"));
    expectEqual(read("RHS"), table);
}

TEST_F(ProfValuesFiles, TheNameIsTheFiles) {
    ASSERT_TRUE(table.writeToFile("Tubes"));
    EXPECT_EQ(read("Tubes").tableName.str(), "Tubes");
    EXPECT_EQ(table.tableName.str(), "RHS");
}

TEST_F(ProfValuesFiles, TellWhyAndWhereTheyCannotBeRead) {
    folder.write("prof/BAD.pr", "1\nSysName\tI/O\n200\t\\x\n");
    Vor_ProfValuesTable kept = table;
    Vor_String message;
    EXPECT_FALSE(kept.readFromFile("BAD", &message));
    EXPECT_EQ(message.str(),
              folder.inside("prof\\BAD.pr") + ":3: a backslash stands alone; write it twice");
    EXPECT_FALSE(kept.readFromFile("NONE", &message));
    EXPECT_THAT(message.str(), testing::HasSubstr("NONE.pr: No such file"));
    expectEqual(kept, table);
    gSettings.setLibDir("");
    EXPECT_FALSE(kept.readFromFile("RHS", &message));
    EXPECT_FALSE(kept.writeToFile("RHS", &message));
    EXPECT_EQ(message.str(), "no library folder is set; choose the library first");
}

TEST_F(ProfValuesFiles, AFileWithoutHeaderGivesItsRecordsAsRows) {
    folder.write("prof/ONE.pr", "3\n");
    folder.write("prof/NIL.pr", "");
    folder.write("prof/TWO.pr", "\nSysName\n");
    for (const auto& [name, rows] : {std::pair{"ONE", 1}, {"NIL", 0}}) {
        Vor_ProfValuesTable made = table;
        ASSERT_TRUE(made.readFromFile(name));
        EXPECT_EQ(made.rows.length(), rows);
        EXPECT_EQ(made.drawnAs.str(), "10");
        EXPECT_EQ(made.columnNames, table.columnNames);
    }
    const Vor_ProfValuesTable two = read("TWO");
    EXPECT_EQ(two.columnNames, Vor_StringArray{"SysName"});
    EXPECT_TRUE(two.rows.isEmpty());
}

TEST_F(ProfValuesFiles, TheRegistryGetsEverySizeWithoutItsFlag) {
    const struct {
        const char* drawnAs;
        const char* registered;
    } cases[] = {{"10", "10"}, {"", ""}, {"Frame.dwg", "Prof\\Frame.dwg"}};
    Vor_SectionTableManager manager;
    for (const auto& c : cases) {  // each takes the place of the one before
        table.drawnAs = c.drawnAs;
        ASSERT_EQ(table.setToGlobals(&manager), Acad::eOk);
        int index = -1;
        ASSERT_TRUE(manager.hasTable("rhs", index));
        EXPECT_EQ(manager.table(index)->drawnAs().str(), c.registered);
        EXPECT_EQ(manager.tableNames().length(), 1);
    }
    const SectionTable& registered = *manager.table(0);
    EXPECT_EQ(arrToStr(registered.header(), ",").str(),
              "SysName,English,Dutch,German,French,Height,Width,Wall");
    EXPECT_EQ(registered.rows().length(), 3);
    EXPECT_EQ(arrToStr(registered.rows()[1], ",").str(), "50x30x4,,,,\xC9,50,30");
    EXPECT_EQ(table.rows[1].length(), 8);
    EXPECT_EQ(table.setToGlobals(nullptr), Acad::eInvalidInput);
}

TEST_F(ProfValuesFiles, TheRegistryTakesATableThatWasEdited) {
    ASSERT_TRUE(table.writeToFile("RHS"));
    table.rows[0][6] = "55";
    ASSERT_EQ(table.setToGlobals(&gSectionTables), Acad::eOk);
    Vor_String height;
    ASSERT_EQ(getSectionValue("RHS-50x30x3.2", 0, height), Acad::eOk);
    EXPECT_EQ(height.str(), "55");
    int index = -1;
    ASSERT_TRUE(gSectionTables.hasTable("RHS", index));
    gSectionTables.removeTable(index);
    gSectionTables.reload();
}

TEST_F(ProfValuesFiles, ASheetGivesTheTableBackAsItWas) {
    Vor_Spread sheet;
    EXPECT_FALSE(table.setToSS(sheet));
    ASSERT_TRUE(sheet.attachHidden());
    ASSERT_TRUE(table.setToSS(sheet));
    EXPECT_EQ(sheet.nrCols(), 9);
    EXPECT_EQ(sheet.nrRows(), 3);
    EXPECT_EQ(sheet.getCellType(2, 1), static_cast<int>(control::CellKind::checkBox));
    EXPECT_EQ(sheet.getCellType(3, 1), static_cast<int>(control::CellKind::general));
    EXPECT_FALSE(sheet.getBool(static_cast<int>(control::Option::changed)));
    EXPECT_TRUE(sheet.getBool(static_cast<int>(control::Option::repaint)));
    Vor_String text;
    for (int row = 1; row <= 3; ++row) {
        sheet.getCellText(Vor_Spread::headerIndex, row, text, Vor_Spread::Reading::data);
        EXPECT_EQ(text.str(), "RHS");
    }
    Vor_ProfValuesTable back;
    back.drawnAs = "kept";
    ASSERT_TRUE(back.getFromSS(sheet));
    table.drawnAs = "kept";
    table.rows[1].append("");  // a sheet has no short rows
    expectEqual(back, table);
}

TEST_F(ProfValuesFiles, ASheetWithoutCellsIsNotTakenBack) {
    Vor_Spread sheet;
    ASSERT_TRUE(sheet.attachHidden());
    table.setToSS(sheet);
    EXPECT_FALSE(Vor_ProfValuesTable().setToSS(sheet));
    EXPECT_EQ(sheet.nrRows(), 0);
    EXPECT_EQ(sheet.nrCols(), 0);
    EXPECT_TRUE(sheet.getBool(static_cast<int>(control::Option::repaint)));
    const Vor_ProfValuesTable before = table;
    EXPECT_FALSE(table.getFromSS(sheet));
    expectEqual(table, before);
}

}  // namespace
