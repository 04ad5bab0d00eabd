// How each starter is called here: with the macro in front or data of the library, and what is done
// with the result.
#pragma once

#include "workbench/module/starters_menu.h"

namespace starts {

// Macros: macro_starts.cpp.
Outcome macro(ModuleData& data);
Outcome macroModeless(ModuleData& data);
Outcome takeMacroData(ModuleData& data);
Outcome endMacroModeless(ModuleData& data);
Outcome destroyAllMacros(ModuleData& data);
Outcome constraintsModal(ModuleData& data);
Outcome constraints(ModuleData& data);
Outcome endConstraints(ModuleData& data);
Outcome macroCuts(ModuleData& data);
Outcome advancedProfiles(ModuleData& data);
Outcome profilesOfObjects(ModuleData& data);
Outcome array(ModuleData& data);
Outcome selectMacro(ModuleData& data);
Outcome selectMacroWithStandards(ModuleData& data);
Outcome generalVariables(ModuleData& data);
Outcome designer(ModuleData& data);
Outcome imageDialogNames(ModuleData& data);

// Tables and standards: table_starts.cpp.
Outcome grid(ModuleData& data);
Outcome readSheetFile(ModuleData& data);
Outcome formulas(ModuleData& data);
Outcome evaluate(ModuleData& data);
Outcome attachStandards(ModuleData& data);
Outcome runStandard(ModuleData& data);
Outcome selfTest(ModuleData& data);

// Sections, members, buildings and choices: member_starts.cpp.
Outcome sectionLibrary(ModuleData& data);
Outcome sectionSize(ModuleData& data);
Outcome memberCuts(ModuleData& data);
Outcome memberFeatures(ModuleData& data);
Outcome cuttingStock(ModuleData& data);
Outcome saveCuttingStock(ModuleData& data);
Outcome cis2(ModuleData& data);
Outcome dstvPoints(ModuleData& data);
Outcome constructionGrid(ModuleData& data);
Outcome levels(ModuleData& data);
Outcome cladding(ModuleData& data);
Outcome bracing(ModuleData& data);
Outcome lookUp(ModuleData& data);
Outcome selectImage(ModuleData& data);

inline Outcome changedIf(bool isOk) {
    return isOk ? Outcome::changed : Outcome::cancelled;
}

}  // namespace starts
