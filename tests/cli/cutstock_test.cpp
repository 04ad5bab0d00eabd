// Files of cutting-stock items listed, shown, exchanged and reported.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "cli/program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

class CutStock : public testing::Test {
  protected:
    CutStock() {
        write("HEA-220/stock1.shp",
              "12000\xBF"
              "4\n",
              1'000'000'000);
        write("HEA-220/Stock7.shp",
              "15000\xBF"
              "2\n6000\xBFPlat\xE9\n",
              1'100'000'000);
        write("HEA-220/all.buy",
              "15000\xBF"
              "1\n",
              1'100'000'000);
        std::filesystem::create_directory(folder.path() / "Cutting Stock/IPE-300");
    }
    std::string write(const std::string& name, std::string_view content, long time) const {
        const std::string path = folder.write("Cutting Stock/" + name, content);
        const timespec times[2] = {{time, 0}, {time, 0}};
        ::utimensat(AT_FDCWD, path.c_str(), times, 0);
        return path;
    }
    std::string read(const std::string& name) const { return folder.read("Cutting Stock/" + name); }
    bool has(const std::string& name) const {
        return std::filesystem::exists(folder.path() / "Cutting Stock" / name);
    }
    program::Result call(std::vector<std::string> arguments, std::string_view input = {}) const {
        arguments.insert(arguments.begin(), {"--library", folder.path().string(), "cutstock"});
        return program::run(arguments, input);
    }
    program::Folder folder;
};

TEST_F(CutStock, IsListedByItemWithNewestFiles) {
    const auto result = call({"list"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("HEA-220     2  Stock7.shp     1  all.buy\n"));
    const json all = json::parse(call({"list", "--json"}).out);
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0]["shp"]["newest"]["changed"], "2004-11-09T11:33:20Z");
    EXPECT_EQ(all[1]["item"], "IPE-300");
    EXPECT_EQ(all[1]["buy"], json({{"files", 0}}));

    const program::Folder empty;
    const auto none =
        program::run({"--library", empty.path().string(), "cutstock", "list", "--json"});
    EXPECT_EQ(none.exitCode, 0) << none.err;
    EXPECT_EQ(json::parse(none.out), json::array());
}

TEST_F(CutStock, IsShownFromTheNewestFileOrTheOneNamed) {
    const auto newest = call({"show", "hea-220"});
    EXPECT_EQ(newest.exitCode, 0) << newest.err;
    EXPECT_THAT(newest.out, HasSubstr("Stock: Stock7.shp, 09 November, 2004"));
    EXPECT_THAT(newest.out, HasSubstr("6000  Plat\xC3\xA9\n"));
    EXPECT_THAT(newest.out, HasSubstr("Purchases: all.buy"));
    EXPECT_EQ(call({"show", "IPE-300"}).out, "Stock: no .shp file\nPurchases: no .buy file\n");

    const std::string path = folder / "Cutting Stock/HEA-220/stock1.shp";
    for (const std::string& file : {std::string("stock1.shp"), path}) {
        const json one = json::parse(call({"show", "HEA-220", "--file", file, "--json"}).out);
        EXPECT_EQ(one["shp"]["rows"], json::parse(R"([["12000", "4"]])")) << file;
        EXPECT_FALSE(one.contains("buy"));
    }
}

TEST_F(CutStock, GoesOutAsCsvAndComesBackAsItWas) {
    const std::string csv = folder / "out.csv";
    ASSERT_EQ(call({"export", "HEA-220", "shp", csv}).exitCode, 0);
    EXPECT_EQ(folder.read("out.csv"), "15000,2\n6000,Plat\xC3\xA9\n");
    const auto result = call({"import", csv, "HEA-220", "shp"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("Cutting Stock/HEA-220/stock8.shp\n"));
    EXPECT_EQ(read("HEA-220/stock8.shp"), read("HEA-220/Stock7.shp"));

    EXPECT_EQ(call({"import", "-", "IPE-300", "buy", "--as", "Data.BUY"}, "\"a,b\",c\n").exitCode,
              0);
    EXPECT_EQ(read("IPE-300/data.buy"),
              "a,b\xBF"
              "c\n");
    EXPECT_EQ(call({"export", "IPE-300", "buy"}).out, "\"a,b\",c\n");
    const json table =
        json::parse(call({"export", "HEA-220", "shp", "--json", "--file", "stock1.shp"}).out);
    EXPECT_EQ(table["rows"], json::parse(R"([["12000", "4"]])"));
}

TEST_F(CutStock, NeitherReplacesFilesNorMakesItemsUnasked) {
    const auto there = call({"import", "-", "HEA-220", "shp", "--as", "STOCK1"}, "1,2\n");
    EXPECT_EQ(there.exitCode, 1);
    EXPECT_THAT(there.err, HasSubstr("the file is there already; --force replaces it"));
    EXPECT_EQ(read("HEA-220/stock1.shp"),
              "12000\xBF"
              "4\n");
    EXPECT_EQ(
        call({"import", "-", "HEA-220", "shp", "--as", "STOCK1", "--force"}, "1,2\n").exitCode, 0);
    EXPECT_EQ(read("HEA-220/stock1.shp"),
              "1\xBF"
              "2\n");

    const auto missing = call({"import", "-", "HEA-200", "shp"}, "1,2\n");
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_THAT(missing.err, HasSubstr("no cutting-stock item \"HEA-200\"; did you mean HEA-220?"));
    EXPECT_FALSE(has("HEA-200"));
    EXPECT_EQ(call({"import", "-", "HEA-200", "shp", "--new"}, "1,2\n").exitCode, 0);
    EXPECT_EQ(read("HEA-200/stock1.shp"),
              "1\xBF"
              "2\n");
    EXPECT_EQ(call({"import", "-", "hea-200", "shp", "--new"}, "3\n").exitCode, 0);
    EXPECT_EQ(read("HEA-200/stock2.shp"), "3\n");
}

TEST_F(CutStock, ThatFilesCannotHoldIsRefusedWithItsLine) {
    const struct {
        const char* csv;
        const char* message;
    } cases[] = {
        {"1,2\n\xE6\x9D\xB1,3\n", ":2: character U+6771"},
        {"1,2\n\n\xC2\xBF"
         "Que?\n",
         ":3: the character \xC2\xBF parts the cells"},
        {"\"a\nb\"\n", ":1: a cell runs over several lines"},
        {"1\n\"2\n", ":2: "},
        {"1\n\xFF\n", ":2: byte 0xFF"},
    };
    for (const auto& c : cases) {
        const auto result = call({"import", "-", "IPE-300", "shp"}, c.csv);
        EXPECT_EQ(result.exitCode, 1) << c.message;
        EXPECT_THAT(result.err, HasSubstr(c.message));
        EXPECT_FALSE(has("IPE-300/stock1.shp")) << c.message;
    }
}

TEST_F(CutStock, IsReportedAndWhatCannotBeReadFails) {
    const auto whole = call({"report"});
    EXPECT_EQ(whole.exitCode, 0) << whole.err;
    const std::string rule(116, '-');
    EXPECT_THAT(whole.out,
                HasSubstr(rule + "\nThe stock file \"Stock7.shp\" for the item \"HEA-220\" "
                                 "was loaded, last changed on 09 November, 2004 ("));
    EXPECT_THAT(whole.out,
                HasSubstr("\n\nThere is no purchase file for the item \"IPE-300\".\n" + rule));
    EXPECT_THAT(call({"report", "ipe-300"}).out, Not(HasSubstr("HEA-220")));

    const std::string broken = write("IPE-300/huge.shp", "", 1'200'000'000);
    std::filesystem::resize_file(broken, 40 << 20);
    const auto damaged = call({"report", "--json"});
    EXPECT_EQ(damaged.exitCode, 1);
    EXPECT_THAT(damaged.err, HasSubstr("huge.shp"));
    EXPECT_EQ(json::parse(damaged.out)["failures"].size(), 1u);
    for (const auto& arguments :
         {std::vector<std::string>{"show", "IPE-300"}, {"export", "IPE-300", "shp"}}) {
        const auto result = call(arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr("huge.shp"));
    }
}

class CutStockWithList : public CutStock {
  protected:
    CutStockWithList() {
        write("Items.dat", list, 1'200'000'000);
        write("W12/order.buy", "9000\n", 1'200'000'000);
    }
    static constexpr const char* list =
        "Columns\t1\tMark\tLength\nColumns\t2\tLength\tNumber\n"
        "Item\t7\tIPE-300\nItem\t2\tHEA-220\nItem\t3\tL 70\n"
        "Part\t2\tTr\xE4ger\t5400\nPart\t7\tB1\t880\n";
};

TEST_F(CutStockWithList, ShowsItsItemsInOrderWithTheirParts) {
    EXPECT_EQ(call({"list"}).out,
              "Item     .shp  Newest      .buy  Newest     Note\n"
              "IPE-300     0                 0\n"
              "HEA-220     2  Stock7.shp     1  all.buy\n"
              "L 70        0                 0             no folder\n"
              "W12         0                 1  order.buy  not in Items.dat\n");
    const json all = json::parse(call({"list", "--json"}).out);
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[2]["folder"], false);
    EXPECT_EQ(all[2]["listed"], true);
    EXPECT_EQ(all[3]["listed"], false);
    EXPECT_THAT(call({"show", "HEA-220"}).out,
                testing::StartsWith("Parts to cut:\n  Mark    Length\n  Tr\xC3\xA4ger    5400\n"
                                    "Stock: Stock7.shp"));
    EXPECT_EQ(json::parse(call({"show", "IPE-300", "--json"}).out)["parts"]["rows"],
              json::parse(R"([["B1", "880"]])"));
}

TEST_F(CutStockWithList, TellsFoldersWithoutAnItemAndItemsWithoutAFolder) {
    const char* const unlisted = "Items.dat: \"W12\" has a folder but no line here";
    for (const auto& arguments : {std::vector<std::string>{"show", "w12"},
                                  {"export", "W12", "buy"},
                                  {"report", "W12"},
                                  {"report"}}) {
        const auto result = call(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_THAT(result.err, HasSubstr(unlisted));
        EXPECT_NE(result.out, "");
    }
    EXPECT_THAT(call({"report"}).out, Not(HasSubstr("W12"))) << "the dialog does not show it";
    const auto without = call({"export", "L 70", "shp"});
    EXPECT_EQ(without.exitCode, 1);
    EXPECT_THAT(without.err, HasSubstr("L 70/: there is no such folder yet"));
    EXPECT_EQ(call({"show", "HEA-220"}).err, "");

    const auto refused = call({"import", "-", "W12", "buy"}, "1\n");
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_THAT(refused.err, HasSubstr(unlisted));
    EXPECT_FALSE(has("W12/stock1.buy"));
}

TEST_F(CutStockWithList, TakesInNewItemsWithTheirFirstFile) {
    EXPECT_EQ(call({"import", "-", "w12", "buy", "--new"}, "1\n").exitCode, 0);
    EXPECT_EQ(call({"import", "-", "UPN 80", "shp", "--new"}, "2\n").exitCode, 0);
    EXPECT_EQ(call({"import", "-", "l 70", "shp", "--new"}, "3\n").exitCode, 0);
    EXPECT_EQ(read("W12/stock1.buy"), "1\n");
    EXPECT_EQ(read("UPN 80/stock1.shp"), "2\n");
    EXPECT_EQ(read("L 70/stock1.shp"), "3\n");
    EXPECT_EQ(read("Items.dat"),
              "Columns\t1\tMark\tLength\nColumns\t2\tLength\tNumber\nColumns\t3\n"
              "Item\t7\tIPE-300\nItem\t2\tHEA-220\nItem\t3\tL 70\nItem\t8\tW12\nItem\t9\tUPN 80\n"
              "Part\t2\tTr\xE4ger\t5400\nPart\t7\tB1\t880\n");
    EXPECT_EQ(call({"import", "-", "C 100", "shp", "--new"}, "\"2\n").exitCode, 1);
    EXPECT_THAT(read("Items.dat"), Not(HasSubstr("C 100"))) << "its file could not be read";
}

TEST_F(CutStockWithList, ThatIsBrokenIsNamedWithItsLineAndLeftAlone) {
    const std::string broken = std::string(list) + "Item\t2\tW12\n";
    write("Items.dat", broken, 1'200'000'000);
    for (const auto& arguments : {std::vector<std::string>{"list"},
                                  {"show", "HEA-220"},
                                  {"export", "HEA-220", "shp"},
                                  {"report"},
                                  {"import", "-", "HEA-220", "shp"},
                                  {"import", "-", "W12", "buy", "--new"}}) {
        const auto result = call(arguments, "1\n");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, testing::EndsWith("Items.dat:8: two items have this number; give "
                                                  "one of them another\n"));
        EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1);
    }
    EXPECT_EQ(read("Items.dat"), broken);
    EXPECT_FALSE(has("HEA-220/stock8.shp"));
    EXPECT_FALSE(has("W12/stock1.buy"));
}

TEST_F(CutStock, GetsAListWithItsFoldersWhenItHasNone) {
    EXPECT_EQ(call({"import", "-", "HEA-220", "shp"}, "1\n").exitCode, 0);
    EXPECT_FALSE(has("Items.dat"));
    EXPECT_EQ(call({"import", "-", "L 70", "shp", "--new"}, "1\n").exitCode, 0);
    EXPECT_EQ(read("Items.dat"),
              "Columns\t1\nColumns\t2\nColumns\t3\n"
              "Item\t1\tHEA-220\nItem\t2\tIPE-300\nItem\t3\tL 70\n");
}

TEST_F(CutStock, CallsThatCannotBeAreRefused) {
    const struct {
        std::vector<std::string> arguments;
        int exitCode;
        const char* message;
    } cases[] = {
        {{}, 2, "say which command you mean"},
        {{"lst"}, 2, "did you mean list?"},
        {{"show"}, 2, "ITEM is required"},
        {{"show", "HEA-220", "--file", "x.csv"}, 2, "give a .shp or a .buy file"},
        {{"show", "HEA-220", "--file", "none.shp"}, 1, "there is no such file"},
        {{"show", "W12"}, 1, "there are:\n  HEA-220\n  IPE-300"},
        {{"show", ".."}, 1, "no cutting-stock item \"..\""},
        {{"export", "HEA-220", "stk"}, 2, "stk"},
        {{"export", "HEA-220", "shp", "out.txt"}, 2, "only .csv and .json"},
        {{"export", "HEA-220", "shp", "--file", "all.buy"}, 2, "this is no .shp file"},
        {{"export", "IPE-300", "buy"}, 1, "there is no .buy file"},
        {{"import", "none.csv", "IPE-300", "shp"}, 1, "none.csv"},
        {{"import", "-", "IPE-300", "shp", "--as", "../x"}, 2, "--as ../x"},
        {{"import", "-", "a/b", "shp", "--new"}, 1, "a/b"},
        {{"import", "-", "\xE6\x9D\xB1", "shp", "--new"}, 1, "U+6771"},
        {{"report", "HEA"}, 1, "no cutting-stock item"},
    };
    for (const auto& c : cases) {
        const auto result = call(c.arguments);
        EXPECT_EQ(result.exitCode, c.exitCode) << testing::PrintToString(c.arguments);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr(c.message));
    }
    EXPECT_THAT(folder.names(), Not(testing::Contains("x.shp")));
}

}  // namespace
