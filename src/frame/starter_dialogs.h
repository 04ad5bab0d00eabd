// Which dialog each starter runs. A dialog made for its data takes the place of the editor of named
// values here, by this one line; it needs a default constructor, data() and doModal().
#pragma once

#include "cutstock/cutting_stock_dialog.h"
#include "frame/editor/data_dialog.h"
#include "frame/editor/editor_kinds.h"
#include "sections/dialogs/library_dialog.h"
#include "sections/dialogs/size_dialog.h"

using EditConstrDialog = DataDialog<EditConstrData, constraintsEditor>;
using MacroCutsDialog = DataDialog<DlgMacroCutsData, cutsEditor>;
using ProfAdvDialog = DataDialog<AdvancedProfiles, advancedProfilesEditor>;
using ObjectProfileDialog = DataDialog<ObjectProfile, objectProfileEditor>;
using ProfCutsDialog = DataDialog<ProfCuts, profCutsEditor>;
using ArrayDialog = DataDialog<DynArrayData, arrayEditor>;
using SelectMacroDialog = DataDialog<MacroChoice, macroChoiceEditor>;
using EditLibSectionsDialog = LibraryDialog;
using EditLibSimpleDialog = SizeDialog;
using CSP2Dialog = TwCuttingStockDlg;
using ProfFeaturesDialog = DataDialog<DlgProfFeaturesData, featuresEditor>;
using GridDialog = DataDialog<TwGridDlgData, gridEditor>;
using LevelsDialog = DataDialog<TwLevelsDlgData, levelsEditor>;
using LookUpDialog = DataDialog<TwLookUpDlgData, lookUpEditor>;
using CladdingDialog = DataDialog<TwCladdingDlgData, claddingEditor>;
using Cis2Dialog = DataDialog<TwDlgCis2Data, cis2Editor>;
using BracingDialog = DataDialog<TwBracingDlgData, bracingEditor>;
using GenVarsDialog = DataDialog<TwAutoStandardsData, genVarsEditor>;
using DstvPointsDialog = DataDialog<DstvPoints, dstvPointsEditor>;
