// An end plate with two bolt groups, a brace and one loose plate: every kind of module and value.
#pragma once

#include "core_api/macros/vor_db_macro.h"

inline std::unique_ptr<Vor_Module> samplePlate() {
    auto plate = std::make_unique<Vor_PlainModule>("Plate1", Vor_ModuleType::plate);
    plate->setGroupName("Plates");
    plate->addVariable({"D1", 120.5, true, true, Vor_FlexState::none});
    plate->addVariable({"D2", 40, true, false, Vor_FlexState::flexible});
    plate->addVariable({"Dist.x", -3, false, false, Vor_FlexState::none});
    CutConstraint notch{"Cope", TwCutType::notch, {}};
    notch.offsets[cutOffset] = -5;
    notch.offsets[cutRadius] = 12;
    plate->addCut(notch);
    plate->addCut({"Edge", TwCutType::chamfer, {}});
    return plate;
}

inline std::unique_ptr<Vor_Module> sampleBolts(const char* name, double diameter, int count) {
    auto bolts = std::make_unique<Vor_BoltModule>(name);
    bolts->setGroupName("Bolts");
    bolts->setBoltDiameter(diameter);
    bolts->addPattern({{}, "Grid", Vor_PatternType::grid, count, 2, true, false});
    bolts->addPattern({{}, "Row", Vor_PatternType::row, 3, 0, false, false});
    return bolts;
}

inline std::unique_ptr<Vor_Module> sampleBraces() {
    auto braces = std::make_unique<Vor_ProfModule>("Braces");
    braces->addPlacement({"Left", "L-50x50x5", "S235", "Brace"});
    braces->addPlacement({"Right", "L-60x60x6", "", "Brace"});
    return braces;
}

inline Vor_DbMacro sampleMacro() {
    Vor_Macro macro;
    macro.addModule(samplePlate());
    macro.addModule(sampleBolts("Bolts1", 16, 4));
    macro.addModule(sampleBolts("Bolts2", 20, 4));
    macro.addModule(sampleBraces());
    macro.addModule(std::make_unique<Vor_PlainModule>("Plates2", Vor_ModuleType::plate));
    macro.addGeneralVariable("gen_Gap", 10.123456789);
    TabMappingData standards;
    standards.insertRow(0, "End plates\\Bolts", "Module.Bolts");
    macro.setStandards(standards);
    Vor_DbMacro dbMacro(macro);
    dbMacro.addBaseProf({"", "HEA-200", "S355", "Column"});
    dbMacro.addBaseProf({"", "IPE-300", "", ""});
    return dbMacro;
}
