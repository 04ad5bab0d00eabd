// Variables of a spreadsheet that runs on a module group are not mapped: their names say what they
// are. "gen.Gap" is the general variable gen_Gap, "Cope.CutLength" an offset of the cut Cope,
// "Bolts.NrBolts1" a bolt count, "Beam.Name" a section name, a plain "D1" a distance.
#pragma once

#include "core_api/macros/macro_access.h"
#include "mapping/tw_var_cell.h"

/// Reads or writes the variable in one module of the group. eInvalidInput when the module has no
/// tab or nothing of that name, or when the value is refused.
ErrorStatus getSetModuleGroupVar(const Vor_String& name, TwValueType type, Vor_Macro* macro,
                                 Vor_Module* module, MacroData* macroData, Vor_String& value,
                                 bool get, AcTransaction* transaction);
