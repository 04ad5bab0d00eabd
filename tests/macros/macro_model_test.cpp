// What a macro refuses to hold, and that copies are independent.
#include <gtest/gtest.h>

#include <string>

#include "core_api/macros/macro_limits.h"
#include "macros/sample_macro.h"

namespace {

TEST(MacroNames, MustBeFitForMappingsAndFiles) {
    for (const char* good : {"Plate1", "gen_Gap", "Dist.x", "two words", "\xE9\xE9n", "a=b"}) {
        EXPECT_TRUE(isMacroName(good)) << good;
    }
    for (const char* bad :
         {"", ".x", " a", "a ", "a\tb", "a\nb", "a\x95z", "a\x83z", "a\xBFz", "a\x7F"}) {
        EXPECT_FALSE(isMacroName(bad)) << bad;
    }
    EXPECT_TRUE(isMacroName(std::string(255, 'x')));
    EXPECT_FALSE(isMacroName(std::string(256, 'x')));
    EXPECT_FALSE(isMacroName(std::string_view("a\0b", 3)));
}

TEST(MacroModel, RefusesBadOrTakenItems) {
    const std::unique_ptr<Vor_Module> plate = samplePlate();
    const std::unique_ptr<Vor_Module> same = plate->clone();
    EXPECT_EQ(plate->addVariable({"d1", 1, true, true, {}}), Acad::eInvalidInput);
    EXPECT_EQ(plate->addVariable({"", 1, true, true, {}}), Acad::eInvalidInput);
    EXPECT_EQ(plate->addVariable({"D7", 2e9, true, true, {}}), Acad::eInvalidInput);
    EXPECT_EQ(plate->addCut({"COPE", TwCutType::plane, {}}), Acad::eInvalidInput);
    EXPECT_EQ(plate->addCut({"C", TwCutType::plane, {0, 1}}), Acad::eInvalidInput);
    EXPECT_EQ(plate->addCut({"C", TwCutType::chamfer, {0, 0, 0, 0, 0, 0, -1}}),
              Acad::eInvalidInput);
    EXPECT_EQ(plate->addCut({"C", static_cast<TwCutType>(99), {}}), Acad::eInvalidInput);
    EXPECT_EQ(plate->setFixed("D1", true), Acad::eInvalidInput);
    EXPECT_EQ(plate->setGroupName("a\x95"), Acad::eInvalidInput);
    EXPECT_TRUE(*plate == *same);

    EXPECT_EQ(plate->setVariables({{"A", 1, true, true, {}}, {"a", 2, true, true, {}}}),
              Acad::eInvalidInput);
    EXPECT_EQ(plate->setCuts({{"A", TwCutType::plane, {}}, {"B", TwCutType::plane, {0, 1}}}),
              Acad::eInvalidInput);
    EXPECT_TRUE(*plate == *same);

    Vor_BoltModule bolts("B");
    EXPECT_EQ(bolts.addPattern({{}, "P", Vor_PatternType::row, 2, 1, false, false}),
              Acad::eInvalidInput);
    EXPECT_EQ(bolts.addPattern({{}, "P", Vor_PatternType::circle, 2, 0, false, true}),
              Acad::eInvalidInput);
    EXPECT_EQ(bolts.addPattern({{}, "P", Vor_PatternType::grid, -1, 1, false, false}),
              Acad::eInvalidInput);
    EXPECT_EQ(bolts.setBoltDiameter(0), Acad::eInvalidInput);
    EXPECT_EQ(bolts.getPatternIds().length(), 0);

    Vor_ProfModule braces("P");
    EXPECT_EQ(braces.addPlacement({"", "L", "", ""}), Acad::eInvalidInput);
    EXPECT_EQ(braces.addPlacement({"A", "L\n", "", ""}), Acad::eInvalidInput);
    EXPECT_EQ(braces.setPlacement({"A", "L", "", ""}), Acad::eInvalidInput);

    Vor_DbMacro dbMacro = sampleMacro();
    Vor_Macro& macro = *dbMacro.macroWrite();
    EXPECT_EQ(macro.addModule(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(macro.addModule(std::make_unique<Vor_BoltModule>("PLATE1")), Acad::eInvalidInput);
    EXPECT_EQ(macro.addGeneralVariable("GEN_GAP", 1), Acad::eInvalidInput);
    EXPECT_EQ(macro.setGeneralVariable("gen_Gop", 1), Acad::eInvalidInput);
    EXPECT_EQ(macro.generalVariableValue("gen_Gop"), std::nullopt);
    EXPECT_TRUE(dbMacro == sampleMacro());
}

TEST(MacroModel, HoldsAtMostAThousandItemsOfAKind) {
    Vor_PlainModule plate("P", Vor_ModuleType::plate);
    for (int number = 0; number < maxMacroItems; ++number) {
        ASSERT_EQ(plate.addVariable({std::to_string(number), 0, true, true, {}}), Acad::eOk);
    }
    EXPECT_EQ(plate.addVariable({"more", 0, true, true, {}}), Acad::eInvalidInput);
}

TEST(MacroModel, CopiesAreIndependent) {
    const Vor_DbMacro original = sampleMacro();
    Vor_DbMacro copy = original;
    copy.macroWrite()->findModuleWrite("Plate1")->setVariable("D1", 1);
    EXPECT_EQ(original.macroRead()->findModule("Plate1")->findVariable("D1")->value, 120.5);
    EXPECT_FALSE(copy == original);
    copy = original;
    EXPECT_TRUE(copy == original);
    asBoltModule(copy.macroWrite()->findModuleWrite("Bolts2"))->setHoleOffset(3);
    EXPECT_FALSE(copy == original);
}

}  // namespace
