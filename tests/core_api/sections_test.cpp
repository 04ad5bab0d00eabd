#include "core_api/sections/section_tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "support/printed.h"
#include "support/temporary_folder.h"
#include "test_folders.h"

namespace {

using testing::EndsWith;

class SectionTables : public testing::Test {
  protected:
    SectionTables() {
        folder.write("Prof/IPE.pr",
                     "1\nSysName\tI/O\tEnglish\tDutch\tDeutsch\tFran\xE7"
                     "ais\th\tb\n"
                     "200\t1\tIPE 200\tIPE 200\tIPE 200\tIPE 200\t200\t100\n"
                     "220\t0\tIPE 220\tIPE-220 NL\t\t\t220\t110\n");
        folder.write("Prof/RHS.pr",
                     "5\nSysName\tI/O\tEnglish\tDutch\tDeutsch\tFrancais\tKorean\th\tb\tt\n"
                     "100x50x4\t1\tRHS 100x50x4\tK 100x50x4\t\t\t\t100\t50\n");
        gSettings.setLibDir(folder.inside());
        gSectionTables.reload();
    }
    ~SectionTables() override {
        gSettings = Vor_Settings();
        gSectionTables.reload();
    }

    TemporaryFolder folder;
};

TEST_F(SectionTables, ValuesBySystemAndUserName) {
    const struct {
        const char* section;
        int index;
        const char* value;  // null: refused
    } cases[] = {
        {"IPE-200", 0, "200"},    {"ipe-220", 1, "110"},        {"IPE 200", 1, "100"},
        {"IPE-220 nl", 0, "220"}, {"RHS-100x50x4", 0, "100"},   {"rhs-100X50X4", 1, "50"},
        {"K 100x50x4", 1, "50"},  {"RHS-100x50x4", 2, nullptr}, {"IPE-200", -1, nullptr},
        {"IPE-200", 2, nullptr},  {"IPE-201", 0, nullptr},      {"HEA-200", 0, nullptr},
        {"", 0, nullptr},         {"-200", 0, nullptr},
    };
    for (const auto& c : cases) {
        Vor_String text("kept");
        const bool found = getSectionValue(c.section, c.index, text) == Acad::eOk;
        EXPECT_EQ(found, c.value != nullptr) << c.section << " " << c.index;
        EXPECT_EQ(text.str(), c.value ? c.value : "kept") << c.section << " " << c.index;
    }
}

TEST_F(SectionTables, NamesAndColumns) {
    Vor_String name;
    ASSERT_TRUE(gSectionTables.getSystemName("ipe-220 NL", name));
    EXPECT_EQ(name.str(), "IPE-220");
    gSettings.current().language = Language::dutch;
    ASSERT_TRUE(gSectionTables.getUserName("IPE-220", name));
    EXPECT_EQ(name.str(), "IPE-220 NL");
    gSettings.current().language = Language::french;
    EXPECT_FALSE(gSectionTables.getUserName("IPE-220", name));
    Vor_StringArray columns;
    ASSERT_EQ(getSectionColumnNames("RHS-100x50x4", columns), Acad::eOk);
    EXPECT_EQ(arrToStr(columns, ",").str(), "h,b,t");
}

TEST_F(SectionTables, RegisteredTablesReplaceThoseOfFiles) {
    int index = -1;
    const Vor_StringArray header{"SysName", "English", "Dutch", "German", "French", "h"};
    const Vor_Array<Vor_StringArray> rows{{"200", "IPE 200 new", "", "", "", "201"}};
    EXPECT_EQ(gSectionTables.addSectionTable("ipe.pr", "1", header, rows), Acad::eInvalidInput);
    ASSERT_TRUE(gSectionTables.hasTable("ipe", index));
    ASSERT_EQ(gSectionTables.removeTable(index), Acad::eOk);
    ASSERT_EQ(gSectionTables.addSectionTable("IPE.pr", "1", header, rows), Acad::eOk);
    Vor_String text;
    ASSERT_EQ(getSectionValue("IPE 200 new", 0, text), Acad::eOk);
    EXPECT_EQ(text.str(), "201");
    EXPECT_EQ(getSectionValue("IPE-220", 0, text), Acad::eInvalidInput);
    ASSERT_TRUE(gSectionTables.hasTable("IPE", index));
    gSectionTables.removeTable(index);
}

TEST_F(SectionTables, RegisteredTablesOfFilesGoWithTheirLibrary) {
    const Vor_StringArray header{"SysName", "English", "Dutch", "German", "French", "h"};
    const Vor_Array<Vor_StringArray> rows{{"200", "new", "", "", "", "201"}};
    int index = -1;
    ASSERT_TRUE(gSectionTables.hasTable("IPE", index));
    gSectionTables.removeTable(index);
    ASSERT_EQ(gSectionTables.addSectionTable("IPE.pr", "1", header, rows), Acad::eOk);
    ASSERT_EQ(gSectionTables.addSectionTable("HOST.pr", "1", header, rows), Acad::eOk);
    const Vor_StringArray names = gSectionTables.tableNames();
    EXPECT_EQ(names.find("IPE"), index) << "where it was";
    EXPECT_EQ(names.find("HOST"), names.length() - 1);
    const TemporaryFolder other;
    gSettings.setLibDir(other.inside());
    EXPECT_FALSE(gSectionTables.hasTable("IPE", index)) << "of another library";
    ASSERT_TRUE(gSectionTables.hasTable("HOST", index)) << "a host's own";
    gSectionTables.removeTable(index);
}

// Of two tables with one name the one that a host registered counts, wherever both stand; those of
// files keep the alphabet.
TEST_F(SectionTables, StandInOneOrderWhoeverBroughtThem) {
    const Vor_StringArray header{"SysName", "English", "Dutch", "German", "French", "h"};
    const auto rowsOf = [](const char* h) {
        return Vor_Array<Vor_StringArray>{{"200", "", "", "", "", h}};
    };
    for (const char* name : {"AA", "KA", "ZZ"})
        folder.write("Prof/" + std::string(name) + ".pr",
                     "9\nSysName\tI/O\tE\tD\tG\tF\th\n200\t1\t\t\t\t\t1\n");
    gSectionTables.reload();
    EXPECT_EQ(arrToStr(gSectionTables.tableNames(), " ").str(), "AA IPE KA RHS ZZ");
    for (const char* name : {"KA", "AA", "zz", "RHS"}) {
        int index = -1;
        ASSERT_TRUE(gSectionTables.hasTable(name, index));
        gSectionTables.removeTable(index);
        ASSERT_EQ(
            gSectionTables.addSectionTable(Vor_String(name) + ".pr", "1", header, rowsOf("2")),
            Acad::eOk);
        EXPECT_EQ(gSectionTables.tableNames()[index].str(), name);
    }
    ASSERT_EQ(gSectionTables.addSectionTable("HOST.pr", "1", header, rowsOf("3")), Acad::eOk);
    const TemporaryFolder other;
    other.write("prof/HOST.pr", "9\nSysName\tI/O\tE\tD\tG\tF\th\n200\t1\t\t\t\t\t4\n");
    gSettings.setLibDir(other.inside());
    Vor_String text;
    ASSERT_EQ(getSectionValue("host-200", 0, text), Acad::eOk);
    EXPECT_EQ(text.str(), "3");
    EXPECT_EQ(arrToStr(gSectionTables.tableNames(), " ").str(), "HOST HOST");
    int index = -1;
    ASSERT_TRUE(gSectionTables.hasTable("HOST", index));
    EXPECT_EQ(index, 1);
    gSectionTables.removeTable(index);
    ASSERT_EQ(getSectionValue("host-200", 0, text), Acad::eOk);
    EXPECT_EQ(text.str(), "4");
}

TEST_F(SectionTables, FollowTheLibraryAndTellOfDamageOnce) {
    const TemporaryFolder other;
    other.write("prof/BAD.pr", "1\nSysName\t\\x\n");
    other.write("prof/EMPTY.pr", "");
    gSettings.setLibDir(other.inside());
    Printed host;
    const HostScope scope(host);
    Vor_String text;
    EXPECT_EQ(getSectionValue("IPE-200", 0, text), Acad::eInvalidInput);
    EXPECT_EQ(getSectionValue("BAD-200", 0, text), Acad::eInvalidInput);
    EXPECT_EQ(host.text, other.inside("prof\\BAD.pr") +
                             ":2: a backslash stands alone; write it twice\n" +
                             other.inside("prof\\EMPTY.pr") +
                             ":1: the section table has no column names; restore the file\n");
    gSettings.setLibDir(folder.inside());
    EXPECT_EQ(getSectionValue("IPE-200", 0, text), Acad::eOk);
}

TEST_F(SectionTables, ShortRowsAndRepeatedNamesAreHarmless) {
    folder.write("Prof/ODD.pr",
                 "\nSysName\tI/O\tE\tD\tG\tF\th\n1\n\n2\t1\tIPE 200\n1\t1\tagain\t\t\t\t7\n");
    gSectionTables.reload();
    Vor_String text("kept");
    EXPECT_EQ(getSectionValue("ODD-1", 0, text), Acad::eInvalidInput);  // the first row counts
    EXPECT_EQ(getSectionValue("ODD-2", 0, text), Acad::eInvalidInput);
    EXPECT_EQ(getSectionValue("ODD-", 0, text), Acad::eInvalidInput);
    EXPECT_EQ(text.str(), "kept");
    ASSERT_EQ(getSectionValue("again", 0, text), Acad::eOk);
    EXPECT_EQ(text.str(), "7");
    // Of two tables with one user name the alphabet's first has it.
    ASSERT_TRUE(gSectionTables.getSystemName("ipe 200", text));
    EXPECT_EQ(text.str(), "IPE-200");
}

TEST_F(SectionTables, EverySizeOfTheSampleLibraryIsFoundByBothNames) {
    std::string library = VORMANT_SOURCE_DIR "/library";
    gSettings.setLibDir(library);
    const Vor_StringArray names = gSectionTables.tableNames();
    if (names.isEmpty()) GTEST_SKIP() << "no section tables in " << library;
    for (int i = 0; i < names.length(); ++i) {
        const SectionTable* table = gSectionTables.table(i);
        ASSERT_NE(table, nullptr) << names[i].str();
        for (int row = 0; row < table->rows().length(); ++row) {
            const Vor_String name = table->fullName(row);
            const auto bySystemName = gSectionTables.find(name);
            EXPECT_TRUE(bySystemName.table == table && bySystemName.row == row) << name.str();
            const auto byUserName = gSectionTables.find(table->userName(row, 0));
            EXPECT_TRUE(byUserName.table == table && byUserName.row == row) << name.str();
            for (int column = 0; column < table->valueColumns().length(); ++column) {
                const Vor_String* value = table->value(row, column);
                EXPECT_TRUE(value && isNumber(*value)) << name.str() << " column " << column;
            }
        }
    }
}

}  // namespace
