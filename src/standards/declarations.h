// What a standard asks for and gives, without running it.
#pragma once

#include <optional>

#include "mapping/tw_var_cells.h"

/// The variables that the standard declares, inputs first, then outputs, then locals; second and
/// later declarations of a name left out, values empty. `name` is a file, or a name in the
/// standards folder without extension. Nothing, with the reason in `failure`, when it cannot be
/// loaded or lacks its "Input" or "Output" marker.
VORMANT_API std::optional<TwVarCells> listDeclarations(const Vor_String& name, Vor_String& failure);
