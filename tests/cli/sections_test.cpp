// Section tables listed, shown, searched, checked and exchanged.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* ipe =
    "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tHeight\tWidth\tWeb thickness\tFlange "
    "thickness\tRadius\tMass kg/m\tIy cm4\n"
    "200\t1\tIPE 200\tIPE 200\tIPE 200\tIPE 200\t200\t100\t5.6\t8.5\t12\t22.4\t1943\n"
    "220\t0\tIPE 220\tIPE 220\tIPE 220\tIPE 220\t220\t110\t5.9\t9.2\t12\t26.2\t2772\n"
    "300\t1\tIPE 300\tIPE 300\tIPE 300\tIPE 300\t300\t150\t7.1\t10.7\t15\t42.2\t8356\n";
constexpr const char* flat =
    "8\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tBreedte\tDikte\n"
    "100x10\t1\tFlat 100\tStrip 100\tFlach 100\tPlat\xE9 100\t100\t10\n";

class Sections : public testing::Test {
  protected:
    Sections() {
        folder.write("prof/IPE.pr", ipe);
        folder.write("prof/FL.pr", flat);
    }
    program::Result call(std::vector<std::string> arguments, std::string_view input = {}) const {
        arguments.insert(arguments.begin(), {"--library", folder.path().string(), "sections"});
        return program::run(arguments, input);
    }
    program::Folder folder;
};

