#include "standards/standard_layout.h"

#include <algorithm>

#include "platform/encodings.h"

namespace {

/// Cells that stand column by column, each column downwards, as they stand row by row.
std::vector<control::CellAddress> byRows(const std::vector<control::CellAddress>& byColumns,
                                         int lastRow) {
    // Where each row's cells begin: counted first, so that every cell is moved once.
    std::vector<size_t> next(static_cast<size_t>(lastRow) + 2);
    for (const control::CellAddress& cell : byColumns) ++next[static_cast<size_t>(cell.row) + 1];
    for (size_t row = 1; row < next.size(); ++row) next[row] += next[row - 1];
    std::vector<control::CellAddress> sorted(byColumns.size());
    for (const control::CellAddress& cell : byColumns)
        sorted[next[static_cast<size_t>(cell.row)]++] = cell;
    return sorted;
}

}  // namespace

std::vector<control::CellAddress> filledCells(const control::Grid& grid) {
    std::vector<control::CellAddress> filled;
    int lastRow = 0;
    const control::Area all{1, std::max(grid.rows(), 1), 1,
                            static_cast<uint16_t>(std::max(grid.cols(), 1))};
    grid.sheet().cells().each(all, [&](int row, int col, const control::Cell& cell) {
        if (cell.type == control::ValueType::empty && cell.formula == 0) return;
        filled.push_back({col, row});
        lastRow = std::max(lastRow, row);
    });
    return byRows(filled, lastRow);
}

StandardLayout::StandardLayout(const control::Grid& grid,
                               const std::vector<control::CellAddress>& filled)
    : m_lastRow(grid.rows()) {
    size_t missing = m_cells.size();
    std::string buffer;
    for (const control::CellAddress& cell : filled) {
        const std::string_view text =
            grid.text(cell.col, cell.row, control::Reading::value, buffer);
        for (size_t i = 0; i < m_cells.size(); ++i) {
            if (m_cells[i].row == 0 && encodings::equalFolded(text, markerWords[i])) {
                m_cells[i] = cell;
                --missing;
            }
        }
        if (missing == 0) return;
    }
}

RowRange StandardLayout::declarationRows(Marker marker) const {
    if (!has(marker)) return {};
    const int own = cell(marker).row;
    int last = m_lastRow;
    for (const control::CellAddress& other : m_cells)
        if (other.row > own) last = std::min(last, other.row);
    return {own + 1, last};
}

RowRange StandardLayout::equationRows() const {
    return has(Marker::calc) ? RowRange{cell(Marker::calc).row + 1, m_lastRow} : RowRange{};
}
