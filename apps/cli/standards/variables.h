// The variables of a standard as a caller names them and gives them values.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mapping/tw_dlg_standards_data.h"

namespace cli {

/// "Column (String), Thickness (Double)", or "nothing".
std::string describe(const TwVarCells& variables, TwCellType kind);

/// Fills the inputs of `cells` from "Name=Value" texts. False, after telling which name is not
/// declared, given twice or not given, and what there is.
bool setInputs(TwVarCells& cells, const std::vector<std::string>& assignments);

/// Takes the "Name=Value" texts over as gen variables; false after telling which is none.
bool setGenValues(TwDlgStandardsData& data, const std::vector<std::string>& assignments);

}  // namespace cli
