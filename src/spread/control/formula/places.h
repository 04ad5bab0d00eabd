// Where the references of a program point, seen from the cell that holds the formula.
#pragma once

#include <algorithm>
#include <optional>

#include "spread/control/cells.h"
#include "spread/control/formula/program.h"

namespace formula {

inline int rowOf(const Instruction& i, int hostRow) {
    return i.place.row + (i.flags & Instruction::relativeRow ? hostRow : 0);
}
inline int colOf(const Instruction& i, int hostCol) {
    return i.place.col + (i.flags & Instruction::relativeCol ? hostCol : 0);
}
inline bool isInside(int col, int row) {
    return static_cast<unsigned>(col - 1) < maxCols && static_cast<unsigned>(row - 1) < maxRows;
}

/// The cell of a one-cell reference; nothing when it lies outside the sheet.
inline std::optional<control::CellAddress> cellOf(const Instruction& i, int hostCol, int hostRow) {
    const int row = rowOf(i, hostRow);
    const int col = colOf(i, hostCol);
    if (!isInside(col, row)) return std::nullopt;
    return control::CellAddress{col, row};
}

/// The area between two corners, in whichever order they were written.
inline std::optional<Area> areaOf(const Instruction& first, const Instruction& second, int hostCol,
                                  int hostRow) {
    const int row1 = first.flags & Instruction::wholeCol ? 1 : rowOf(first, hostRow);
    const int row2 = first.flags & Instruction::wholeCol ? maxRows : rowOf(second, hostRow);
    const int col1 = first.flags & Instruction::wholeRow ? 1 : colOf(first, hostCol);
    const int col2 = first.flags & Instruction::wholeRow ? maxCols : colOf(second, hostCol);
    if (!isInside(col1, row1) || !isInside(col2, row2)) return std::nullopt;
    return Area{std::min(row1, row2), std::max(row1, row2),
                static_cast<uint16_t>(std::min(col1, col2)),
                static_cast<uint16_t>(std::max(col1, col2))};
}

}  // namespace formula
