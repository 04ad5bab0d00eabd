// A section values table in memory: names, active sizes, and what changes a row.
#include "sections/vor_prof_values_table.h"

#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"

namespace {

const Vor_StringArray header{"SysName", "I/O",    "English", "Dutch",
                             "German",  "French", "Height",  "Width"};

Vor_ProfValuesTable ipe() {
    Vor_ProfValuesTable table;
    table.tableName = "IPE";
    table.drawnAs = "1";
    table.columnNames = header;
    table.rows = {{"180", "1", "IPE 180", "IPE 180", "IPE 180", "IPE 180", "180", "91"},
                  {"200", "0", "IPE 200", "IPE 200", "IPE 200", "IPE 200", "200", "100"},
                  {"220", "", "IPE 220", "IPE 220", "IPE 220", "IPE 220", "220", "110"},
                  {"240", "2", "IPE 240", "IPE 240", "IPE 240", "IPE 240", "240", "120"},
                  {"270", "1", "IPE 270", "IPE 270", "IPE 270", "IPE 270", "270", "135"}};
    return table;
}

std::string joined(const Vor_StringArray& texts) {
    return arrToStr(texts, ",").str();
}

TEST(ProfValuesTable, CopiesAreDeep) {
    const Vor_ProfValuesTable table = ipe();
    Vor_ProfValuesTable copy = table;
    copy.rows[0][0] = "other";
    copy.columnNames[0] = "other";
    EXPECT_EQ(table.rows, ipe().rows);
    EXPECT_EQ(table.columnNames, header);
}

TEST(ProfValuesTable, HasAFifthLanguageOnlyWhenTheHeaderSaysKorean) {
    const struct {
        Vor_StringArray columns;
        int languages;
    } cases[] = {
        {{}, 4},
        {header, 4},
        {{"SysName", "I/O", "a", "b", "c", "d"}, 4},
        {{"SysName", "I/O", "a", "b", "c", "d", "Korean"}, 5},
        {{"SysName", "I/O", "a", "b", "c", "d", "korean", "h"}, 5},
        {{"SysName", "I/O", "a", "b", "c", "d", "Japanese", "h"}, 4},
        {{"SysName", "I/O", "a", "b", "c", "Korean"}, 4},
    };
    for (const auto& c : cases) {
        Vor_ProfValuesTable table;
        table.columnNames = c.columns;
        EXPECT_EQ(table.getNrLanguages(), c.languages) << joined(c.columns);
    }
}

TEST(ProfValuesTable, ReadsRowsAndColumnsInsideTheTableAlone) {
    Vor_ProfValuesTable table = ipe();
    table.rows[2].setLength(6);
    Vor_StringArray out{"kept"};
    for (const int bad : {-1, 5}) {
        EXPECT_FALSE(table.getRow(bad, out));
        EXPECT_FALSE(table.deleteRow(bad));
    }
    EXPECT_FALSE(table.getColumn(out, -1));
    EXPECT_FALSE(table.getColumn(out, 8));
    EXPECT_FALSE(table.getColumn(out, "Depth"));
    EXPECT_FALSE(Vor_ProfValuesTable().getColumn(out, 0));
    EXPECT_EQ(joined(out), "kept");
    ASSERT_TRUE(table.getColumn(out, "height"));
    EXPECT_EQ(joined(out), "180,200,,240,270");
    ASSERT_TRUE(table.getRow(4, out));
    EXPECT_EQ(joined(out), "270,1,IPE 270,IPE 270,IPE 270,IPE 270,270,135");
    ASSERT_TRUE(table.deleteRow(4));
    EXPECT_EQ(table.rows.length(), 4);
}

TEST(ProfValuesTable, OffersEverySizeThatIsNotInactive) {
    const Vor_ProfValuesTable table = ipe();
    Vor_StringArray names{"old"};
    table.getSysNames(names);
    EXPECT_EQ(joined(names), "IPE-180,IPE-200,IPE-220,IPE-240,IPE-270");
    table.getFilteredSysNames(names);
    EXPECT_EQ(joined(names), "IPE-180,IPE-220,IPE-240,IPE-270");
    // Flags that are neither "1" nor "0" are offered, but do not count as active.
    const int places[] = {0, 1, 1, 1, 1};
    for (int row = 0; row < 5; ++row) EXPECT_EQ(table.getfilteredIdx(row), places[row]) << row;
    EXPECT_EQ(table.getfilteredIdx(-1), -1);
    EXPECT_EQ(table.getfilteredIdx(5), -1);
}

TEST(ProfValuesTable, HasNoNamesWithoutRowsOrActiveFlags) {
    Vor_ProfValuesTable table;
    Vor_StringArray names{"old"};
    table.getSysNames(names);
    EXPECT_TRUE(names.isEmpty());
    table.rows = {{"180"}, {"200", "1"}};
    names = {"old"};
    table.getFilteredSysNames(names);
    EXPECT_TRUE(names.isEmpty());
    EXPECT_EQ(table.getfilteredIdx(0), -1);
}

TEST(ProfValuesTable, FindsSystemNamesAndUnusedOnes) {
    Vor_ProfValuesTable table = ipe();
    table.rows[0][0] = "A80";
    int row = -7;
    EXPECT_FALSE(table.findSysName("IPE-200", row));
    EXPECT_FALSE(Vor_ProfValuesTable().findSysName("200", row));
    EXPECT_EQ(row, -7);
    ASSERT_TRUE(table.findSysName("a80", row));
    EXPECT_EQ(row, 0);
    EXPECT_EQ(table.findUnusedSysName("201").str(), "201");
    EXPECT_EQ(table.findUnusedSysName("200").str(), "200_1");
    EXPECT_EQ(Vor_ProfValuesTable().findUnusedSysName("1").str(), "1");
}

TEST(ProfValuesTable, CopiesASizeUnderANameOfItsOwn) {
    const struct {
        const char* name;      // the user name in the working language
        const char* expected;  // that of the copy
    } cases[] = {{"IPE 200", "IPE 200_1"},
                 {"200 IPE", "IPE200_1"},
                 {"", "IPE200_1"},
                 {"beam", "beam200_1"},
                 {"I 2 x 3", "I 200_1"}};
    gSettings.current().language = Language::german;
    for (const auto& c : cases) {
        Vor_ProfValuesTable table = ipe();
        table.rows[1][4] = c.name;
        ASSERT_TRUE(table.insertRow(1));
        ASSERT_EQ(table.rows.length(), 6);
        EXPECT_EQ(table.rows[1][0].str(), "200");
        EXPECT_EQ(joined(table.rows[2]),
                  std::string("200_1,0,IPE 200,IPE 200,") + c.expected + ",IPE 200,200,100");
    }
    gSettings = Vor_Settings();
}

TEST(ProfValuesTable, InsertsAnEmptyRowAboveTheFirst) {
    Vor_ProfValuesTable table = ipe();
    ASSERT_TRUE(table.insertRow(-1));
    EXPECT_EQ(joined(table.rows[0]), "1,,IPE1,,,,,");
    EXPECT_EQ(table.rows.length(), 6);
    table.columnNames.clear();
    ASSERT_TRUE(table.insertRow(-1));
    EXPECT_TRUE(table.rows[0].isEmpty());
}

TEST(ProfValuesTable, HasNoCopyOfTheLastRow) {
    for (const int row : {-2, 4, 5}) {
        Vor_ProfValuesTable table = ipe();
        EXPECT_FALSE(table.insertRow(row)) << row;
        EXPECT_EQ(table.insertRow(row, "x", "X"), Acad::eInvalidInput) << row;
        EXPECT_EQ(table.rows, ipe().rows) << row;
    }
    Vor_ProfValuesTable empty;
    EXPECT_FALSE(empty.insertRow(-1));
}

TEST(ProfValuesTable, NamesGoToTheRowThatWasCopied) {
    Vor_ProfValuesTable table = ipe();
    ASSERT_EQ(table.insertRow(0, "190", "IPE 190"), Acad::eOk);
    EXPECT_EQ(joined(table.rows[0]), "190,1,IPE 190,IPE 190,IPE 190,IPE 190,180,91");
    EXPECT_EQ(joined(table.rows[1]), "180_1,1,IPE 180_1,IPE 180,IPE 180,IPE 180,180,91");
    table.rows[1].setLength(5);
    EXPECT_EQ(table.insertRow(1, "185", "IPE 185"), Acad::eInvalidInput);
    EXPECT_EQ(table.rows[1][0].str(), "185");
}

TEST(ProfValuesTable, SetsNamesAndValuesOfWholeRowsAlone) {
    Vor_ProfValuesTable table = ipe();
    table.rows[1] = {"200", "1", "a", "b", "c"};
    table.rows[2].clear();
    ASSERT_EQ(table.setUserNames(0, "I"), Acad::eOk);
    ASSERT_EQ(table.setValues(0, {180.25, 91}), Acad::eOk);
    EXPECT_EQ(joined(table.rows[0]), "180,1,I,I,I,I,180.3,91");
    const Vor_Array<Vor_StringArray> before = table.rows;
    EXPECT_EQ(table.setSysName(2, "x"), Acad::eInvalidInput);
    EXPECT_EQ(table.setSysName(-1, "x"), Acad::eInvalidInput);
    EXPECT_EQ(table.setUserNames(1, "x"), Acad::eInvalidInput);
    EXPECT_EQ(table.setUserNames(5, "x"), Acad::eInvalidInput);
    EXPECT_EQ(table.setValues(0, {1}), Acad::eInvalidInput);
    EXPECT_EQ(table.setValues(0, {1, 2, 3}), Acad::eInvalidInput);
    EXPECT_EQ(table.setValues(1, {}), Acad::eInvalidInput);
    EXPECT_EQ(table.setValues(5, {1, 2}), Acad::eInvalidInput);
    EXPECT_EQ(table.rows, before);
}

TEST(ProfValuesTable, KeepsWhatIsNotSaidToBeInactive) {
    Vor_ProfValuesTable table = ipe();
    table.rows.append({"1"});
    table.rows.append({});
    table.removeInactiveEntries();
    std::string names;
    for (const auto& row : table.rows) names += row.isEmpty() ? "-" : row[0].str() + ",";
    EXPECT_EQ(names, "180,220,240,270,1,-");
}

}  // namespace
