// Mappings as texts, and the values they reach inside a macro.
#include <gtest/gtest.h>

#include "core_api/macros/macro_data.h"
#include "core_api/settings.h"
#include "macros/sample_macro.h"
#include "mapping/module_group_access.h"
#include "mapping/tw_object_map.h"
#include "support/temporary_folder.h"

namespace {

TEST(ObjectMap, TextsComeBackAsTheMappingTheyWereMadeFrom) {
    for (int code = 0; code <= 22; ++code) {
        const auto kind = static_cast<TwMapType>(code);
        Vor_String mapping = "kept";
        Vor_String variable = "kept";
        const TwObjectMap made("Grp 1", kind, "Obj 2;x", "Var");
        const ErrorStatus status = made.setMappingToStrs(mapping, variable);
        if (code == 0 || code == 22) {
            EXPECT_EQ(status, Acad::eInvalidInput);
            EXPECT_EQ(mapping, "kept");
            continue;
        }
        ASSERT_EQ(status, Acad::eOk) << code;
        TwObjectMap read;
        ASSERT_EQ(read.getMappingFromStrs(variable, mapping), Acad::eOk) << mapping.str();
        EXPECT_EQ(read.kind(), kind) << mapping.str();
        EXPECT_EQ(read.group(), "Grp 1");
        EXPECT_EQ(read.objectName(), "Obj 2;x");
        EXPECT_EQ(read.spreadsheetVariable(), "Var");
    }
    Vor_String mapping;
    Vor_String variable;
    ASSERT_EQ(TwObjectMap("G1", TwMapType::distance, "D1").setMappingToStrs(mapping, variable),
              Acad::eOk);
    EXPECT_EQ(mapping,
              "G1\x95"
              "Distance D1");
}

TEST(ObjectMap, ReadsWhatItKnowsAndRefusesTheRest) {
    struct Case {
        const char* mapping;
        int kind;  // 0: refused
        const char* group;
        const char* object;
    };
    const Case cases[] = {
        {"G\x95"
         "CutPolyOffset C2",
         4, "G", "C2"},
        {"G\x95  GenVar  gen_x ", 2, "G", " gen_x"},
        {"\x95"
         "BoltsDiameter",
         20, "", ""},
        {"G\x95"
         "Distances D1",
         1, "G", "D1"},
        {"G\x95"
         "Cut C2",
         0, "", ""},
        {"G\x95"
         "distance D1",
         0, "", ""},
        {"Distance D1", 0, "", ""},
        {"\x95", 0, "", ""},
        {"", 0, "", ""},
    };
    for (const Case& row : cases) {
        TwObjectMap map("old", TwMapType::cutRadius, "old");
        const ErrorStatus status = map.getMappingFromStrs("V", row.mapping);
        EXPECT_EQ(status == Acad::eOk, row.kind != 0) << row.mapping;
        if (row.kind == 0) {
            EXPECT_EQ(map.objectName(), "old") << row.mapping;
            continue;
        }
        EXPECT_EQ(static_cast<int>(map.kind()), row.kind) << row.mapping;
        EXPECT_EQ(map.group(), row.group) << row.mapping;
        EXPECT_EQ(map.objectName(), row.object) << row.mapping;
    }
    const TwVarCell cell("gap", TwCellType::input, TwValueType::Double);
    TwObjectMap map;
    EXPECT_EQ(map.mapFromArrays({"X", "GAP"},
                                {"",
                                 "G\x95"
                                 "Distance D1"},
                                cell),
              Acad::eOk);
    EXPECT_EQ(map.objectName(), "D1");
    EXPECT_EQ(map.mapFromArrays({"X", "GAP"}, {""}, cell), Acad::eInvalidInput);
    EXPECT_EQ(map.mapFromArrays({"X"},
                                {"G\x95"
                                 "Distance D1"},
                                cell),
              Acad::eInvalidInput);
}

class MappedMacro : public ::testing::Test {
  protected:
    MappedMacro() {
        library.write("prof/HEA.pr",
                      "HEA\t1\nSysName\tEnglish\tDutch\tGerman\tFrench\tI/O\th\tb\n"
                      "200\tHEA 200\tHEA 200\tHEA 200\tHEA 200\t1\t190\t200\n");
        gSettings.setLibDir(library.inside());
    }
    ~MappedMacro() override { gSettings.setLibDir(""); }

