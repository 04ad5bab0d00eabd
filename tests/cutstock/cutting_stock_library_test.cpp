// The cutting-stock items of a library: what is edited is there the next day, what cannot be read
// is left alone.
#include "cutstock/cutting_stock_library.h"

#include <gtest/gtest.h>

#include "cutstock/item_rows.h"
#include "cutstock/stock_library.h"
#include "platform/paths.h"
#include "test_folders.h"

namespace {

using cutstock::CuttingStockLibrary;

class StockedLibrary : public testing::Test {
  protected:
    DlgCSP2Data sample() const {
        DlgCSP2Data data;
        data.itemIds = {4, 9};
        data.itemNames = {"IPE 200", "HEA 200"};
        data.tables[0] = {{"Mark", "Length"}, {9, 4}, {{"C\t1", "3480"}, {"B1", "5400"}}};
        data.tables[1] = {{"Length"}, {4}, {{"12100"}}};
        data.tables[2] = {{"Price"}, {9, 9}, {{"47.20"}, {"58.90"}}};
        return data;
    }
    static cutstock::Rows rowsOf(const DlgCSP2Data& data, int table, int item) {
        return cutstock::rowsOf(data.tables[static_cast<size_t>(table)], item);
    }

    StockLibrary files;
    CuttingStockLibrary library;
    Vor_String message;
};

TEST_F(StockedLibrary, IsTheSameWhenItIsLoadedAgain) {
    const DlgCSP2Data saved = sample();
    ASSERT_TRUE(library.save(saved, message)) << message.str();
    DlgCSP2Data loaded;
    ASSERT_TRUE(CuttingStockLibrary().load(loaded, message)) << message.str();
    EXPECT_EQ(loaded.itemIds, saved.itemIds);
    EXPECT_EQ(loaded.itemNames, saved.itemNames);
    for (int table = 0; table < DlgCSP2Data::tableCount; ++table) {
        EXPECT_EQ(loaded.tables[static_cast<size_t>(table)].columnNames,
                  saved.tables[static_cast<size_t>(table)].columnNames);
        for (const int item : {4, 9})
            EXPECT_EQ(rowsOf(loaded, table, item), rowsOf(saved, table, item)) << table << item;
    }
}

TEST_F(StockedLibrary, OnlyChangedTablesGetAnotherFile) {
    DlgCSP2Data data = sample();
    ASSERT_TRUE(library.save(data, message));
    files.write("IPE 200/stock1.shp", "12100\n", 1000);  // surely older than what is saved next
    ASSERT_TRUE(library.save(data, message));
    EXPECT_FALSE(files.has("IPE 200/stock2.shp"));
    data.tables[1].rows[0][0] = "6050";
    ASSERT_TRUE(library.save(data, message));
    EXPECT_EQ(files.read("IPE 200/stock2.shp"), "6050\n");
    EXPECT_FALSE(files.has("HEA 200/stock1.shp"));
    EXPECT_FALSE(files.has("HEA 200/stock2.buy"));
}

TEST_F(StockedLibrary, WhatCannotBeReadIsNamedByItsLineAndLeftAlone) {
    struct Case {
        const char* text;
        int line;
    };
    const Case cases[] = {
        {"Item\t1\tA\nPart\t2\tB1\n", 2},
        {"Item\t1\tA\nItem\t1\tB\n", 2},
        {"Item\t1\tA\nItem\t2\ta\n", 2},
        {"Item\t1\tA/B\n", 1},
        {"Columns\t4\tX\n", 1},
        {"Columns\t1\tX\nItem\t1\n", 2},
        {"Item\tone\tA\n", 1},
        {"\n", 1},
        {"Item\t1\tA\\x\n", 1},
        {"Stock\t1\tA\n", 1},
        {"Item\t1x\tA\n", 1},
    };
    for (const Case& each : cases) {
        const std::string path = files.write("Items.dat", each.text);
        DlgCSP2Data data = sample();
        EXPECT_FALSE(library.load(data, message)) << each.text;
        EXPECT_EQ(message.str().rfind(path + ":" + std::to_string(each.line) + ": ", 0), 0u)
            << message.str();
        EXPECT_EQ(data.itemNames, sample().itemNames);
        EXPECT_TRUE(library.wouldReplaceUnread());
    }
}

TEST_F(StockedLibrary, AsksBeforeItReplacesWhatAnotherProgramWrote) {
    DlgCSP2Data data;
    ASSERT_TRUE(library.load(data, message));
    EXPECT_FALSE(library.wouldReplaceUnread());
    ASSERT_TRUE(library.save(sample(), message));
    EXPECT_FALSE(library.wouldReplaceUnread());
    files.write("Items.dat", "Item\t1\tIPE 300\n");
    EXPECT_TRUE(library.wouldReplaceUnread());
    EXPECT_FALSE(library.save(sample(), message)) << "also when it came behind the question";
    EXPECT_NE(message.str().find("changed it meanwhile"), std::string::npos) << message.str();
    EXPECT_EQ(files.read("Items.dat"), "Item\t1\tIPE 300\n");
    ASSERT_TRUE(library.load(data, message));
    EXPECT_FALSE(library.wouldReplaceUnread());
    files.write("Items.dat", "Item\t1\tIPE 360\n");
    library.replaceUnread();
    EXPECT_TRUE(library.save(sample(), message)) << message.str();
}

TEST_F(StockedLibrary, WritesNothingThatCouldNotBeReadAgain) {
    const std::string path = files.write("Items.dat", "Item\t1\tIPE 300\n");
    for (const char* name : {"IPE/200", "HEA 200", " L", ""}) {
        DlgCSP2Data data = sample();
        data.itemNames[0] = name;
        EXPECT_FALSE(library.save(data, message)) << name;
        EXPECT_EQ(message.str().find('"' + std::string(name) + '"'), 0u) << message.str();
        EXPECT_EQ(files.read("Items.dat"), "Item\t1\tIPE 300\n");
        EXPECT_FALSE(files.has("HEA 200"));
    }
    gSettings.setLibDir("");
    EXPECT_FALSE(library.save(sample(), message));
}

TEST_F(StockedLibrary, SaysWhichFileCannotBeWrittenAndWritesTheOthers) {
    DlgCSP2Data data = sample();
    data.tables[1].rows[0][0] = "12100\n6050";
    EXPECT_FALSE(library.save(data, message));
    EXPECT_NE(message.str().find("IPE 200\\stock1.shp:1: "), std::string::npos) << message.str();
    EXPECT_TRUE(files.has("HEA 200/stock1.buy"));
    EXPECT_TRUE(files.has("Items.dat"));
}

TEST_F(StockedLibrary, TakesFoldersForItemsUntilItHasAList) {
    files.write("L 70/order.shp", "6050\n");
    std::filesystem::create_directory(files.path("HEA 100"));
    std::filesystem::create_directory(files.path("left over."));  // names of items end in no dot
    DlgCSP2Data data;
    ASSERT_TRUE(library.load(data, message)) << message.str();
    EXPECT_EQ(data.itemNames, (Vor_StringArray{"HEA 100", "L 70"}));
    EXPECT_EQ(rowsOf(data, 1, data.itemIds[1]), (cutstock::Rows{{"6050"}}));
    for (const Csp2Table& table : data.tables) EXPECT_EQ(table.columnNames.length(), 2);
    data.itemNames = {"L 70"};
    data.itemIds = {data.itemIds[1]};
    ASSERT_TRUE(library.save(data, message)) << message.str();
    ASSERT_TRUE(library.load(data, message)) << message.str();
    EXPECT_EQ(data.itemNames, (Vor_StringArray{"L 70"}));
}

TEST_F(StockedLibrary, FilesStayTheNewestWhileNothingReallyChanged) {
    files.write("IPE 200/order.shp", "12100\n", 1000);
    files.write("L 70/order.shp", "6050\n", 1000);
    files.write("Items.dat", "Columns\t2\tLength\tNumber\nItem\t4\tIPE 200\n");
    DlgCSP2Data data;
    ASSERT_TRUE(library.load(data, message)) << message.str();
    cutstock::replaceRows(data.tables[1], 4, {{"12100", ""}});  // as a grid of two columns gives it
    cutstock::addItem(data, "L 70");  // the item was deleted, its files are there
    ASSERT_TRUE(library.save(data, message)) << message.str();
    EXPECT_FALSE(files.has("IPE 200/stock1.shp"));
    EXPECT_FALSE(files.has("L 70/stock1.shp"));
    ASSERT_TRUE(library.load(data, message)) << message.str();
    ASSERT_EQ(data.itemIds.length(), 2);
    cutstock::replaceRows(data.tables[1], data.itemIds[1], {});
    ASSERT_TRUE(library.save(data, message)) << message.str();
    EXPECT_EQ(files.read("L 70/stock1.shp"), "") << "its rows were seen and deleted";
}

TEST_F(StockedLibrary, TheSampleCanBeLoaded) {
    gSettings.setLibDir(*paths::toInside(VORMANT_SOURCE_DIR "/library"));
    DlgCSP2Data data;
    ASSERT_TRUE(library.load(data, message)) << message.str();
    ASSERT_GE(data.itemIds.length(), 2);
    for (const int id : data.itemIds)
        for (int table = 0; table < DlgCSP2Data::tableCount; ++table)
            EXPECT_FALSE(rowsOf(data, table, id).isEmpty()) << id << " " << table;
}

}  // namespace
