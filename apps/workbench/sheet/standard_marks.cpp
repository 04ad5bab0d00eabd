#include "workbench/sheet/standard_marks.h"

#include "mapping/tw_var_cell.h"
#include "standards/standard_layout.h"

StandardMarks standardMarks(Vor_Spread& spread) {
    const std::vector<control::CellAddress> filled = filledCells(spread.grid());
    const StandardLayout layout(spread.grid(), filled);
    StandardMarks marks;
    for (const Marker marker : {Marker::input, Marker::output, Marker::local, Marker::calc}) {
        if (!layout.has(marker)) continue;
        marks.markers.push_back(layout.cell(marker));
        if (marker == Marker::calc) continue;
        const RowRange rows = layout.declarationRows(marker);
        for (const control::CellAddress& cell : filled) {
            TwVarCell variable;
            // The kind of variable does not matter for its place.
            const bool isDeclared =
                cell.row >= rows.first && cell.row <= rows.last &&
                variable.initialize(spread, cell.col, cell.row, TwCellType::input) == Acad::eOk;
            if (isDeclared) marks.variables.push_back(cell);
        }
    }
    return marks;
}
