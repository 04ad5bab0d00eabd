// Where the references of a program point, seen from the cell that holds the formula.
#pragma once

#include <algorithm>
#include <optional>

#include "spread/control/formula/cells.h"
#include "spread/control/formula/program.h"

namespace formula {

inline int rowOf(const Instruction& i, int hostRow) {
    return i.a + (i.flags & Instruction::relativeRow ? hostRow : 0);
}
inline int colOf(const Instruction& i, int hostCol) {
    return i.b + (i.flags & Instruction::relativeCol ? hostCol : 0);
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

/// The two corners of an area as they were written.
struct Corners {
    int row1, row2, col1, col2;

    bool areInside() const { return isInside(col1, row1) && isInside(col2, row2); }
    /// The area between them, in whichever order they were written.
    Area area() const {
        return {std::min(row1, row2), std::max(row1, row2),
                static_cast<uint16_t>(std::min(col1, col2)),
                static_cast<uint16_t>(std::max(col1, col2))};
    }
};

inline Corners cornersOf(const Instruction& first, const Instruction& second, int hostCol,
                         int hostRow) {
    const bool isWholeCol = first.flags & Instruction::wholeCol;
    const bool isWholeRow = first.flags & Instruction::wholeRow;
    return {isWholeCol ? 1 : rowOf(first, hostRow), isWholeCol ? maxRows : rowOf(second, hostRow),
            isWholeRow ? 1 : colOf(first, hostCol), isWholeRow ? maxCols : colOf(second, hostCol)};
}

/// Calls visit(area) for every cell and area that `program` reads by its references, as they are
/// seen from its cell; a cell is an area of one. Those outside the sheet are left out.
template <class Visit>
void eachAreaRead(const Program& program, int hostCol, int hostRow, Visit&& visit) {
    const auto code = program.code();
    for (size_t i = 0; i < code.size(); ++i) {
        if (code[i].op == Op::cell || code[i].op == Op::reference) {
            const auto cell = cellOf(code[i], hostCol, hostRow);
            if (!cell) continue;
            const auto col = static_cast<uint16_t>(cell->col);
            visit(Area{cell->row, cell->row, col, col});
        } else if (code[i].op == Op::area) {
            const Corners corners = cornersOf(code[i], code[i + 1], hostCol, hostRow);
            if (corners.areInside()) visit(corners.area());
        }
    }
}

}  // namespace formula
