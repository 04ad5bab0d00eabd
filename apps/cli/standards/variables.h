// The variables of a standard as a caller names them and gives them values.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mapping/tw_dlg_standards_data.h"

namespace cli {

/// The word of a declaration: "Int", "Double", "String".
const char* typeName(TwValueType type);

/// "Column (String), Thickness (Double)", or "nothing".
std::string describe(const TwVarCells& variables, TwCellType kind);

/// Why `value` cannot be the value of such a variable; empty when it can.
std::string refusal(const TwVarCell& variable, std::string_view value);

/// Fills the inputs of `cells` from "Name=Value" texts. False, after telling which name is not
/// declared, given twice or not given, and what there is.
bool setInputs(TwVarCells& cells, const std::vector<std::string>& assignments);

/// Takes the "Name=Value" texts over as gen variables; false after telling which is none.
bool setGenValues(TwDlgStandardsData& data, const std::vector<std::string>& assignments);

}  // namespace cli
