// Starts the dialog that attaches standards spreadsheets to a macro and maps their variables.
#pragma once

#include "platform/export.h"

class TabMappingData;
class TwSSMapping;
class Vor_DbMacro;

/// True when the user closed the dialog with OK: `data` is then what was chosen, and `changed` says
/// whether it differs from what it was. Else both, and all mapping files, are as they were. `all`
/// lists the objects of the macro (TwSSMapping::initAllVarsFromMacro).
VORMANT_API bool startMappingDialog(TabMappingData& data, const TwSSMapping& all, bool& changed);

/// The same for a macro with its groups and objects. False also without a macro.
VORMANT_API bool startMappingDialog(Vor_DbMacro& macro, bool& changed);
