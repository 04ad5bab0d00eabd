// One run of a standard, on given values and on a macro.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/library.h"
#include "test_folders.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using Json = nlohmann::json;

TEST(Run, PrintsInputsAndOutputs) {
    const Library library;
    const auto result =
        library.call({"run", "plate", "--set", "Thickness=2.5", "--set", "section=HEA \xC3\x9C"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, HasSubstr("Inputs\n"
                                      "  Section    HEA \xC3\x9C\n"
                                      "  Thickness  2.5\n"
                                      "Outputs\n"
                                      "  Width  38.3\n"
                                      "  Bolts  4\n"
                                      "  Name   HEA \xC3\x9C / 38.3\n"));
    EXPECT_THAT(result.out, Not(HasSubstr("Equations")));
}

TEST(Run, InputsAreCheckedByNameBeforeAnythingRuns) {
    const Library library;
    const struct {
        std::vector<std::string> sets;
        std::string message;
    } calls[] = {
        {{"Section=x"},
         "input Thickness is not given; the standard takes Section (String), "
         "Thickness (Double)"},
        {{"Section=x", "Thickness=1", "Thick=2"}, "--set Thick=2: the standard has no such input"},
        {{"Section=x", "Thickness=1", "Width=2"}, "--set Width=2: the standard has no such input"},
        {{"Section=x", "Thickness=1", "Gap=2"}, "--set Gap=2: the standard has no such input"},
        {{"Section=x", "Thickness=1", "SECTION=y"}, "given twice"},
        {{"Section=x", "Thickness=ten"}, "Thickness is a number (Double)"},
        {{"Section"}, "Name=Value"},
        {{"=5"}, "Name=Value"},
        {{"Section=\xE4\xB8\xAD", "Thickness=1"}, "U+4E2D"},
    };
    for (const auto& call : calls) {
        SCOPED_TRACE(call.message);
        std::vector<std::string> arguments = {"run", "Plate"};
        for (const auto& set : call.sets) arguments.insert(arguments.end(), {"--set", set});
        const auto result = library.call(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr(call.message));
    }
}

TEST(Run, StandardsAreFoundByNamePartOfItOrFile) {
    const Library library;
    library.add("Parents/Twin", {"Input", "Output", "Calc"});
    library.add("Childs/Twin", {"Input", "Output", "Calc"});
    const auto run = [&](const std::string& name) {
        return library.call({"run", name, "--set", "P=1"});
    };
    for (const std::string& name :
         {std::string("Childs/Base"), std::string("base"), std::string("childs\\BASE"),
          library / "Connection Standards/Childs/Base.tws"})
        EXPECT_THAT(run(name).out, HasSubstr("W  2\n")) << name;

    const auto unknown = run("Nope");
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_THAT(unknown.err, HasSubstr("there is no standard \"Nope\""));
    EXPECT_THAT(unknown.err, HasSubstr("\n  Parents/Frame\n"));
    EXPECT_THAT(run("fraem").err, HasSubstr("did you mean Frame? The library has:"));
    const auto twin = run("Twin");
    EXPECT_EQ(twin.exitCode, 1);
    EXPECT_THAT(twin.err, HasSubstr("several standards"));
}

TEST(Run, TheTraceNestsChildren) {
    const Library library;
    const auto result = library.call({"run", "Frame", "--set", "P=5", "--trace"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("  A6    CallChild(\"Base.tws\",P,W)\n"
                                      "        calls " +
                                      (library / "Connection Standards/Childs/Base.tws") +
                                      "\n"
                                      "          Inputs\n            P  5\n"
                                      "          Equations\n"
                                      "            A6    W=P*2\n"
                                      "                  =A2*2  ->  10\n"
                                      "          Outputs\n            W  10\n"
                                      "  A7    W=W+1\n"
                                      "        =A4+1  ->  11\n"));
}

TEST(Run, JsonHoldsTheWholeRun) {
    const Library library;
    const auto result = library.call(
        {"run", "Plate", "--set", "Thickness=2", "--set", "Section=\"x\\y\"", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    const Json report = Json::parse(result.out);
    EXPECT_EQ(report["standard"], library / "Connection Standards/Plate.tws");
    EXPECT_EQ(report["ok"], true);
    EXPECT_EQ(report["inputs"], Json({{"Section", "\"x\\y\""}, {"Thickness", "2"}}));
    EXPECT_EQ(report["outputs"],
              Json({{"Width", "37.3"}, {"Bolts", "4"}, {"Name", "\"x\\y\" / 37.3"}}));
    EXPECT_EQ(report["locals"], Json({{"Gap", "4"}}));
    EXPECT_EQ(report["messages"], Json::array());
    ASSERT_EQ(report["equations"].size(), 4u);
    EXPECT_EQ(report["equations"][1], Json({{"row", 12},
                                            {"column", 1},
                                            {"text", "Width=ROUND(100/3+Gap,1)"},
                                            {"name", "Width"},
                                            {"formula", "ROUND(100/3+A9,1)"},
                                            {"value", "37.3"},
                                            {"ok", true}}));

    const Json parent = Json::parse(library.call({"run", "Frame", "--set", "P=5", "--json"}).out);
    const Json& child = parent["equations"][0]["child"];
    EXPECT_EQ(child["standard"], library / "Connection Standards/Childs/Base.tws");
    EXPECT_EQ(child["outputs"], Json({{"W", "10"}}));
    EXPECT_EQ(child["equations"][0]["value"], "10");
}

TEST(Run, AFailedEquationIsToldWithFileAndRowAndFailsTheCall) {
    const Library library;
    const std::string file = library / "Connection Standards/Failing.tws";
    const auto text = library.call({"run", "Failing", "--set", "P=2", "--trace"});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_THAT(text.err, testing::StartsWith("vormant: " + file + ":6: W=P+: "));
    EXPECT_EQ(std::count(text.err.begin(), text.err.end(), '\n'), 1) << text.err;
    EXPECT_THAT(text.out, testing::AllOf(HasSubstr("failed: "), HasSubstr("W  0.5")));

    const auto json = library.call({"run", "Failing", "--set", "P=2", "--json"});
    EXPECT_EQ(json.exitCode, 1);
    const Json report = Json::parse(json.out);
    EXPECT_EQ(report["ok"], false);
    EXPECT_EQ(report["equations"][0]["ok"], false);
    EXPECT_EQ(report["outputs"]["W"], "0.5");
    ASSERT_EQ(report["messages"].size(), 1u);
    EXPECT_EQ(report["messages"][0][0], "The following equation failed:");
}

TEST(Run, AnOutputThatIsAnErrorFailsTheCall) {
    const Library library;
    library.add("Divide", {"Input", "Double P", "Output", "Double W", "Calc", "W=1/P"});
    const auto result = library.call({"run", "Divide", "--set", "P=0"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.out, HasSubstr("W  #DIV/0!"));
    EXPECT_THAT(result.err, HasSubstr("W\" is #DIV/0!"));
}

TEST(Run, AnErrorGoesThroughTextsToo) {
    const Library library;
    library.add("Text",
                {"Input", "Double P", "Output", "Double W", "String Kept", "Local", "String T",
                 "Calc", "T=1/P", "Kept=IFERROR(T,\"none\")", "T=\"about \"&T", "W=LEN(T)"});
    const auto result = library.call({"run", "Text", "--set", "P=0"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.out, HasSubstr("W     #DIV/0!\n  Kept  none\n"));
}

TEST(Run, AnErrorInATextIsToldOfEveryOutputThatItReaches) {
    const Library library;
    library.add("Childs/Divide", {"Input", "Double P", "Output", "String W", "Calc", "W=1/P"});
    library.add("Childs/Join", {"Input", "String T", "Output", "String W", "Calc", "W=T&\"!\""});
    library.add("Own", {"Input", "Double P", "Output", "String W", "Int N", "Calc", "W=\"M\"&1/P",
                        "N=IF(W=\"\",1,2)"});
    library.add("Cell",
                {"Input", "Double P", "Output", "String W", "Int N", "Calc", "W=1/P", "N=LEN(A7)"});
    library.add("Calls", {"Input", "Double P", "Output", "String W", "Int N", "Calc",
                          "CallChild(\"Divide.tws\",P,W)", "N=LEN(W)"});
    library.add("Hands", {"Input", "Double P", "Output", "String W", "Local", "String T", "Calc",
                          "T=1/P", "CallChild(\"Join.tws\",T,W)"});
    const struct {
        std::string standard;
        std::vector<std::string> places;
    } cases[] = {
        {"Own", {"Own.tws:7: output \"W\"", "Own.tws:8: output \"N\""}},
        {"Cell", {"Cell.tws:7: output \"W\"", "Cell.tws:8: output \"N\""}},
        {"Calls", {"Divide.tws:6: output \"W\"", "Calls.tws:7: output \"W\"", ":8: output \"N\""}},
        {"Hands", {"Join.tws:6: output \"W\"", "Hands.tws:9: output \"W\""}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.standard);
        const auto result = library.call({"run", row.standard, "--set", "P=0", "--json"});
        EXPECT_EQ(result.exitCode, 1);
        const Json report = Json::parse(result.out);
        EXPECT_EQ(report["ok"], false);
        for (const auto& [name, value] : report["outputs"].items())
            EXPECT_EQ(value, "#DIV/0!") << name;
        for (const auto& place : row.places)
            EXPECT_THAT(result.err, HasSubstr(place + " is #DIV/0! by the equation in this row"));
        EXPECT_EQ(report["messages"].size(), row.places.size());
        EXPECT_THAT(library.call({"batch", row.standard, "--jsonl"}, "{\"P\":0}").out,
                    HasSubstr("line 1: W is #DIV/0!"));
        EXPECT_EQ(library.call({"run", row.standard, "--set", "P=1"}).exitCode, 0);
    }
}

TEST(Run, WhatCannotBeRunFailsWithOneMessage) {
    const Library library;
    library.add("NoOutput", {"Input", "Double P", "Calc"});
    library.add("NoCalc", {"Input", "Double P", "Output", "Double W"});
    library.add("Self",
                {"Input", "Double P", "Output", "Double W", "Calc", "CallChild(\"Self.tws\",P,W)"});
    library.add("Ring", {"Input", "Double P", "Output", "Double W", "Calc",
                         "CallChild(\"Ring2.tws\",P,W)"});
    library.add("Ring2",
                {"Input", "Double P", "Output", "Double W", "Calc", "CallChild(\"Ring.tws\",P,W)"});
    library.write("Connection Standards/Empty.tws", "");
    library.write("Connection Standards/Binary.tws", std::string("\x7F\x45\x4C\x46\0\1\2", 7));
    library.write("Connection Standards/Cut.tws", column({"Input", "Output"}).substr(0, 40));
    for (const std::string name :
         {"NoOutput", "NoCalc", "Self", "Ring", "Empty", "Binary", "Cut"}) {
        SCOPED_TRACE(name);
        const auto result = library.call({"run", name, "--set", "P=1"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr(name));
        const auto json = library.call({"run", name, "--set", "P=1", "--json"});
        EXPECT_EQ(json.exitCode, 1);
        EXPECT_EQ(Json::parse(json.out)["ok"], false);
        EXPECT_FALSE(Json::parse(json.out)["messages"].empty());
    }
}

TEST(Run, NamesDeclaredTwiceTakeTheirFirstPlaceAndAreTold) {
    const Library library;
    library.add("Twice", {"Input", "Double P", "Double P", "Double Q", "Output", "Double W",
                          "Double W", "Double V", "Calc", "W=P*10+Q", "V=Q"});
    const auto run = library.call({"run", "Twice", "--set", "P=1", "--set", "Q=2"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("  P  1\n  Q  2\nOutputs\n  W  12\n  V  2\n"));
    EXPECT_THAT(run.err, HasSubstr("declared more than once: P, W"));
    const auto batch = library.call({"batch", "Twice"}, "Q,P\n5,1\n6,2\n");
    EXPECT_EQ(batch.out, "W,V,error\n15,5,\n26,6,\n");
    EXPECT_EQ(batch.err.find("duplicate"), batch.err.rfind("There were duplicate") + 11)
        << "told once, not for every line";
}

TEST(Run, GenValuesReplaceNamesInTheSheet) {
    const Library library;
    library.add("Gen", {"Input", "Double P", "Output", "Double W", "String S", "Calc",
                        "W=gen_Length/P", "S=gen_Name"});
    const auto result = library.call(
        {"run", "Gen", "--set", "P=4", "--gen", "gen_Length=600", "--gen", "gen_Name=IPE-200"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("W  150\n  S  IPE-200\n"));
    EXPECT_EQ(library.call({"run", "Gen", "--set", "P=4", "--gen", "x"}).exitCode, 2);
    EXPECT_THAT(library.call({"run", "Gen", "--set", "P=4", "--gen", "a=1", "--gen", "A=2"}).err,
                HasSubstr("--gen A=2: this name is given twice"));
}

class RunOnMacro : public testing::Test {
  protected:
    RunOnMacro() {
        std::filesystem::copy(VORMANT_SOURCE_DIR "/library", m_folder.path(),
                              std::filesystem::copy_options::recursive);
    }
    program::Result run(std::vector<std::string> options, const std::string& key) const {
        options.insert(options.begin(), {"--library", m_folder.path().string(), "standards", "run",
                                         "EndPlate", "--macro", m_folder / m_macro, "--key", key});
        return program::run(options);
    }
    program::Folder m_folder;
    std::string m_macro = "Macros/EndPlate.macro";
};

TEST_F(RunOnMacro, WritesTheMacroBackOnlyWhenAsked) {
    const std::string before = m_folder.read(m_macro);
    const auto dry = run({"--json"}, "BeamToColumn");
    EXPECT_EQ(dry.exitCode, 0) << dry.err;
    EXPECT_EQ(Json::parse(dry.out)["inputs"]["BeamSection"], "IPE-300");
    EXPECT_EQ(m_folder.read(m_macro), before);

    const std::string height = Json::parse(dry.out)["outputs"]["PlateHeight"];
    EXPECT_EQ(run({"--write"}, "BeamToColumn").exitCode, 0);
    EXPECT_THAT(m_folder.read(m_macro), HasSubstr("module.Plate.var.Height\t" + height + "\n"));
    EXPECT_NE(m_folder.read(m_macro), before);
}

TEST_F(RunOnMacro, SaysWhatIsMissingAndLeavesTheMacroAlone) {
    const std::string before = m_folder.read(m_macro);
    const struct {
        std::string key;
        std::string message;
    } calls[] = {
        {"Nope", "EndPlate.map: there is no key \"Nope\"; there are:\n  BeamToColumn"},
        {"Module.Nope", "no such group"},
        {"Module.", "EndPlate.map: there is no key \"Module.\""},
    };
    for (const auto& call : calls) {
        const auto result = run({"--write"}, call.key);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr(call.message));
    }
    EXPECT_EQ(m_folder.read(m_macro), before);

    // An equation that fails keeps the file from being written.
    const std::string standard = "Connection Standards/EndPlate.tws";
    std::string text = m_folder.read(standard);
    text.replace(text.find("=TONUMBER("), 10, "=NONUMBER(");
    m_folder.write(standard, text);
    const auto failed = run({"--write"}, "BeamToColumn");
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_THAT(failed.err, HasSubstr("EndPlate.macro: left as it was"));
    EXPECT_EQ(m_folder.read(m_macro), before);

    // So does an error in an output, be it a text.
    const size_t rows = text.find("BoltRows=");
    text.replace(rows, text.find('\n', rows) - rows, "BoltRows=TEXT(1/0,\"0\")");
    text.replace(text.find("=NONUMBER("), 10, "=TONUMBER(");
    m_folder.write(standard, text);
    const auto error = run({"--write"}, "BeamToColumn");
    EXPECT_EQ(error.exitCode, 1);
    EXPECT_THAT(error.err, HasSubstr("\"BoltRows\" is #DIV/0! by the equation in this row; the "
                                     "macro keeps its value"));
    EXPECT_EQ(m_folder.read(m_macro), before);
}

TEST_F(RunOnMacro, InputsThatCannotBeReadAreNamedAndKeepTheMacroUnlessAskedOtherwise) {
    // The general variable that an input is mapped to is not in this macro.
    std::string text = m_folder.read("Connection Standards/EndPlate.map");
    text.replace(text.find("gen_ShearForce"), 14, "gen_Gone");
    m_folder.write("Connection Standards/EndPlate.map", text);
    const std::string before = m_folder.read(m_macro);
    for (const char* write : {"--json", "--write"}) {
        const auto refused = run({write}, "BeamToColumn");
        EXPECT_EQ(refused.exitCode, 1) << write;
        EXPECT_THAT(refused.err, HasSubstr("the input \"ShearForce\" could not be read"));
        EXPECT_EQ(m_folder.read(m_macro), before);
    }
    EXPECT_EQ(Json::parse(run({"--json"}, "BeamToColumn").out)["unreadInputs"],
              Json({"ShearForce"}));
    EXPECT_EQ(run({"--write=perhaps"}, "BeamToColumn").exitCode, 2);
    EXPECT_EQ(m_folder.read(m_macro), before);
    const auto written = run({"--write=always"}, "BeamToColumn");
    EXPECT_THAT(written.err, HasSubstr("the input \"ShearForce\" could not be read"));
    EXPECT_EQ(written.exitCode, 0) << written.err;
    EXPECT_NE(m_folder.read(m_macro), before);
}

TEST_F(RunOnMacro, BrokenMacrosAndMappingsAreNamed) {
    for (const std::string_view content : {"", "garbage", "\x7F\x45\x4C\x46"}) {
        m_folder.write(m_macro, content);
        const auto result = run({}, "BeamToColumn");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr("EndPlate.macro"));
    }
    std::filesystem::copy(VORMANT_SOURCE_DIR "/library/Macros/EndPlate.macro", m_folder / m_macro,
                          std::filesystem::copy_options::overwrite_existing);
    const std::string mapping = "Connection Standards/EndPlate.map";
    for (const std::string_view content : {"", "Mapping version 1.0\n", "\x7F\x45\x4C\x46\n"}) {
        m_folder.write(mapping, content);
        EXPECT_THAT(run({}, "Nothing").err, HasSubstr("EndPlate.map: there is no key \"Nothing\""));
    }
    m_folder.write(mapping, std::string(100000, '\x1B') + "=x\n");
    const auto unprintable = run({}, "Nothing");
    EXPECT_EQ(unprintable.err.find('\x1B'), std::string::npos);
    EXPECT_LT(unprintable.err.size(), 2000u);
    std::filesystem::remove(m_folder / mapping);
    EXPECT_THAT(run({}, "BeamToColumn").err, HasSubstr("EndPlate.map: No such file"));
}

}  // namespace
