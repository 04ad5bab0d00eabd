// The dialog data of a macro: merging the modules of a group, and writing changes back.
#include "core_api/macros/macro_data.h"

#include <gtest/gtest.h>

#include <string>

#include "core_api/macros/macro_access.h"
#include "macros/sample_macro.h"

namespace {

class MacroDataTest : public ::testing::Test {
  protected:
    MacroTabData& tab(const char* key) {
        int index = -1;
        EXPECT_TRUE(data.findTab(key, index)) << key;
        return *data.getTab(index);
    }
    const Vor_BoltModule& bolts(const char* name) {
        return *asBoltModule(dbMacro.macroRead()->findModule(name));
    }
    const ConstraintVariable& variable(const char* name) {
        return *dbMacro.macroRead()->findModule("Plate1")->findVariable(name);
    }

    Vor_DbMacro dbMacro = sampleMacro();
    MacroData data = makeMacroData(dbMacro);
};

TEST_F(MacroDataTest, EveryGroupAndLooseModuleHasOneTab) {
    ASSERT_EQ(data.tabCount(), 4);
    EXPECT_EQ(tab("Plates").kind(), MacroTabData::Kind::plate);
    EXPECT_EQ(tab("bolts").kind(), MacroTabData::Kind::bolt);
    EXPECT_EQ(tab("bolts").moduleNames(), (Vor_StringArray{"Bolts1", "Bolts2"}));
    EXPECT_EQ(tab("Braces").kind(), MacroTabData::Kind::profile);
    EXPECT_EQ(tab("Plates").getBoltData(), nullptr);
    int index = 7;
    EXPECT_FALSE(data.findTab("Plate1", index)) << "a grouped module has no tab of its own";
    EXPECT_EQ(index, 7);
    EXPECT_EQ(data.getTab(4), nullptr);
    EXPECT_EQ(data.getTab(-1), nullptr);
    EXPECT_EQ(data.mappingData().moduleGroups(),
              (Vor_StringArray{"Plates", "Bolts", "Braces", "Plates2"}));
    EXPECT_EQ(makeMacroData(Vor_DbMacro()).tabCount(), 0);
}

TEST_F(MacroDataTest, UnchangedDataWritesBackTheMacroAsItWas) {
    const Vor_DbMacro before = dbMacro;
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    EXPECT_TRUE(dbMacro == before) << "modules that differ must keep their own values";
}

TEST_F(MacroDataTest, BoltSizesReachEveryModuleOfTheGroupOnceTheyAreSet) {
    MacroBoltData& sizes = *tab("Bolts").getBoltData();
    EXPECT_EQ(sizes.diameter(), "16");
    EXPECT_TRUE(sizes.diameterVaries());
    EXPECT_FALSE(sizes.holeOffsetVaries());
    for (const char* bad : {"", "M20", "0", "-4", "1e300"}) {
        EXPECT_EQ(sizes.setDiameter(bad), Acad::eInvalidInput) << bad;
    }
    EXPECT_EQ(sizes.setHoleOffset("-0.5"), Acad::eInvalidInput);
    EXPECT_TRUE(sizes.diameterVaries()) << "a refused text changes nothing";

    EXPECT_EQ(sizes.setHoleOffset("1.5"), Acad::eOk);
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    EXPECT_EQ(bolts("Bolts2").holeOffset(), 1.5);
    EXPECT_EQ(bolts("Bolts2").boltDiameter(), 20) << "diameters still differ";

    EXPECT_EQ(sizes.setDiameter("24"), Acad::eOk);
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    EXPECT_EQ(bolts("Bolts1").boltDiameter(), 24);
    EXPECT_EQ(bolts("Bolts2").boltDiameter(), 24);
}

TEST_F(MacroDataTest, BoltCountsReachThePatternOfEveryModuleThatHasIt) {
    Vor_String value = "5";
    ASSERT_EQ(getSetNrBolts(&tab("Bolts"), "Grid", value, false, false), Acad::eOk);
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    EXPECT_EQ(bolts("Bolts1").findPattern("Grid")->nrBolts2, 5);
    EXPECT_EQ(bolts("Bolts2").findPattern("Grid")->nrBolts2, 5);
    EXPECT_EQ(bolts("Bolts2").findPattern("Grid")->nrBolts1, 4);
    EXPECT_EQ(bolts("Bolts2").findPattern("Row")->nrBolts1, 3);
}

TEST_F(MacroDataTest, MergedMemberPropertiesAreStoredByGroup) {
    MacroTabData& braces = tab("Braces");
    MacroProfData properties;
    EXPECT_EQ(braces.getMergedPropsOfGroup("Middle", properties), Acad::eInvalidInput);
    ASSERT_EQ(braces.getMergedPropsOfGroup("left", properties), Acad::eOk);
    EXPECT_EQ(properties.memberName(), "Brace");
    EXPECT_EQ(properties.setMemberName("two\nlines"), Acad::eInvalidInput);
    EXPECT_EQ(properties.setMemberName(std::string(256, 'x')), Acad::eInvalidInput);
    ASSERT_EQ(properties.setMemberName("Tie"), Acad::eOk);
    ASSERT_EQ(braces.setMergedPropsOfGroup("LEFT", properties), Acad::eOk);
    EXPECT_EQ(braces.setMergedPropsOfGroup("Middle", properties), Acad::eInvalidInput);
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    const Vor_ProfModule& module = *asProfModule(dbMacro.macroRead()->findModule("Braces"));
    EXPECT_EQ(module.findPlacement("Left")->memberName, "Tie");
    EXPECT_EQ(module.findPlacement("Left")->name, "Left");
    EXPECT_EQ(module.findPlacement("Left")->sectionName, "L-50x50x5");
    EXPECT_EQ(module.findPlacement("Right")->memberName, "Brace");
}

TEST_F(MacroDataTest, FlexFixButtonsFixAVariableOnlyOnce) {
    MacroTabData& plates = tab("Plates");
    bool fixed = true;
    bool varies = true;
    ASSERT_TRUE(plates.getFlexFixBtnStatus("d2", fixed, varies));
    EXPECT_FALSE(fixed);
    EXPECT_FALSE(varies);
    EXPECT_FALSE(plates.getFlexFixBtnStatus("D1", fixed, varies));
    EXPECT_TRUE(plates.flexFixBtnClicked("D2", false));
    EXPECT_FALSE(plates.flexFixBtnClicked("D2", false)) << "it was fixed already";
    EXPECT_FALSE(plates.flexFixBtnClicked("D1", false));
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    EXPECT_EQ(variable("D2").flex, Vor_FlexState::fixed);
    EXPECT_EQ(variable("D1").flex, Vor_FlexState::none);
}

TEST_F(MacroDataTest, VariablesThatDifferBetweenModulesCountAsFixedAfterOneClick) {
    auto other = std::make_unique<Vor_PlainModule>("Plate3", Vor_ModuleType::plate);
    other->setGroupName("Plates");
    other->addVariable({"D2", 1, true, true, Vor_FlexState::fixed});
    ASSERT_EQ(dbMacro.macroWrite()->addModule(std::move(other)), Acad::eOk);
    data = makeMacroData(dbMacro);
    bool fixed = true;
    bool varies = false;
    ASSERT_TRUE(tab("Plates").getFlexFixBtnStatus("D2", fixed, varies));
    EXPECT_TRUE(varies);
    EXPECT_TRUE(tab("Plates").flexFixBtnClicked("D2", true)) << "now all are flexible";
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    const Vor_Module& plate3 = *dbMacro.macroRead()->findModule("Plate3");
    EXPECT_EQ(plate3.findVariable("D2")->flex, Vor_FlexState::flexible);
}

TEST_F(MacroDataTest, WritingBackIsAllOrNothing) {
    Vor_Macro smaller;
    smaller.addModule(samplePlate());
    Vor_DbMacro other(smaller);
    const Vor_DbMacro before = other;
    tab("Plates").flexFixBtnClicked("D2", false);
    EXPECT_EQ(data.setAllToMacro(&other), Acad::eInvalidInput) << "the other modules are gone";
    EXPECT_TRUE(other == before);
    Vor_DbMacro none;
    EXPECT_EQ(data.setAllToMacro(&none), Acad::eInvalidInput);
    EXPECT_EQ(data.setAllToMacro(nullptr), Acad::eInvalidInput);
}

TEST_F(MacroDataTest, AttachedStandardsKeepNamesAndKeysInStep) {
    TabMappingData& rows = data.mappingData();
    ASSERT_EQ(rows.insertRow(0, "Welds", "abc"), Acad::eOk);
    ASSERT_EQ(rows.insertRow(2, "Plates"), Acad::eOk);
    EXPECT_EQ(rows.swapRows(0, 2), Acad::eOk);
    EXPECT_EQ(rows.removeRow(1), Acad::eOk);
    EXPECT_EQ(rows.standardsNames(), (Vor_StringArray{"Plates", "Welds"}));
    EXPECT_EQ(rows.mappingKeys(), (Vor_StringArray{"", "abc"}));
    Vor_String key = "kept";
    EXPECT_EQ(rows.getMapping(2, key), Acad::eInvalidInput);
    EXPECT_EQ(rows.setRow(-1, "x", "y"), Acad::eInvalidInput);
    EXPECT_EQ(rows.setRow(0, "x", "a\tb"), Acad::eInvalidInput);
    EXPECT_EQ(rows.insertRow(3, "x", "y"), Acad::eInvalidInput);
    EXPECT_EQ(rows.swapRows(0, 2), Acad::eInvalidInput);
    EXPECT_EQ(rows.removeRow(2), Acad::eInvalidInput);
    EXPECT_EQ(key, "kept");
    ASSERT_EQ(data.setAllToMacro(&dbMacro), Acad::eOk);
    EXPECT_EQ(dbMacro.macroRead()->standards().standardsNames(), rows.standardsNames());
}

}  // namespace
