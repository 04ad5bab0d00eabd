// Macro files: what a file says is what the macro holds, and a damaged file changes nothing.
#include "core_api/macros/macro_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "core_api/macros/macro_key.h"
#include "core_api/macros/macro_limits.h"
#include "macros/sample_macro.h"
#include "support/temporary_folder.h"
#include "test_folders.h"

namespace {

const char* const sampleText =
    "properties 1\n"
    "i\tmacro.version\t1\n"
    "d\tgeneral.gen_Gap\t10.123456789\n"
    "s\tprofile.0\tHEA-200\n"
    "s\tprofile.0.material\tS355\n"
    "s\tprofile.0.member\tColumn\n"
    "s\tprofile.1\tIPE-300\n"
    "s\tstandard.0\tEnd plates\\\\Bolts\n"
    "s\tstandard.0.key\tModule.Bolts\n"
    "s\tmodule.Plate1\tplate\n"
    "s\tmodule.Plate1.group\tPlates\n"
    "d\tmodule.Plate1.var.D1\t120.5\n"
    "d\tmodule.Plate1.var.D2\t40\n"
    "b\tmodule.Plate1.var.D2.editable\t0\n"
    "s\tmodule.Plate1.var.D2.flex\tflexible\n"
    "d\tmodule.Plate1.var.Dist..x\t-3\n"
    "b\tmodule.Plate1.var.Dist..x.dialog\t0\n"
    "b\tmodule.Plate1.var.Dist..x.editable\t0\n"
    "s\tmodule.Plate1.cut.Cope\tnotch\n"
    "d\tmodule.Plate1.cut.Cope.offset\t-5\n"
    "d\tmodule.Plate1.cut.Cope.lengthOffset\t0\n"
    "d\tmodule.Plate1.cut.Cope.radius\t12\n"
    "s\tmodule.Plate1.cut.Edge\tchamfer\n"
    "d\tmodule.Plate1.cut.Edge.chamfer1\t0\n"
    "d\tmodule.Plate1.cut.Edge.chamfer2\t0\n"
    "s\tmodule.Bolts1\tbolt\n"
    "s\tmodule.Bolts1.group\tBolts\n"
    "d\tmodule.Bolts1.diameter\t16\n"
    "d\tmodule.Bolts1.holeOffset\t2\n"
    "s\tmodule.Bolts1.pattern.Grid\tgrid\n"
    "i\tmodule.Bolts1.pattern.Grid.count1\t4\n"
    "b\tmodule.Bolts1.pattern.Grid.reverse1\t1\n"
    "i\tmodule.Bolts1.pattern.Grid.count2\t2\n"
    "s\tmodule.Bolts1.pattern.Row\trow\n"
    "i\tmodule.Bolts1.pattern.Row.count1\t3\n"
    "s\tmodule.Bolts2\tbolt\n"
    "s\tmodule.Bolts2.group\tBolts\n"
    "d\tmodule.Bolts2.diameter\t20\n"
    "d\tmodule.Bolts2.holeOffset\t2\n"
    "s\tmodule.Bolts2.pattern.Grid\tgrid\n"
    "i\tmodule.Bolts2.pattern.Grid.count1\t4\n"
    "b\tmodule.Bolts2.pattern.Grid.reverse1\t1\n"
    "i\tmodule.Bolts2.pattern.Grid.count2\t2\n"
    "s\tmodule.Bolts2.pattern.Row\trow\n"
    "i\tmodule.Bolts2.pattern.Row.count1\t3\n"
    "s\tmodule.Braces\tprofile\n"
    "s\tmodule.Braces.placement.Left\tL-50x50x5\n"
    "s\tmodule.Braces.placement.Left.material\tS235\n"
    "s\tmodule.Braces.placement.Left.member\tBrace\n"
    "s\tmodule.Braces.placement.Right\tL-60x60x6\n"
    "s\tmodule.Braces.placement.Right.member\tBrace\n"
    "s\tmodule.Plates2\tplate\n"
    "end\n";

ErrorStatus readText(std::string_view text, Vor_DbMacro& macro, Vor_String& message) {
    Vor_PropertyList properties;
    if (!properties.read(text, "f", message)) return Acad::eInvalidInput;
    return readMacro(properties, "f", macro, message);
}

TEST(MacroKeys, AnyMacroNameSurvivesAKey) {
    const std::vector<std::string> names[] = {
        {"module", "Plate.1", "var", "a..b"}, {"a.", "b"}, {"two words", "x=y", "c..."}};
    for (const auto& row : names) {
        std::string key = joinMacroKey({row[0]});
        for (size_t i = 1; i < row.size(); ++i) key += "." + joinMacroKey({row[i]});
        EXPECT_EQ(splitMacroKey(key), row) << key;
    }
    for (const char* bad : {"", ".", ".a", "a.", "module.", "a...b."}) {
        EXPECT_TRUE(splitMacroKey(bad).empty()) << bad;
    }
}

TEST(MacroFile, SavesWhatItLoadsByteForByte) {
    const TemporaryFolder folder;
    Vor_String message;
    const Vor_DbMacro sample = sampleMacro();
    ASSERT_EQ(saveMacro(folder.inside("End plate.dwg"), sample, message), Acad::eOk)
        << message.str();
    EXPECT_EQ(folder.read("End plate.macro"), sampleText);

    Vor_DbMacro loaded;
    ASSERT_EQ(loadMacro(folder.inside("End plate.DWG"), loaded, message), Acad::eOk)
        << message.str();
    EXPECT_TRUE(loaded == sample);
    Vor_PropertyList again;
    ASSERT_EQ(writeMacro(loaded, again, message), Acad::eOk);
    EXPECT_EQ(again.write(), sampleText);
}

TEST(MacroFile, DefaultsNeedNoLinesAndLinesOfModulesMayBeMixed) {
    Vor_DbMacro macro;
    Vor_String message;
    ASSERT_EQ(readText("properties 1\ni\tmacro.version\t1\ns\tmodule.A\tweld\ns\tmodule.B\tbolt\n"
                       "i\tmodule.A.var.D1\t12\ns\tmodule.B.pattern.P\tcircle\n"
                       "b\tmodule.a.var.d1.editable\t0\nend\n",
                       macro, message),
              Acad::eOk)
        << message.str();
    const ConstraintVariable& variable = *macro.macroRead()->findModule("A")->findVariable("D1");
    EXPECT_EQ(variable, (ConstraintVariable{"D1", 12, true, false, Vor_FlexState::none}));
    EXPECT_EQ(asBoltModule(macro.macroRead()->findModule("B"))->findPattern("P")->nrBolts1, 0);
}

// Each row is put below the lines of the sample; the message names that line.
TEST(MacroFile, RefusesDamagedLinesWithOneClearMessage) {
    const struct {
        const char* line;
        const char* message;
    } cases[] = {
        {"s\tcolour\tred", "this key is not known; compare it with the description of macro files"},
        {"s\tmodule.Plate1.var\tred",
         "this key is not known; compare it with the description of macro files"},
        {"d\tmodule.Plate1.diameter\t16",
         "this key is not known; compare it with the description of macro files"},
        {"s\tmodule.\tplate", "a name in the key is empty; write a dot inside a name twice"},
        {"s\tmodule.X\tplank",
         "this word is not known here; write one of plate, bolt, profile, weld, other"},
        {"d\tmodule.Nobody.var.D1\t1",
         "there is no module \"Nobody\" above; write the line with its kind first"},
        {"s\tmodule.PLATE1\tplate",
         "the module \"PLATE1\" is there already, or there are more than 1000; rename it or "
         "remove it"},
        {"s\tmodule.a\\nb\tplate",
         "the module \"a?b\" cannot be named so; use up to 255 ordinary characters without blanks "
         "at the ends"},
        {"s\tmodule.Plate1.var.D3\tx", "a number stands here; write d as the type"},
        {"d\tmodule.Plate1.var.D3\t1e300",
         "the number is too large; lengths lie within a billion millimetres"},
        {"b\tmodule.Plate1.var.D3.dialog\t1",
         "there is no var \"D3\" above; write the line that ends in this name first"},
        {"i\tmodule.Plate1.var.D1.dialog\t1", "a flag stands here; write b as the type"},
        {"s\tmodule.Plate1.var.D1.flex\tbent",
         "this word is not known here; write one of none, fixed, flexible"},
        {"s\tmodule.Plate1.cut.C9\tsaw",
         "this type of cut is not known; write one of plane, outline, notch, slot, fit, chamfer, "
         "round"},
        {"d\tmodule.Plate1.cut.Cope.chamfer1\t3",
         "a cut of type notch has no such offset; remove the line or change the type"},
        {"s\tmodule.Plate1.pattern.P\trow",
         "a plate module has no pattern; remove the line or change the kind"},
        {"i\tmodule.Bolts1.pattern.Row.count2\t2",
         "only a grid has a second direction; remove the line or make the pattern a grid"},
        {"i\tmodule.Bolts2.pattern.grid.count1\t-1",
         "a bolt count lies between 0 and 10000; correct it"},
        {"d\tmodule.Bolts2.pattern.grid.count1\t2.5",
         "a whole number stands here; write i as the type"},
        {"s\tprofile.3\tIPE-80",
         "profiles are numbered from 0 without gaps; the next new one is 2"},
        {"s\tstandard.01.key\tx",
         "standards are numbered from 0 without gaps; the next new one is 1"},
        {"d\tgeneral.GEN_gap\t1",
         "the general variable \"GEN_gap\" is there already, or there are more than 1000; rename "
         "it or remove it"},
        {"i\tmacro.version\t1", "the key is already on line 2; remove one of them"},
    };
    const std::string body(sampleText, std::string_view(sampleText).size() - 4);
    const auto line = std::to_string(std::ranges::count(body, '\n') + 1);
    for (const auto& row : cases) {
        Vor_DbMacro macro = sampleMacro();
        Vor_String message;
        EXPECT_EQ(readText(body + row.line + "\nend\n", macro, message), Acad::eInvalidInput)
            << row.line;
        EXPECT_EQ(message.str(), "f:" + line + ": " + row.message) << row.line;
        EXPECT_TRUE(macro == sampleMacro()) << row.line;
    }
}

TEST(MacroFile, RefusesOtherListsAndNewerVersions) {
    const struct {
        const char* text;
        const char* message;
    } cases[] = {
        {"properties 1\nend\n",
         "f:2: this is not a macro file; its first property is macro.version"},
        {"properties 1\ns\tmodule.A\tplate\ni\tmacro.version\t1\nend\n",
         "f:2: this is not a macro file; its first property is macro.version"},
        {"properties 1\ni\tmacro.version\t2\nend\n",
         "f:2: this version of macro files is not known; use a newer program"},
    };
    for (const auto& row : cases) {
        Vor_DbMacro macro;
        Vor_String message;
        EXPECT_EQ(readText(row.text, macro, message), Acad::eInvalidInput) << row.text;
        EXPECT_EQ(message.str(), row.message);
    }
}

TEST(MacroFile, ATruncatedFileIsNeverTaken) {
    const std::string_view whole = sampleText;
    for (size_t size = 0; size < whole.size() - 1; ++size) {
        Vor_DbMacro macro;
        Vor_String message;
        ASSERT_EQ(readText(whole.substr(0, size), macro, message), Acad::eInvalidInput) << size;
        ASSERT_FALSE(message.isEmpty());
        ASSERT_EQ(macro.macroRead(), nullptr);
    }
}

TEST(MacroFile, AMacroTooLargeForAFileIsNotSaved) {
    Vor_Macro macro;
    for (int number = 0; number < 51; ++number) {
        auto plate =
            std::make_unique<Vor_PlainModule>(std::to_string(number), Vor_ModuleType::plate);
        for (int d = 0; d < maxMacroItems; ++d) {
            plate->addVariable({std::to_string(d), 0, false, false, Vor_FlexState::fixed});
        }
        ASSERT_EQ(macro.addModule(std::move(plate)), Acad::eOk);
    }
    const TemporaryFolder folder;
    folder.write("m.macro", "old");
    Vor_String message;
    EXPECT_EQ(saveMacro(folder.inside("m.macro"), Vor_DbMacro(macro), message),
              Acad::eInvalidInput);
    EXPECT_EQ(message.str(),
              "the macro has more values than a file holds; split it into smaller macros");
    EXPECT_EQ(saveMacro(folder.inside("m.macro"), Vor_DbMacro(), message), Acad::eInvalidInput);
    EXPECT_EQ(folder.read("m.macro"), "old");
    EXPECT_EQ(folder.fileCount(), 1);
}

// What is shipped is written as the program writes it, so that saving one makes no needless
// differences.
TEST(MacroFile, EveryShippedMacroIsSavedAsItStands) {
    int macros = 0;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(VORMANT_SOURCE_DIR) / "library" / "Macros")) {
        if (entry.path().extension() != ".macro") continue;
        ++macros;
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        Vor_DbMacro macro;
        Vor_String message;
        ASSERT_EQ(readText(text, macro, message), Acad::eOk) << entry.path() << message.str();
        Vor_PropertyList properties;
        ASSERT_EQ(writeMacro(macro, properties, message), Acad::eOk);
        EXPECT_EQ(properties.write(), text) << entry.path();
    }
    EXPECT_GT(macros, 0);
}

}  // namespace
