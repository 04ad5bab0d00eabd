// Files of cutting-stock items listed, shown, exchanged and reported.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "program.h"

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
