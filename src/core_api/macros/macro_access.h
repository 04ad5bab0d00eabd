// The named values of a macro, read and written one at a time as text or number: what the mapping
// of spreadsheets is made of. Pointers are borrowed for the call and may be null, which fails. All
// of these fail with eInvalidInput, with old values and out-parameters as they were. Names compare
// regardless of letter case. A transaction that is over is refused; null means outside of any.
#pragma once

#include "core_api/macros/macro_data.h"
#include "core_api/macros/vor_db_macro.h"

/// The names of the modules of a group, or of the one module of that name when there is no such
/// group. The empty group, which values of the whole macro carry, gives no names and eOk.
VORMANT_API ErrorStatus getModNamesOfGroup(const Vor_Macro* macro, std::string_view group,
                                           Vor_StringArray& names);

/// Opens a module for writing. `index` is its place (from 0) in the list that getModNamesOfGroup
/// gave; module names being unique, it only has to be sensible (not negative).
VORMANT_API ErrorStatus openModule(Vor_Macro* macro, std::string_view name, Vor_Module*& module,
                                   int index);

/// Every variable of a module with its two flags: shown in the dialog; editable by users.
VORMANT_API ErrorStatus getDialogVariables(const Vor_Module* module, Vor_StringArray& names,
                                           AcArray<bool>& inDialog, AcArray<bool>& editable);

/// Reads a constraint variable as text (up to 8 decimals) or sets it from text; anything but
/// one number in range is refused.
VORMANT_API ErrorStatus getSetConstrVarValue(Vor_Module* module, std::string_view name,
                                             Vor_String& value, bool get);

/// The names of the cuts of a module and, beside them, their types.
VORMANT_API ErrorStatus getCutConstraints(const Vor_Module* module, Vor_StringArray& names,
                                          AcArray<TwCutType>& types);
/// `cut` becomes a copy of the cut; getSetCutValue finds it again by its name.
VORMANT_API ErrorStatus getCutConstraint(const Vor_Module* module, std::string_view name,
                                         CutConstraint& cut);
/// Reads or sets one offset (millimetres). Refused: an offset that the type of the cut lacks, and
/// values out of range (isCutOffsetInRange). A set keeps `cut` in step.
VORMANT_API ErrorStatus getSetCutValue(Vor_Module* module, CutConstraint& cut,
                                       TwCutOffsetType offset, double& value, bool get);

/// The id of the bolt pattern `name`, for getSetBoltPatternReverses.
VORMANT_API ErrorStatus findPattern(const Vor_BoltModule* module, std::string_view name,
                                    AcDbObjectId& pattern, AcTransaction* transaction);
/// Reads or sets a bolt count of the tab's pattern `name`; `first` says which direction. Refused:
/// a direction that the pattern lacks, and texts that are no bolt count (macroBoltCount).
VORMANT_API ErrorStatus getSetNrBolts(MacroTabData* tab, std::string_view name, Vor_String& value,
                                      bool get, bool first);
/// Reads or sets the reverse-start flag of a direction. A set stores `flag` as it is; a get reports
/// it *inverted*: true for a direction that starts in its normal place. A caller that sends
/// (value == "1") and reads a set flag as "0" thus gets back the value it sent.
VORMANT_API ErrorStatus getSetBoltPatternReverses(Vor_BoltModule* module, AcDbObjectId pattern,
                                                  bool first, bool get, bool& flag,
                                                  AcTransaction* transaction);

/// The placement `name` of a profile module, borrowed from it.
VORMANT_API ErrorStatus getNamedPrpl(const Vor_Module* module, std::string_view name,
                                     const Vor_PrPl*& placement);