    Vor_String read(const TwObjectMap& map) {
        Vor_String value = "untouched";
        const ErrorStatus status = map.getMacroVarValue(&macro, &data, value, &transaction);
        return status == Acad::eOk ? value : "refused";
    }
    bool write(const TwObjectMap& map, Vor_String value) {
        return map.setMacroVarValue(&macro, &data, value, &transaction) == Acad::eOk;
    }
    Vor_String readInGroup(const char* module, const char* name, TwValueType type) {
        Vor_String value = "untouched";
        const ErrorStatus status = getSetModuleGroupVar(name, type, macro.macroWrite(),
                                                        macro.macroWrite()->findModuleWrite(module),
                                                        &data, value, true, &transaction);
        return status == Acad::eOk ? value : "refused";
    }
    bool writeInGroup(const char* module, const char* name, TwValueType type, Vor_String value) {
        return getSetModuleGroupVar(name, type, macro.macroWrite(),
                                    macro.macroWrite()->findModuleWrite(module), &data, value,
                                    false, &transaction) == Acad::eOk;
    }

    TemporaryFolder library;
    Vor_DbMacro macro = sampleMacro();
    MacroData data = makeMacroData(macro);
    AcTransaction transaction;
};

TEST_F(MappedMacro, EveryKindReadsItsValueAsText) {
    using enum TwMapType;
    struct Case {
        TwObjectMap map;
        const char* expected;
    };
    const Case cases[] = {
        {{"Plates", distance, "D1"}, "120.5"},
        {{"plates", cutOffset, "cope"}, "-5"},
        {{"Plates", TwMapType::cutRadius, "Cope"}, "12"},
        {{"", genVar, "gen_Gap"}, "10.12345679"},
        {{"", genVar, "gen_None"}, "refused"},
        {{"", prPlName, "Prof0"}, "HEA-200"},
        {{"", prPlMaterial, "Prof0"}, "HEA-200"},
        {{"", prPlName, "Prof7"}, "refused"},
        {{"", prPlName, "Profx"}, "refused"},
        {{"", prPlName, "0"}, "refused"},
        {{"", memberSectionSize, "Prof0;1"}, "200"},
        {{"", memberSectionSize, "Prof0;9"}, "refused"},
        {{"", memberSectionSize, "Prof1;0"}, "refused"},
        {{"", memberSectionSize, "Prof0"}, "refused"},
        {{"Bolts", patternNrBolts1, "Grid"}, "4"},
        {{"Bolts", patternNrBolts2, "Grid"}, "2"},
        {{"Bolts", patternReverseStart1, "Grid"}, "1"},
        {{"Bolts", patternReverseStart2, "Grid"}, "0"},
        {{"Bolts", boltsDiameter, ""}, "16"},
        {{"Bolts", boltsHoleOffset, ""}, "2"},
        {{"Braces", ownedMemberName, "Left"}, "Brace"},
        // A group that is there does the job even when no module has the object.
        {{"Plates", distance, "D9"}, "untouched"},
        {{"Plates", patternNrBolts1, "Grid"}, "untouched"},
        {{"Nobody", distance, "D1"}, "refused"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(read(row.map), row.expected)
            << mapTypeName(row.map.kind()) << " " << row.map.objectName().str();
    Vor_String value;
    EXPECT_EQ(cases[0].map.getMacroVarValue(nullptr, &data, value, &transaction),
              Acad::eInvalidInput);
}

TEST_F(MappedMacro, WritingReachesEveryModuleOfTheGroupAndComesBack) {
    using enum TwMapType;
    const TwObjectMap changeable[] = {
        {"Plates", distance, "D1"},
        {"Plates", TwMapType::cutRadius, "Cope"},
        {"", genVar, "gen_Gap"},
        {"Bolts", patternNrBolts1, "Grid"},
        {"Bolts", boltsDiameter, ""},
        {"Bolts", boltsHoleOffset, ""},
        {"Braces", ownedMemberName, "Right"},
    };
    for (const TwObjectMap& map : changeable) {
        EXPECT_TRUE(write(map, "7")) << mapTypeName(map.kind());
        EXPECT_EQ(read(map), "7") << mapTypeName(map.kind());
    }
    const TwObjectMap radius("Plates", TwMapType::cutRadius, "Cope");
    EXPECT_TRUE(write(radius, "7.12345674"));
    EXPECT_EQ(read(radius), "7.1234567");  // seven decimals
    const TwObjectMap start("Bolts", patternReverseStart1, "Grid");
    for (const char* flag : {"0", "1"}) {
        EXPECT_TRUE(write(start, flag));
        EXPECT_EQ(read(start), flag);
    }
    for (const char* module : {"Bolts1", "Bolts2"}) {
        const auto* bolts = asBoltModule(macro.macroRead()->findModule(module));
        EXPECT_TRUE(bolts->findPattern("Grid")->reverseStart1) << module;
    }
    EXPECT_FALSE(write({"", prPlName, "Prof0"}, "IPE-300"));
    EXPECT_FALSE(write({"", memberSectionSize, "Prof0;1"}, "7"));
    EXPECT_FALSE(write({"", genVar, "gen_None"}, "7"));
}

TEST_F(MappedMacro, AFlexibleDistanceIsFixedWhenItIsWritten) {
    ASSERT_TRUE(write({"Plates", TwMapType::distance, "D2"}, "55"));
    int tab = 0;
    bool fixed = false;
    bool varies = true;
    ASSERT_TRUE(data.findTab("Plates", tab));
    ASSERT_TRUE(data.getTab(tab)->getFlexFixBtnStatus("D2", fixed, varies));
    EXPECT_TRUE(fixed && !varies);
}

TEST_F(MappedMacro, ADistanceThatIsFixedInOneModuleOnlyIsFixedInAll) {
    Vor_Macro pair;
    for (const auto& [name, flex] :
         {std::pair("P1", Vor_FlexState::fixed), std::pair("P2", Vor_FlexState::flexible)}) {
        auto plate = std::make_unique<Vor_PlainModule>(name, Vor_ModuleType::plate);
        plate->setGroupName("Pair");
        plate->addVariable({"D", 1, true, true, flex});
        pair.addModule(std::move(plate));
    }
    macro = Vor_DbMacro(std::move(pair));
    data = makeMacroData(macro);
    ASSERT_TRUE(write({"Pair", TwMapType::distance, "D"}, "55"));
    ASSERT_EQ(data.setAllToMacro(&macro), Acad::eOk);
    for (const char* name : {"P1", "P2"}) {
        const ConstraintVariable* variable = macro.macroRead()->findModule(name)->findVariable("D");
        EXPECT_EQ(variable->flex, Vor_FlexState::fixed) << name;
        EXPECT_EQ(variable->value, 55) << name;
    }
}

TEST_F(MappedMacro, NamesOfModuleGroupsSayWhatTheyMean) {
    using enum TwValueType;
    struct Case {
        const char* module;
        const char* name;
        TwValueType type;
        const char* expected;
    };
    const Case cases[] = {
        {"Plate1", "gen.Gap", Double, "10.1235"},
        {"Plate1", "gen.None", Double, "refused"},
        {"Plate1", "gen.Gap", String, "refused"},
        {"Plate1", "Cope.Cut", Double, "-5"},
        {"Plate1", "cope.cutradius", Int, "12"},
        {"Plate1", "Cope.CutPoly", Double, "refused"},
        {"Plate1", "Cope.Cut", String, "refused"},
        {"Plate1", "Edge.Chamfer2", Double, "0"},
        {"Plate1", "D1", Double, "120.5"},
        {"Plate1", "Dist.x", Double, "-3"},
        {"Plate1", "D1", String, "refused"},
        {"Plate1", "D9", Double, "refused"},
        {"Plate1", "Bolts.Diameter", Double, "refused"},
        {"Bolts1", "Any.Diameter", Double, "16"},
        {"Bolts1", "Any.HoleOffset", Double, "2"},
        {"Bolts1", "Grid.NrBolts1", String, "4"},
        {"Bolts1", "Grid.NrBolts2", Int, "2"},
        {"Bolts1", "Row.NrBolts2", Int, "refused"},
        {"Bolts1", "Grid.ReverseStart1", Int, "1"},
        {"Bolts1", "Grid.ReverseStart1", String, "refused"},
        {"Plate1", "Grid.ReverseStart1", Int, "refused"},
        {"Braces", "Left.Name", String, "L-50x50x5"},
        {"Braces", "Left.Material", String, "S235"},
        {"Braces", "Nobody.Name", String, "refused"},
        {"Braces", "Left.MemberName", String, "Brace"},
        {"Braces", "Left.Name", Double, "refused"},
        {"Nobody", "D1", Double, "refused"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(readInGroup(row.module, row.name, row.type), row.expected)
            << row.module << ": " << row.name;

    EXPECT_TRUE(writeInGroup("Plate1", "gen.Gap", Double, "4.5"));
    EXPECT_EQ(macro.macroRead()->generalVariableValue("gen_Gap"), 4.5);
    EXPECT_TRUE(writeInGroup("Braces", "Left.MemberName", String, "Strut"));
    EXPECT_EQ(readInGroup("Braces", "Left.MemberName", String), "Strut");
    EXPECT_FALSE(writeInGroup("Braces", "Left.Name", String, "IPE-300"));
}

}  // namespace