TEST_F(Sections, AreListedAndThoseThatCannotBeReadToldOf) {
    const auto result = call({"list"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "Table  Sizes  In use  Type\nFL         1       1  8 Flat\n"
              "IPE        3       2  1 I section\n");
    const json all = json::parse(call({"list", "--json"}).out);
    EXPECT_EQ(all[1]["type"], 1);
    EXPECT_EQ(all[1]["active"], 2);
    const std::string bad = folder.write("prof/BAD.pr", "1\nSysName\t\\x\n");
    const auto damaged = call({"list"});
    EXPECT_EQ(damaged.exitCode, 1);
    EXPECT_THAT(damaged.err, HasSubstr(bad + ":2: a backslash"));
    EXPECT_THAT(damaged.out, HasSubstr("IPE"));
}

TEST_F(Sections, AreShownByEveryName) {
    EXPECT_THAT(call({"show", "ipe"}).out, HasSubstr("IPE-220  IPE 220  no      220  110"));
    for (const char* name : {"IPE-300", "ipe 300"}) {
        const auto result = call({"show", name});
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_THAT(result.out, StartsWith("IPE-300\n")) << name;
        EXPECT_THAT(result.out, HasSubstr("42.2\n")) << name;
    }
    const json size = json::parse(call({"show", "FL-100x10", "--json"}).out);
    EXPECT_EQ(size["section"], "FL-100x10");
    EXPECT_EQ(size["values"]["Breedte"], "100");
    EXPECT_EQ(size["names"]["French"], "Plat\xC3\xA9 100");
    EXPECT_EQ(size["mass"], 7.85);
    EXPECT_EQ(size["calculated"]["Mass kg/m"], 7.85);
    EXPECT_EQ(size["calculated"]["Iz cm4"], 83.3333);
    const std::string shown = call({"show", "FL-100x10"}).out;
    EXPECT_THAT(shown, HasSubstr("calculated from the values\n  Mass kg/m      7.85\n"));
    EXPECT_THAT(shown, HasSubstr("Iz cm4      83.3333\n"));
    const auto unknown = call({"show", "IPE-2000"});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_THAT(unknown.err, HasSubstr("did you mean IPE-200?"));
    EXPECT_THAT(call({"show", "HEA"}).err, HasSubstr("there are:\n  FL IPE"));
}

TEST_F(Sections, AreFoundByConditions) {
    const struct {
        std::vector<std::string> conditions;
        const char* found;  // sections, in order
    } cases[] = {
        {{"h>=200", "b<=100"}, "IPE-200"},
        {{"Height > 200"}, "IPE-300"},
        {{"h=200..300", "--inactive"}, "IPE-200 IPE-220 IPE-300"},
        {{"h!=200", "--inactive"}, "IPE-220 IPE-300"},
        {{"b=100"}, "FL-100x10 IPE-200"},
        {{"b=100", "--sort", "mass"}, "FL-100x10 IPE-200"},
        {{"mass>7", "--sort", "Iy"}, "IPE-200 IPE-300 FL-100x10"},
        {{"breedte=100"}, "FL-100x10"},
        {{"iy>=8000"}, "IPE-300"},
        {{"area<20"}, "FL-100x10"},
        {{"type=8"}, "FL-100x10"},
        {{"table!=IP*"}, "FL-100x10"},
        {{"name=strip*"}, "FL-100x10"},
        {{"h>1000"}, ""},
        {{"table=NONE", "h>=200", "--sort", "iy"}, ""},
        {{"table=FL", "h>=200"}, ""},  // the columns of tables that are left out are no mistake
    };
    for (const auto& c : cases) {
        std::vector<std::string> arguments{"find", "--json"};
        arguments.insert(arguments.end(), c.conditions.begin(), c.conditions.end());
        const auto result = call(arguments);
        SCOPED_TRACE(testing::PrintToString(c.conditions));
        ASSERT_EQ(result.exitCode, 0) << result.err;
        std::string names;
        for (const json& each : json::parse(result.out))
            names += (names.empty() ? "" : " ") + each["section"].get<std::string>();
        EXPECT_EQ(names, c.found);
    }
    EXPECT_EQ(call({"find", "h=200"}).out,
              "Section  Name     kg/m  Values\n"
              "IPE-200  IPE 200  22.4  h=200 b=100 tw=5.6 tf=8.5 r=12\n");
    EXPECT_THAT(call({"find", "h>1000"}).err, HasSubstr("no section fits"));
}

// 102 x 20 mm weigh 16.014 kg/m, which no binary number is.
TEST_F(Sections, AreFoundByFiguresAsTheyAreShown) {
    folder.write("prof/FL2.pr",
                 "8\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tWidth\tThickness\n"
                 "102x20\t1\t\t\t\t\t102\t20\n");
    for (const char* condition : {"mass=16.014", "mass<=16.014", "area=20.4", "mass=16.014..17"}) {
        const auto result = call({"find", "table=FL2", condition, "--json"});
        EXPECT_THAT(result.out, HasSubstr("\"mass\":16.014,\"calculated\":{\"Mass kg/m\":16.014,"))
            << condition;
    }
    EXPECT_THAT(call({"find", "table=FL2", "mass>16.014"}).err, HasSubstr("no section fits"));
}

TEST_F(Sections, ConditionsThatMakeNoSenseAreRefused) {
    const struct {
        std::vector<std::string> conditions;
        const char* message;
    } cases[] = {
        {{"heigth>=200"}, "no table has a column \"heigth\"; did you mean Height?"},
        {{"h>=200", "--sort", "zz"}, "no table has a column \"zz\""},
        {{"table=NONE", "zz>=200"}, "no table has a column \"zz\"; there are Breedte, Dikte,"},
        {{"h"}, "a condition is a column"},
        {{">=200"}, "a condition is a column"},
        {{"h>=tall"}, "\"tall\" is no number"},
        {{"h=1.."}, "no range LOW..HIGH"},
        {{"h!200"}, "write !="},
        {{"name>=a"}, "texts are compared with"},
        {{}, "CONDITION is required"},
    };
    for (const auto& c : cases) {
        std::vector<std::string> arguments{"find"};
        arguments.insert(arguments.end(), c.conditions.begin(), c.conditions.end());
        const auto result = call(arguments);
        EXPECT_EQ(result.exitCode, 2) << c.message;
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr(c.message));
    }
}

