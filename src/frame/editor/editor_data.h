// What a few starters edit that is no data object of the core module: several of their arguments
// together, or settings that the module keeps itself.
#pragma once

#include "core_api/dialog_data/dlg_prof_cuts_data.h"
#include "core_api/dialog_data/tw_ma_call_back.h"
#include "core_api/macros/macro_data.h"

/// The member properties of one tab of a macro; those of all tabs when `tab` is empty, of all
/// groups when `group` is.
struct AdvancedProfiles {
    MacroData macro;
    Vor_String tab;
    Vor_String group;
};

/// The merged properties of some members.
struct ObjectProfile {
    MacroProfData properties;
    bool forAll = true;
};

/// The cuts of a member, and an option that lasts as long as the module is loaded.
struct ProfCuts {
    DlgProfCutsData cuts;
    bool usesForNext = false;
};

/// A macro picked from a list, or none at all.
struct MacroChoice {
    Vor_StringArray names;
    int chosen = -1;
    bool hasAlternative = false;
    bool isAlternative = false;
};

/// How points are marked in the output for machines; lasts as long as the module is loaded.
struct DstvPoints {
    enum class Mark { centrePunch, powder, none };
    Mark mark = Mark::centrePunch;
    double depth = 1;
    bool withLabels = false;
};
