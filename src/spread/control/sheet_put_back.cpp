#include "spread/control/sheet.h"

namespace control {

void Sheet::putBack(int col, int row, const Cell& from) {
    Cell& cell = m_cells.obtain(col, row);
    if (cell.formula != 0) removeFormula(col, row, cell);
    CellStore::shareValue(cell, from);
    cell.look = from.look;
    touched(col, row);
}

}  // namespace control
