#include "standards/standard_layout.h"

#include <algorithm>

#include "platform/encodings.h"

std::vector<control::CellAddress> filledCells(const control::Grid& grid) {
    std::vector<control::CellAddress> filled;
    const control::Area all{1, std::max(grid.rows(), 1), 1,
                            static_cast<uint16_t>(std::max(grid.cols(), 1))};
    grid.sheet().cells().each(all, [&](int row, int col, const control::Cell& cell) {
        if (cell.type != control::ValueType::empty || cell.formula != 0)
            filled.push_back({col, row});
    });
    const auto place = [](control::CellAddress cell) {
        return static_cast<int64_t>(cell.row) << 32 | cell.col;
    };
    std::sort(filled.begin(), filled.end(), [&](auto a, auto b) { return place(a) < place(b); });
    return filled;
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
