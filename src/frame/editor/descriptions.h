// The rows of every data object that the editor of named values shows.
#pragma once

#include "core_api/dialog_data/dlg_macro_cuts_data.h"
#include "core_api/dialog_data/dlg_prof_cuts_data.h"
#include "core_api/dialog_data/dlg_prof_features_data.h"
#include "core_api/dialog_data/dyn_array_data.h"
#include "core_api/dialog_data/edit_constr_data.h"
#include "core_api/dialog_data/tw_auto_standards_data.h"
#include "core_api/dialog_data/tw_bracing_dlg_data.h"
#include "core_api/dialog_data/tw_cladding_dlg_data.h"
#include "core_api/dialog_data/tw_dlg_cis2_data.h"
#include "core_api/dialog_data/tw_grid_dlg_data.h"
#include "core_api/dialog_data/tw_levels_dlg_data.h"
#include "core_api/dialog_data/tw_look_up_dlg_data.h"
#include "core_api/dialog_data/tw_select_image_dlg_data.h"
#include "frame/editor/editor_data.h"
#include "frame/editor/named_value.h"

// Macros: macro_descriptions.cpp, macro_list_descriptions.cpp.
NamedValues describe(MacroData& data);
NamedValues describe(AdvancedProfiles& data);
NamedValues describe(ObjectProfile& data);
NamedValues describe(DlgMacroCutsData& data);
NamedValues describe(DynArrayData& data);
NamedValues describe(EditConstrData& data);
NamedValues describe(MacroChoice& data);
NamedValues describe(TwAutoStandardsData& data);

// Members and sections: member_descriptions.cpp.
NamedValues describe(ProfCuts& data);
NamedValues describe(DlgProfFeaturesData& data);
NamedValues describe(DstvPoints& data);
NamedValues describe(TwDlgCis2Data& data);

// Buildings and choices: building_descriptions.cpp.
NamedValues describe(TwGridDlgData& data);
NamedValues describe(TwLevelsDlgData& data);
NamedValues describe(TwCladdingDlgData& data);
NamedValues describe(TwBracingDlgData& data);
NamedValues describe(TwLookUpDlgData& data);
