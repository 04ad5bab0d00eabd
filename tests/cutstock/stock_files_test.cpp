// Files of cutting-stock items: their names, which one counts, what is kept of the rows.
#include "cutstock/stock_files.h"

#include <gtest/gtest.h>

#include "core_api/texts/texts.h"
#include "cutstock/stock_library.h"
#include "support/failing_steps.h"

namespace {

using namespace cutstock;

class StockFiles : public testing::Test {
  protected:
    std::string folderOf(const char* item) {
        Vor_String message;
        return itemFolder(item, message).value_or("").str();
    }

    StockLibrary library;
    Vor_String message;
};

TEST_F(StockFiles, DefaultNamesCountOnFromTheLargestNumberThere) {
    struct Case {
        std::vector<const char*> files;
        const char* proposed;
    };
    const Case cases[] = {
        {{}, "Stock1.shp"},
        {{"Stock1.shp", "Stock7.shp"}, "Stock8.shp"},
        {{"stock9.SHP", "Stock007.shp"}, "Stock10.shp"},
        {{"Bars.shp", "Stock3.buy"}, "Stock1.shp"},
        {{"Stock.shp", "Stockade.shp", "Stock-4.shp", "Stock x5.shp"}, "Stock1.shp"},
        {{"My stock12 of May.shp"}, "Stock13.shp"},
        {{"Stock2.shp", "Stock99999999999999999999.shp", "Stock9223372036854775807.shp"},
         "Stock3.shp"},
    };
    int item = 0;
    for (const Case& row : cases) {
        const std::string name = "Item" + std::to_string(++item);
        for (const char* file : row.files) library.write(name + "/" + file, "");
        EXPECT_EQ(defaultFileName(folderOf(name.c_str()), stockKind), row.proposed) << name;
    }
}

TEST_F(StockFiles, TheFileChangedLastCountsAndTheFirstListedOfEquals) {
    EXPECT_FALSE(newestFile(folderOf("IPE"), purchaseKind));
    library.write("IPE/z.buy", "", 1000);
    library.write("IPE/newer.shp", "", 5000);
    EXPECT_EQ(newestFile(folderOf("IPE"), purchaseKind)->path, folderOf("IPE") + "z.buy");
    library.write("IPE/c.buy", "", 3000);
    library.write("IPE/b.BUY", "", 3000);
    library.write("IPE/a.buy", "", 2000);
    std::filesystem::create_directory(library.path("IPE/folder.buy"));
    const auto newest = newestFile(folderOf("IPE"), purchaseKind);
    EXPECT_EQ(newest->path, folderOf("IPE") + "b.BUY");
    EXPECT_EQ(newest->time, 3000'000'000'000);
}

TEST_F(StockFiles, NamesAreKeptInSmallLettersWithTheirExtension) {
    library.write("IPE/Old.shp", "");
    library.write("IPE/old.shp", "");
    const std::pair<const char*, const char*> cases[] = {
        {"Data.SHP", "data.shp"}, {"Data", "data.shp"},         {"Data.txt", "data.txt.shp"},
        {"data.shp", "data.shp"}, {"Stock8.shp", "stock8.shp"}, {"\xC4RMEL.shp", "\xE4rmel.shp"},
        {"shp", "shp.shp"},       {"OLD.SHP", "old.shp"},       {"Old.shp", "Old.shp"},
    };
    for (const auto& [chosen, kept] : cases)
        EXPECT_EQ(storedPath(folderOf("IPE") + chosen, stockKind), folderOf("IPE") + kept);
}

TEST_F(StockFiles, RowsComeBackButForWhatTheirSeparatorTearsApart) {
    struct Case {
        Rows rows;
        const char* file;
        Rows readBack;
    };
    const Case cases[] = {
        {{}, "", {}},
        {{{"12000", "3"}},
         "12000\xBF"
         "3\n",
         {{"12000", "3"}}},
        {{{"", ""}, {"a"}, {""}}, "\xBF\na\n\n", {{"", ""}, {"a"}, {""}}},
        {{{"a\xBF"
           "b",
           "c"}},
         "a\xBF"
         "b\xBF"
         "c\n",
         {{"a", "b", "c"}}},
        {{{" \"x\"\t;", "\x80"}}, " \"x\"\t;\xBF\x80\n", {{" \"x\"\t;", "\x80"}}},
    };
    const Vor_String path = folderOf("New") + "rows.shp";
    for (const Case& row : cases) {
        ASSERT_TRUE(saveRows(path, row.rows, message)) << message.str();
        EXPECT_EQ(library.read("New/rows.shp"), row.file);
        Rows read{{"before"}};
        EXPECT_TRUE(readRows(path, read, message));
        EXPECT_EQ(read, row.readBack);
    }
}

TEST_F(StockFiles, AnOldFileStaysWhenANewOneCannotBeWritten) {
    const Vor_String path = library.write("IPE/stock1.shp", "12000\n");
    EXPECT_FALSE(saveRows(path, {{"1"}, {"2\n3"}}, message));
    EXPECT_EQ(message, path + ":2: " + dialString(25202));
    for (const auto step : {FailingSteps::opening, FailingSteps::secondWrite,
                            FailingSteps::flushing, FailingSteps::renaming}) {
        const FailingSteps full(step, ENOSPC);
        EXPECT_FALSE(saveRows(path, {{"another length"}}, message));
        EXPECT_TRUE(message.hasSubString(path)) << message.str();
    }
    EXPECT_EQ(library.read("IPE/stock1.shp"), "12000\n");
    Rows rows{{"before"}};
    EXPECT_FALSE(readRows(path + "x", rows, message));
    EXPECT_EQ(rows, Rows());
}

TEST_F(StockFiles, WhatNoTableHasRoomForIsRefusedWithItsLine) {
    const std::string wide(16384, '\xBF');
    const std::pair<std::string, int> cases[] = {{"a\n" + wide.substr(1) + "\n", 0},
                                                 {"a\n" + wide + "\n", 2},
                                                 {std::string(1048577, '\n'), 1048577}};
    for (const auto& [text, line] : cases) {
        const Vor_String path = library.write("A/damaged.shp", text);
        Rows rows{{"before"}};
        EXPECT_EQ(readRows(path, rows, message), line == 0) << line;
        if (line == 0) continue;
        EXPECT_TRUE(rows.isEmpty());
        EXPECT_EQ(message.str().find(path.str() + ":" + std::to_string(line) + ": "), 0u)
            << message.str();
    }
}

TEST_F(StockFiles, FoldersAreMadeOfGoodNamesInALibraryOnly) {
    EXPECT_EQ(folderOf("IPE 200"), library.folder.inside() + "Cutting Stock\\IPE 200\\");
    for (const char* bad : {"", ".", "..", "..\\x", "a/b", "a:b", " a", "a ", "a.", "a\nb", "CON",
                            "com1.txt", "Lpt9 .x", "a?"})
        EXPECT_FALSE(itemFolder(bad, message)) << bad;
    EXPECT_TRUE(message.hasSubString("\"a?\": "));
    gSettings.setLibDir("");
    EXPECT_FALSE(itemFolder("IPE 200", message));
    EXPECT_EQ(message, dialString(25200));
}

// --- rows of items ------------------------------------------------------------------------------

TEST(ItemRows, AreReplacedAtTheEndAndRemovedWithTheirItem) {
    DlgCSP2Data data;
    data.itemIds = {4, -3};
    data.itemNames = {"A", "B"};
    // Those of item 4 do not stand together, which a caller should not hand in.
    data.tables[2] = {{"L"}, {4, -3, 4, 99}, {{"a"}, {"b"}, {"c"}, {"d"}}};
    EXPECT_EQ(rowsOf(data.tables[2], 4), (Rows{{"a"}, {"c"}}));
    replaceRows(data.tables[2], 4, {{"n"}});
    EXPECT_EQ(data.tables[2].rows, (Rows{{"b"}, {"d"}, {"n"}}));
    EXPECT_EQ(data.tables[2].rowItemIds, (AcArray<int>{-3, 99, 4}));
    EXPECT_FALSE(removeItem(data, 2));
    EXPECT_TRUE(removeItem(data, 0));
    EXPECT_EQ(data.tables[2].rows, (Rows{{"b"}, {"d"}}));
    EXPECT_EQ(data.itemNames, Vor_StringArray{"B"});
}

TEST(ItemRows, NewIdsAreOneMoreThanTheLargestAndPositive) {
    const int largest = std::numeric_limits<int>::max();
    const std::pair<AcArray<int>, int> cases[] = {
        {{}, 1}, {{0, -5}, 1}, {{3, 9, 2}, 10}, {{largest, 1, 2}, 3}};
    for (const auto& [ids, added] : cases) {
        DlgCSP2Data data;
        data.itemIds = ids;
        for (int i = 0; i < ids.length(); ++i) data.itemNames.append("x");
        EXPECT_EQ(addItem(data, "new"), ids.length());
        EXPECT_EQ(data.itemIds[ids.length()], added);
    }
}

}  // namespace
