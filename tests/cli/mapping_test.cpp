// Showing and changing mappings from scripts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/library.h"

namespace {

using testing::HasSubstr;
using Json = nlohmann::json;

constexpr const char* mapFile = "Connection Standards/Plate.map";
const std::string header = "Mapping version 1.0\n";
const std::string stored =
    "Gone=Width\x83Plate\x95"
    "Distance Old\n";

class Mapping : public testing::Test {
  protected:
    Mapping() {
        library.write("Mine.macro",
                      "properties 1\ni\tmacro.version\t1\nd\tgeneral.gen_Gap\t5\n"
                      "s\tmodule.Plate\tplate\nd\tmodule.Plate.var.Width\t100\n"
                      "d\tmodule.Plate.var.Height\t200\ns\tmodule.Bolts\tbolt\n"
                      "s\tmodule.Bolts.pattern.Rows\trow\ni\tmodule.Bolts.pattern.Rows.count1\t2\n"
                      "end\n");
        library.write(mapFile, header + stored);
    }
    program::Result call(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--library", library.path().string(), "mapping"});
        return program::run(arguments);
    }
    program::Result set(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"set", "Plate", "--macro", library / "Mine.macro"});
        return call(arguments);
    }

    Library library;
};

TEST_F(Mapping, ListsWhatVariablesCanStandFor) {
    const auto result = call({"objects", library / "Mine.macro"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "Double  Plate.Width\nDouble  Plate.Height\nDouble  Bolts.BoltsDiameter\n"
              "Double  Bolts.BoltsHoleOffset\nInt     Bolts.Rows.PatternReverseStart1\n"
              "Double  gen_Gap.GenVar\nString  Bolts.Rows.PatternNrBolts1\n");
}

TEST_F(Mapping, WhatIsSetIsShown) {
    const std::string shown =
        "Mine\n  in   Section    Bolts.Rows.PatternNrBolts1\n  in   Thickness  -\n"
        "  out  Width      Plate.Width\n  out  Bolts      -\n  out  Name       -\n";
    auto result =
        set({"--key", "Mine", "Width=Plate.Height", "section=Bolts.Rows.PatternNrBolts1"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    result = set({"--key", "Mine", "Width=Plate.Width"});
    EXPECT_EQ(result.out, shown);
    EXPECT_EQ(call({"show", "Plate", "--key", "Mine"}).out, shown);
    EXPECT_EQ(set({"--key", "Mine", "Section="}).exitCode, 0);
    EXPECT_EQ(library.read(mapFile), header + stored +
                                         "Mine=Width\x83Plate\x95"
                                         "Distance Width\n");

    const auto json =
        Json::parse(call({"show", "Plate", "--macro", library / "Mine.macro", "--json"}).out);
    ASSERT_EQ(json.size(), 2u);
    EXPECT_EQ(json[0]["key"], "Gone");
    EXPECT_EQ(json[0]["variables"][2],
              Json::parse(R"({"name":"Width","use":"output","type":"Double",
                              "object":"Plate.Old","missing":true})"));
    EXPECT_EQ(json[1]["variables"][2]["object"], "Plate.Width");
}

TEST_F(Mapping, WithoutAKeyOneIsDrawnAndTheMacroKeepsItWhenAsked) {
    const std::string before = library.read("Mine.macro");
    auto result = set({"Width=Plate.Width"});
    const std::string key = result.out.substr(0, result.out.find('\n'));
    EXPECT_EQ(key.size(), 24u);
    EXPECT_THAT(library.read(mapFile), HasSubstr("\n" + key + "=Width"));
    EXPECT_EQ(library.read("Mine.macro"), before);
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(set({"--key", key, "--attach", "Width=Plate.Width"}).exitCode, 0);
    EXPECT_THAT(library.read("Mine.macro"),
                HasSubstr("s\tstandard.0\tPlate\ns\tstandard.0.key\t" + key + "\ns\tmodule"));
}

TEST_F(Mapping, WhatMakesNoSenseIsRefusedAndNothingIsWritten) {
    library.write("Broken.macro", "properties 1\nend\n");
    struct Case {
        std::vector<std::string> arguments;
        int exitCode;
        std::string message;
    };
    const Case cases[] = {
        {{"Widht=Plate.Width"}, 2, "no such input or output; did you mean Width?"},
        {{"Gap=Plate.Width"}, 2, "it has Section, Thickness, Width, Bolts, Name"},
        {{"Width=Plate.Widht"}, 2, "for a variable of type Double; did you mean Plate.Width?"},
        {{"Width=Bolts.Rows.PatternNrBolts1"}, 2, "no such object for a variable of type Double"},
        {{"Bolts=Plate.Width"}, 2, "of type Double, which no run finds for a variable of type Int"},
        {{"Width=Plate.Width", "WIDTH=Plate.Height"}, 2, "given twice"},
        {{"Width"}, 2, "Variable=Object"},
        {{"Width=\xE4\xB8\xAD"}, 2, "U+4E2D"},
        {{"--key", "a=b", "Width="}, 2, "none of them ="},
        {{"--key", "Module.Plate", "Width="}, 2, "module group"},
        {{"--key", "", "Width="}, 2, "this is empty"},
        {{}, 2, "required"},
    };
    for (const Case& row : cases) {
        const auto result = set(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode) << row.message;
        EXPECT_THAT(result.err, HasSubstr(row.message));
        EXPECT_EQ(result.out, "");
    }
    const Case others[] = {
        {{"set", "Plate", "--macro", library / "Broken.macro", "Width="}, 1, "Broken.macro:"},
        {{"set", "Nope", "--macro", library / "Mine.macro", "W="}, 1, "no standard \"Nope\""},
        {{"show", "Base"}, 1, "Base.map: there is none yet"},
        {{"show", "Plate", "--key", "gone"}, 1, "there is no key \"gone\"; there are:\n  Gone"},
        {{"show", library.write("Loose.tws", column({"Input", "Output"}))}, 1, "outside of the"},
        {{"objects", library / "none.macro"}, 1, "none.macro"},
    };
    for (const Case& row : others) {
        const auto result = call(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode) << row.message;
        EXPECT_THAT(result.err, HasSubstr(row.message));
    }
    EXPECT_EQ(library.read(mapFile), header + stored);
}

}  // namespace