TEST_F(Sections, AreCheckedWithPlacesAndFailOnErrorsAlone) {
    const auto clean = call({"check"});
    EXPECT_EQ(clean.exitCode, 0) << clean.out;
    EXPECT_EQ(clean.out, "");
    const std::string file = folder.write(
        "prof/RD.pr",
        "9\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tDiameter\n10\tx\ta\t\t\t\t0\n");
    const auto wrong = call({"check", "RD"});
    EXPECT_EQ(wrong.exitCode, 1);
    EXPECT_EQ(wrong.out, file + ":3:2: warning: \"x\" is neither 1 (in use) nor 0\n" + file +
                             ":3:7: error: Diameter is \"0\", which has to be above 0\n");
    const json findings = json::parse(call({"check", "--json"}).out);
    EXPECT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[1]["row"], 3);
    EXPECT_EQ(findings[1]["severity"], "error");
    EXPECT_EQ(call({"check", "NONE"}).exitCode, 1);
}

TEST_F(Sections, ComeBackFromCsvAsTheyWere) {
    const std::string csv = folder / "out.csv";
    ASSERT_EQ(call({"export", "FL", csv}).exitCode, 0);
    ASSERT_EQ(call({"import", csv, "Copy", "--type", "8"}).exitCode, 0);
    EXPECT_EQ(folder.read("prof/Copy.pr"), flat);
    EXPECT_EQ(json::parse(call({"export", "IPE", "--json"}).out)["sizes"].size(), 3u);
    EXPECT_EQ(call({"export", "IPE", folder / "out.txt"}).exitCode, 2);

    const auto there = call({"import", csv, "FL"});
    EXPECT_EQ(there.exitCode, 1);
    EXPECT_THAT(there.err, HasSubstr("FL.pr: the table is there already; --force"));
    EXPECT_EQ(call({"import", csv, "FL", "--force"}).exitCode, 0);
    EXPECT_EQ(folder.read("prof/FL.pr"), flat);

    const std::string bad = folder.write("prof/FL.pr", "8\nSysName\t\\x\n");
    const auto unreadable = call({"import", csv, "FL", "--force"});
    EXPECT_EQ(unreadable.exitCode, 1);
    EXPECT_EQ(unreadable.err, "vormant: " + bad +
                                  ":2: a backslash stands alone; write it twice; to replace the "
                                  "table, say with --type how its sections are drawn\n");
    EXPECT_EQ(call({"import", csv, "FL", "--force", "--type", "8"}).exitCode, 0);
    EXPECT_EQ(folder.read("prof/FL.pr"), flat);
}

TEST_F(Sections, ComeBackFromJsonAsTheyWere) {
    const std::string file = folder / "out.json";
    folder.write("prof/Odd.pr",
                 "8\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tWidth\tThickness\tNote\n"
                 "05\t1\t05\t\t\t\t50.0\t05\t1e3\n1\t0\t\t\t\t\t10\t5\t\n");
    for (const char* table : {"FL", "IPE", "Odd"}) {
        ASSERT_EQ(call({"export", table, file}).exitCode, 0);
        const auto result = call({"import", file, "Copy", "--force"});
        ASSERT_EQ(result.exitCode, 0) << result.err;
        EXPECT_EQ(folder.read("prof/Copy.pr"), folder.read("prof/" + std::string(table) + ".pr"));
    }
    // Members in any order, what may be left out left out; the call's type counts first.
    const auto result = call({"import", "-", "New", "--json", "--type", "Box.dwg"},
                             R"({"sizes": [{"values": {"t": 2.50, "b": 1e2}, "section": "X-Y-1"},
  {"section": "X-Y-2", "active": false, "names": {"French": "Plat\u00e9"},
   "values": {"b": null}, "mass": 3}], "columns": ["b", "t"], "type": 8, "table": "X-Y"})");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(folder.read("prof/New.pr"),
              "Box.dwg\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tb\tt\n"
              "1\t1\t\t\t\t\t100\t2.50\n2\t0\t\t\t\tPlat\xE9\t\t\n");
}

