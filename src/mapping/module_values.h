// Single values of one module, read or written as text: the part that object mappings and the
// naming convention of module groups have in common. All fail with eInvalidInput.
#pragma once

#include "core_api/macros/macro_access.h"

/// A module opened for a read or write, with the dialog tab that belongs to it.
struct ModuleAccess {
    Vor_Module& module;
    MacroTabData& tab;
    AcTransaction* transaction;  ///< may be null
    bool get;                    ///< read into the value, else write it
};

/// The tab of the module's group (of the module itself when it has none), or null.
MacroTabData* findTabOf(MacroData& macroData, const Vor_Module& module);

/// A constraint variable. Writing one that is not fixed in all modules fixes it first.
ErrorStatus getSetDistance(const ModuleAccess& access, const Vor_String& name, Vor_String& value);
/// One offset of a cut, with up to 7 decimals.
ErrorStatus getSetCutOffset(const ModuleAccess& access, const Vor_String& cutName,
                            TwCutOffsetType offset, Vor_String& value);

enum class BoltField { diameter, holeOffset };
ErrorStatus getSetBoltField(const ModuleAccess& access, BoltField field, Vor_String& value);

/// A bolt count of a pattern that a bolt module has; `first` says which direction.
ErrorStatus getSetPatternCount(const ModuleAccess& access, const Vor_String& pattern, bool first,
                               Vor_String& value);
/// The start flag of a pattern's direction, in a bolt module. "1" sets it; it is read as "0" when
/// the core reports it set, because the core reports it inverted: what was written is read back.
ErrorStatus getSetReverseStart(const ModuleAccess& access, const Vor_String& pattern, bool first,
                               Vor_String& value);

/// The member name in the merged properties of the placements named `group`.
ErrorStatus getSetMemberName(const ModuleAccess& access, const Vor_String& group,
                             Vor_String& value);
