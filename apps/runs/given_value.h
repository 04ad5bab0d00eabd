// Values that people give to the variables of a standard.
#pragma once

#include <string_view>

#include "mapping/tw_var_cells.h"

namespace runs {

/// The word of a declaration: "Int", "Double", "String".
const char* typeName(TwValueType type);

/// Why `value` (Windows-1252) cannot be the value of such a variable, in the working language;
/// empty when it can. No value at all is one for every variable.
Vor_String refusal(const TwVarCell& variable, std::string_view value);

/// The value of an output as its user gets it: that of an Int is the whole number that its cell
/// shows and a macro would get.
VarValue handedOver(const TwVarCell& output);

}  // namespace runs