TEST_F(Sections, ThatCannotBeAreNotImportedFromJson) {
    const struct {
        const char* json;  // a quote stands for two, as most lines have many
        const char* message;
    } cases[] = {
        {"", "in.json: the JSON ends before the table does"},
        {"{'columns': [],\n 'sizes': [{'section': 'T-1'", ":2: the JSON ends before"},
        {"{'columns': []\n\n'sizes'}", ":3: this is no JSON at character 7"},
        {"[]", ":1: a section table is one JSON object"},
        {"{'name': 1}",
         ":1: there is no \"name\" here, only table, type, template, columns, sizes"},
        {"{'type': 8, 'type': 8}", ":1: \"type\" stands there twice"},
        {"{'type': 8,\n'template': 'B.dwg'}", ":2: a table has a type or a template"},
        {"{'type': true}", ":1: a type is a number"},
        {"{'type': 8}", ": the table has no \"columns\""},
        {"{'type': 77, 'columns': []}", ":1: error: \"77\" is no type from 1 to 24"},
        {"{'columns': ['b',\n'b']}", ":1: there are two columns \"b\""},
        {"{'columns': ['\xE6\x9D\xB1']}", ":1: character U+6771"},
        {"{'columns': ['b'], 'sizes': [\n{'section': 'T-1', 'values': {'h': 5}}]}",
         ":2: T-1: there is no column \"h\""},
        {"{'columns': ['b'], 'sizes': [\n{'section': 'T-1', 'values': {'b': 5, 'b': 6}}]}",
         ":2: T-1: \"b\" stands twice"},
        {"{'columns': [], 'sizes': [{'section': 'T-1', 'names': {'Latin': 'x'}}]}",
         ":1: T-1: there is no column \"Latin\""},
        {"{'columns': [], 'sizes': [{'active': true}]}", ":1: the size has no \"section\""},
        {"{'columns': [], 'sizes': [{'section': 'U-1'}], 'table': 'T'}", "unlike \"U-1\""},
        {"{'columns': [], 'sizes': [{'section': 'T-1', 'values': {'b': [[[[}",
         "a value is a number"},
        {"{'type': 8, 'columns': ['Width', 'Thickness'], 'sizes': [\n"
         "{'section': 'T-1', 'values': {'Width': 100, 'Thickness': 5}},\n"
         "{'section': 'T-1', 'values': {'Width': 100, 'Thickness': 'thin'}}]}",
         ":3: error: \"1\" is the system name of line 2 already"},
        {"{'type': 8, 'columns': ['Width', 'Thickness'], 'sizes': [\n"
         "{'section': 'T-1', 'values': {'Width': 100, 'Thickness': 'thin'}}]}",
         ":2: error: Thickness is \"thin\""},
    };
    for (const auto& c : cases) {
        std::string text = c.json;
        std::ranges::replace(text, '\'', '"');
        const auto result = call({"import", folder.write("in.json", text), "FL", "--force"});
        EXPECT_EQ(result.exitCode, 1) << c.json;
        EXPECT_THAT(result.err, HasSubstr(c.message)) << c.json;
        EXPECT_EQ(folder.read("prof/FL.pr"), flat);
    }
}

TEST_F(Sections, ThatCannotBeAreNotImported) {
    const std::string header = "SysName,I/O,English,Dutch,German,French,Width,Thickness\n";
    const struct {
        std::string csv;
        std::string type;
        int exitCode;
        std::string message;
    } cases[] = {
        {header + "\"1\n0\",1,a,,,,100,thin\n", "8", 1, ":2:8: error: Thickness is \"thin\""},
        {header + "1,1,a,,,,100,5\n1,1,b,,,,100,6\n", "8", 1,
         ":3:1: error: \"1\" is the system name of line 2 already"},
        {header + "\xE6\x9D\xB1,1,a,,,,100,5\n", "8", 1, ":2: "},
        {"", "8", 1, "no line of column names"},
        {header, "77", 2, "--type 77"},
        {header, "", 2, "--type is not given"},
    };
    for (const auto& c : cases) {
        std::vector<std::string> arguments{"import", folder.write("in.csv", c.csv), "New"};
        if (!c.type.empty()) arguments.insert(arguments.end(), {"--type", c.type});
        const auto result = call(arguments);
        EXPECT_EQ(result.exitCode, c.exitCode) << result.err;
        EXPECT_THAT(result.err, HasSubstr(c.message));
        EXPECT_EQ(program::run({"sections", "show", folder / "prof/New.pr"}).exitCode, 1);
    }
}

}  // namespace
