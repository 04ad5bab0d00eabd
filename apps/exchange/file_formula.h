// Formulas as workbook files write them.
#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// Without "=" in front; functions that are younger than the file format get its prefix.
std::string fileFormula(std::string_view text);

}  // namespace exchange
