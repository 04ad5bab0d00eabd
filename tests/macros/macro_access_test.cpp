// Reading and setting single values: what is refused, what comes back, what a round trip keeps.
#include "core_api/macros/macro_access.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "macros/sample_macro.h"

namespace {

constexpr bool get = true;
constexpr bool set = false;
constexpr bool first = true;
constexpr bool second = false;

class MacroAccess : public ::testing::Test {
  protected:
    Vor_DbMacro dbMacro = sampleMacro();
    Vor_Macro* macro = dbMacro.macroWrite();
    Vor_Module* plate = macro->findModuleWrite("Plate1");
    Vor_BoltModule* bolts = asBoltModule(macro->findModuleWrite("Bolts1"));
};

TEST_F(MacroAccess, ModulesAreFoundByGroupThenByNameAndEmptyGroupsMeanTheWholeMacro) {
    struct Case {
        const char* group;
        ErrorStatus status;
        Vor_StringArray names;
    };
    const Case cases[] = {
        {"bolts", Acad::eOk, {"Bolts1", "Bolts2"}}, {"Plate1", Acad::eOk, {"Plate1"}},
        {"Braces", Acad::eOk, {"Braces"}},          {"", Acad::eOk, {}},
        {"Nobody", Acad::eInvalidInput, {"kept"}},
    };
    for (const Case& row : cases) {
        Vor_StringArray names{"kept"};
        EXPECT_EQ(getModNamesOfGroup(macro, row.group, names), row.status) << row.group;
        EXPECT_EQ(names, row.names) << row.group;
    }
    Vor_Module* module = plate;
    EXPECT_EQ(openModule(macro, "BOLTS2", module, 1), Acad::eOk);
    EXPECT_EQ(module->name(), "Bolts2");
    EXPECT_EQ(openModule(macro, "Bolts", module, 0), Acad::eInvalidInput);
    EXPECT_EQ(openModule(macro, "Bolts1", module, -1), Acad::eInvalidInput);
    EXPECT_EQ(openModule(nullptr, "Bolts1", module, 0), Acad::eInvalidInput);
    EXPECT_EQ(module->name(), "Bolts2");
}

TEST_F(MacroAccess, DistancesTakeNumbersOnlyAndKeepTheOldValueOtherwise) {
    Vor_String value;
    ASSERT_EQ(getSetConstrVarValue(plate, "d1", value, get), Acad::eOk);
    EXPECT_EQ(value, "120.5");
    for (const char* bad : {"", "12 mm", "#DIV/0!", "1e999", "nan", "1e10", "12,5"}) {
        value = bad;
        EXPECT_EQ(getSetConstrVarValue(plate, "D1", value, set), Acad::eInvalidInput) << bad;
        EXPECT_EQ(plate->findVariable("D1")->value, 120.5) << bad;
    }
    for (const char* good : {"-7.25", "0.00000001", "999999999"}) {
        value = good;
        ASSERT_EQ(getSetConstrVarValue(plate, "D1", value, set), Acad::eOk) << good;
        value.clear();
        ASSERT_EQ(getSetConstrVarValue(plate, "D1", value, get), Acad::eOk);
        EXPECT_EQ(value, good);
    }
    EXPECT_EQ(getSetConstrVarValue(plate, "D9", value, get), Acad::eInvalidInput);
    EXPECT_EQ(value, "999999999");
}

TEST_F(MacroAccess, DialogVariablesCarryBothFlags) {
    Vor_StringArray names;
    AcArray<bool> inDialog, editable;
    ASSERT_EQ(getDialogVariables(plate, names, inDialog, editable), Acad::eOk);
    EXPECT_EQ(names, (Vor_StringArray{"D1", "D2", "Dist.x"}));
    EXPECT_EQ(inDialog, (AcArray<bool>{true, true, false}));
    EXPECT_EQ(editable, (AcArray<bool>{true, false, false}));
}

TEST_F(MacroAccess, CutsHaveTheOffsetsOfTheirTypeAndNoOthers) {
    CutConstraint cut;
    ASSERT_EQ(getCutConstraint(plate, "cope", cut), Acad::eOk);
    AcArray<TwCutOffsetType> offsets;
    ASSERT_EQ(getCutOffsets(cut.type, offsets), Acad::eOk);
    EXPECT_EQ(offsets, (AcArray<TwCutOffsetType>{cutOffset, cutLengthOffset, cutRadius}));

    struct Case {
        TwCutOffsetType offset;
        double value;
        ErrorStatus status;
    };
    const Case cases[] = {
        {cutOffset, -12.5, Acad::eOk},
        {cutLengthOffset, 30, Acad::eOk},
        {cutLengthOffset, -1, Acad::eInvalidInput},
        {cutRadius, std::numeric_limits<double>::quiet_NaN(), Acad::eInvalidInput},
        {cutRadius, std::numeric_limits<double>::infinity(), Acad::eInvalidInput},
        {cutPolyOffset, 1, Acad::eInvalidInput},
        {static_cast<TwCutOffsetType>(9), 1, Acad::eInvalidInput},
        {static_cast<TwCutOffsetType>(-1), 1, Acad::eInvalidInput},
    };
    for (const Case& row : cases) {
        double before = -99;
        const ErrorStatus known = getSetCutValue(plate, cut, row.offset, before, get);
        double value = row.value;
        EXPECT_EQ(getSetCutValue(plate, cut, row.offset, value, set), row.status) << row.offset;
        double after = -99;
        EXPECT_EQ(getSetCutValue(plate, cut, row.offset, after, get), known) << row.offset;
        EXPECT_EQ(after, row.status == Acad::eOk ? row.value : before) << row.offset;
    }
    EXPECT_EQ(cut, *plate->findCut("Cope")) << "the caller's copy keeps step";
    EXPECT_EQ(getCutOffsets(static_cast<TwCutType>(cutTypeCount), offsets), Acad::eInvalidInput);
    EXPECT_EQ(getCutConstraint(plate, "D1", cut), Acad::eInvalidInput);
}

TEST_F(MacroAccess, EveryOffsetIsPartOfSomeCutType) {
    for (int offset = 0; offset < cutOffsetCount; ++offset) {
        int types = 0;
        for (int type = 0; type < cutTypeCount; ++type) {
            const auto asType = static_cast<TwCutType>(type);
            types += hasCutOffset(asType, static_cast<TwCutOffsetType>(offset)) ? 1 : 0;
        }
        EXPECT_GT(types, 0) << "offset " << offset;
    }
}

TEST_F(MacroAccess, BoltCountsAreWholeAndBelongToADirection) {
    MacroData data = makeMacroData(dbMacro);
    int index = -1;
    ASSERT_TRUE(data.findTab("BOLTS", index));
    MacroTabData* tab = data.getTab(index);
    struct Case {
        const char* pattern;
        bool direction;
        const char* text;
        ErrorStatus status;
    };
    const Case cases[] = {
        {"Grid", first, "6", Acad::eOk},
        {"grid", second, " 4.0", Acad::eOk},
        {"Row", first, "0", Acad::eOk},
        {"Row", second, "2", Acad::eInvalidInput},
        {"Grid", first, "2.5", Acad::eInvalidInput},
        {"Grid", first, "-1", Acad::eInvalidInput},
        {"Grid", first, "10001", Acad::eInvalidInput},
        {"Grid", first, "#N/A", Acad::eInvalidInput},
        {"Circle", first, "6", Acad::eInvalidInput},
    };
    for (const Case& row : cases) {
        Vor_String value = row.text;
        EXPECT_EQ(getSetNrBolts(tab, row.pattern, value, set, row.direction), row.status)
            << row.pattern << " " << row.text;
    }
    Vor_String value = "kept";
    EXPECT_EQ(getSetNrBolts(tab, "Row", value, get, second), Acad::eInvalidInput);
    EXPECT_EQ(getSetNrBolts(nullptr, "Row", value, get, first), Acad::eInvalidInput);
    EXPECT_EQ(value, "kept");
    ASSERT_EQ(getSetNrBolts(tab, "Grid", value, get, first), Acad::eOk);
    EXPECT_EQ(value, "6");
    ASSERT_EQ(getSetNrBolts(tab, "Grid", value, get, second), Acad::eOk);
    EXPECT_EQ(value, "4");
}

// As mappings do it: "1" is sent as a set flag, and a set flag is read as "0".
TEST_F(MacroAccess, ReverseStartsComeBackAsTheyWereSent) {
    AcTransaction transaction;
    AcDbObjectId id;
    ASSERT_EQ(findPattern(bolts, "GRID", id, &transaction), Acad::eOk);
    const auto read = [&](bool direction) {
        bool flag = false;
        EXPECT_EQ(getSetBoltPatternReverses(bolts, id, direction, get, flag, &transaction),
                  Acad::eOk);
        return Vor_String(flag ? "0" : "1");
    };
    EXPECT_EQ(read(first), "1") << "the sample's grid is reversed in its first direction";
    EXPECT_EQ(read(second), "0");
    for (const char* sent : {"1", "0", "1"}) {
        bool flag = Vor_String(sent) == "1";
        ASSERT_EQ(getSetBoltPatternReverses(bolts, id, second, set, flag, &transaction), Acad::eOk);
        EXPECT_EQ(bolts->getPattern(id)->reverseStart2, Vor_String(sent) == "1");
        EXPECT_EQ(read(second), sent);
    }
    ASSERT_EQ(findPattern(bolts, "Row", id, nullptr), Acad::eOk);
    bool flag = true;
    EXPECT_EQ(getSetBoltPatternReverses(bolts, id, second, set, flag, nullptr),
              Acad::eInvalidInput);
    EXPECT_EQ(getSetBoltPatternReverses(bolts, id, second, get, flag, nullptr),
              Acad::eInvalidInput);
    EXPECT_EQ(findPattern(bolts, "Circle", id, nullptr), Acad::eInvalidInput);
}

TEST_F(MacroAccess, SectionsAndMaterialsComeFromPlacementsThatHaveThem) {
    const Vor_PrPl* profile = nullptr;
    Vor_String value = "kept";
    ASSERT_EQ(getNamedPrpl(macro->findModule("Braces"), "right", profile), Acad::eOk);
    EXPECT_EQ(getMaterial(profile, value, nullptr), Acad::eInvalidInput);
    EXPECT_EQ(value, "kept");
    EXPECT_EQ(getSectionName(profile, value, nullptr), Acad::eOk);
    EXPECT_EQ(value, "L-60x60x6");
    EXPECT_EQ(getNamedPrpl(plate, "Right", profile), Acad::eInvalidInput);

    ASSERT_EQ(getBaseProf(&dbMacro, 0, profile), Acad::eOk);
    EXPECT_EQ(getMaterial(profile, value, nullptr), Acad::eOk);
    EXPECT_EQ(value, "S355");
    EXPECT_EQ(getBaseProf(&dbMacro, 2, profile), Acad::eInvalidInput);
    EXPECT_EQ(getBaseProf(&dbMacro, -1, profile), Acad::eInvalidInput);
    EXPECT_EQ(getBaseProf(nullptr, 0, profile), Acad::eInvalidInput);
    EXPECT_EQ(dbMacro.mapBaseProfIds().length(), 2);
}

TEST_F(MacroAccess, ATransactionThatIsOverIsRefusedAndAnAbortedOnePutsTheMacroBack) {
    const Vor_DbMacro before = dbMacro;
    {
        AcTransaction transaction;
        transaction.remember(dbMacro);
        macro->setGeneralVariable("gen_gap", 99);
        ASSERT_FALSE(dbMacro == before);
    }
    EXPECT_TRUE(dbMacro == before) << "not committed is aborted";

    AcTransaction transaction;
    transaction.remember(dbMacro);
    dbMacro.macroWrite()->setGeneralVariable("gen_gap", 99);
    transaction.commit();
    transaction.abort();
    EXPECT_EQ(dbMacro.macroRead()->generalVariableValue("gen_Gap"), 99);
    Vor_String value;
    AcDbObjectId id;
    EXPECT_EQ(getSectionName(dbMacro.baseProf(0), value, &transaction), Acad::eInvalidInput);
    const Vor_BoltModule* module = asBoltModule(dbMacro.macroRead()->findModule("Bolts1"));
    EXPECT_EQ(findPattern(module, "Grid", id, &transaction), Acad::eInvalidInput);
}

}  // namespace
