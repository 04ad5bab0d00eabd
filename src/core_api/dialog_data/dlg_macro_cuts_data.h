// The cuts of a macro's modules, for the cuts dialog.
#pragma once

#include "core_api/macros/cut_constraint.h"
#include "core_api/text/vor_string_array.h"

struct MacroCut {
    Vor_String moduleName;
    CutConstraint cut;

    bool operator==(const MacroCut&) const = default;
};

class VORMANT_API DlgMacroCutsData {
  public:
    virtual ~DlgMacroCutsData() = default;

    Vor_Array<MacroCut> cuts;
    /// The modules that can have cuts. Without them cuts are changed, but neither come nor go.
    Vor_StringArray moduleNames;
};
