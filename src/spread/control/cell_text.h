// Writing texts into one cell again and again, as standards do with their String variables.
#pragma once

#include <string_view>

#include "spread/control/formula/cells.h"

namespace control {

/// As CellStore::setValue with a text; an empty one leaves the cell empty. A text of like
/// length that no other cell shares is overwritten, which spares fetching memory. `text` may be the
/// cell's.
void setText(Cell& cell, std::string_view text);

}  // namespace control
