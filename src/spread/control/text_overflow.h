// Texts that are longer than their column reach over the empty cells to the right, on the screen
// and on paper alike.
#pragma once

#include <optional>

#include "spread/control/grid.h"

namespace control {

/// The text of the cell may do so: one line, from the left, in a plain cell that is shown.
VORMANT_API bool mayOverflow(const Grid& grid, CellAddress cell);
/// Nothing stands in the cell that a text from the left would cover.
VORMANT_API bool isRoomForText(const Grid& grid, int col, int row);
/// The cell to the left whose text may reach into this one, which has to be room; nothing when
/// something else stands between, or it lies more than 40 columns away.
VORMANT_API std::optional<CellAddress> overflowingInto(const Grid& grid, CellAddress cell);
/// The last column that the text of the cell may reach; its own when it must not overflow.
VORMANT_API int lastColumnForText(const Grid& grid, CellAddress cell);

}  // namespace control
