// The starters: functions through which the host's core module opens the dialogs of this module.
// Unless said otherwise a starter is modal: the dialog works on a copy of the data object, which is
// copied back when the dialog ends with OK. The result says whether it did; a dialog that cannot be
// made counts as cancelled. Arguments stay the caller's.
#pragma once

#include <functional>

#include "core_api/dialog_data/dlg_csp2_data.h"
#include "core_api/dialog_data/dlg_edit_lib_data.h"
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
#include "core_api/dialog_data/tw_ma_call_back.h"
#include "core_api/dialog_data/tw_select_image_dlg_data.h"
#include "core_api/macros/macro_data.h"
#include "mapping/start_dlg_standards_ss.h"
#include "sections/vor_prof_values_table.h"

// --- macros -------------------------------------------------------------------------------------

/// The data is copied back whatever the result: what was applied on the way has happened.
VORMANT_API void StartDlgMacro(MacroData& data);

/// Modeless: returns at once, with the number of the dialog in `slot`. Unless `keepFocus`, the
/// host's main window gets the keyboard back.
VORMANT_API bool StartDlgMacroModeless(bool keepFocus, MacroData& data, int& slot);
/// Hears how a modeless macro dialog ended, once, when it has gone and its slot is free: whether
/// the user confirmed it, and its data as it was at the end. Closed by the user, by
/// EndDlgMacroModeless or with the host's main window is not confirmed. It may open the next
/// dialog.
using MacroDialogEnded = std::function<void(int slot, bool isConfirmed, const MacroData& data)>;
/// The same with a call when the dialog ended. There is none when it could not be opened (false),
/// and none for dialogs that go with this library.
VORMANT_API bool StartDlgMacroModeless(bool keepFocus, MacroData& data, int& slot,
                                       MacroDialogEnded ended);
/// False for a bad or free slot. A dialog that is busy is closed 50 ms later.
VORMANT_API bool EndDlgMacroModeless(int slot);
/// The data of an open dialog as it is now. False, with `data` as it was, for a bad or free slot.
VORMANT_API bool GetDlgMacroData(int slot, MacroData& data);
/// EndDlgMacroModeless for every slot, the last one first.
VORMANT_API void DestroyAllMacroDlgs();

/// `data` stays; its own call hears of the edited constraints.
VORMANT_API bool StartDlgEditConstrModal(EditConstrData& data);
/// Modeless, one at a time: while one is open nothing more happens. Always true.
VORMANT_API bool StartDlgEditConstraints(EditConstrData& data);
/// As MacroDialogEnded, for the constraints. `data.apply` has been called before when it is
/// confirmed.
using ConstraintsEnded = std::function<void(bool isConfirmed, const EditConstrData& data)>;
/// The same with a call when the dialog ended. False, and no call, when one is open already or none
/// can be made.
VORMANT_API bool StartDlgEditConstraints(EditConstrData& data, ConstraintsEnded ended);
/// Closes the open one, if any; one that is busy 50 ms later. Asks the host for a prompt either
/// way, once it has gone.
VORMANT_API void EndDlgEditConstraints();

/// `isChanged` says, whatever the result, whether the user changed a cut.
VORMANT_API bool StartDlgMacroCuts(DlgMacroCutsData& data, bool& isChanged);

/// The member properties of tab `tab`, group `group` (empty: of all). `showsMember` draws the
/// member for the user to look at. When `data` asks for it, that member and the one object of
/// `data` are erased afterwards.
VORMANT_API void StartDlgMacroProfAdv(MacroData& data, const Vor_String& tab,
                                      const Vor_String& group, bool showsMember);
/// The properties of single objects, which `callBack` reads and, after OK, writes. `forAll` is
/// taken in and out whatever the result. Nothing happens without objects.
VORMANT_API void StartDlgMacroProfAdv(AcArray<AcDbObjectId>* objects, bool& forAll,
                                      TwMACallBack callBack);

/// `data` stays; its own call hears of the edited cuts.
VORMANT_API bool StartEditProfCutsDlg(DlgProfCutsData& data);

/// `objects` are those the array is made of; `title` heads the dialog unless empty.
VORMANT_API bool StartArrayDlg(DynArrayData& data, const AcArray<AcDbObjectId>& objects,
                               const Vor_String& title);

/// Picks one of `macros` (drawing files) that is enabled. `previewWidth` and `previewHeight` are
/// pixels. After OK `macro` is the one chosen, and `isAlternative` says that the user wants none of
/// them, which is offered when it came in true; `explains` says why not when it came in false.
VORMANT_API bool StartDlgSelectMacro(const Vor_String& title, const Vor_StringArray& macros,
                                     const AcArray<bool>& enabled, const int& previewWidth,
                                     const int& previewHeight, Vor_String& macro,
                                     bool& isAlternative, bool explains);
/// The same with all macros enabled.
VORMANT_API bool StartDlgSelectMacro(const Vor_String& title, const Vor_StringArray& macros,
                                     const int& previewWidth, const int& previewHeight,
                                     Vor_String& macro, bool& isAlternative, bool explains);

/// The editor of designed dialogs, of which there is none yet: warns the user, naming `path` (which
/// may be empty). Always false.
VORMANT_API bool StartDlgDesigner(const Vor_String& path);
/// The variables that the edit fields of a designed dialog stand for, in the order of its file.
/// `dialog` is the path of its template, or its name below the folder of templates. False, with
/// `names` as they were and the reason printed, when it cannot be read.
VORMANT_API bool GetImageDlgCtrlNames(const Vor_String& dialog, Vor_StringArray& names);
VORMANT_API bool StartDlgGenVars(TwAutoStandardsData& data);

// --- tables -------------------------------------------------------------------------------------

/// Edits rows of texts. `choices` has, for each column, the texts to choose from separated by ";",
/// or an empty text for a column that is typed into; it may be short. `fixedRows`: rows are neither
/// added, removed nor moved. The dialog's size is kept under `name` ("DLG_SS_STRINGARRAY" when
/// empty); `title` heads it unless empty. False at once without columns.
VORMANT_API bool startGridDialog(const Vor_StringArray& columns, const Vor_StringArray& choices,
                                 Vor_Array<Vor_StringArray>& rows, bool fixedRows, Vor_String name,
                                 Vor_String title);

// --- sections and members -----------------------------------------------------------------------

/// Opens on the table of `section` (a full section name) when there is one. Tables are saved while
/// the dialog is open; the catalogue in `data` is written to the library when it ends with OK.
VORMANT_API bool StartDlgEditLibSections(DlgEditLibData& data, const Vor_String& section);
/// Adds a size to `table`, made from row `row`. `section` is a user section whose picture is shown
/// when the table does not say how it is drawn. `row` is set whatever the result: after OK to the
/// place of the new size among the active ones (-1 when none could be made), else as it was.
VORMANT_API bool StartDlgEditLibSimple(const Vor_String& section, Vor_ProfValuesTable& table,
                                       int& row);
/// Calculates cutting stock: items, their stock and the pieces to cut.
VORMANT_API bool StartDlgCSP2(DlgCSP2Data& data);
/// Edits the features of one member: holes, notches and the like. Lengths in millimetres.
VORMANT_API bool StartDlgProfFeatures(DlgProfFeaturesData& data);
/// Edits what a member and the sections are called in the CIS/2 format. The names of sections are
/// read from and written to the library.
VORMANT_API bool StartDlgCis2Info(TwDlgCis2Data& data);
/// Settings that last as long as the module is loaded.
VORMANT_API void StartDSTVPointsDlg();

// --- buildings and choices ----------------------------------------------------------------------

// Each edits the data object of its argument as said at the top.
VORMANT_API bool StartDlgGrid(TwGridDlgData& data);
VORMANT_API bool StartDlgLevels(TwLevelsDlgData& data);
VORMANT_API bool StartDlgCladdingSettings(TwCladdingDlgData& data);
VORMANT_API bool StartDlgBracing(TwBracingDlgData& data);
VORMANT_API bool StartDlgLookUp(TwLookUpDlgData& data);
VORMANT_API bool StartDlgSelectImage(TwSelectImageDlgData& data);
