#include "workbench/grid/grid_steps.h"

#include <algorithm>

using control::Block;
using control::CellAddress;
using control::CellKind;
using control::Grid;
using control::Span;

namespace {

bool isFilled(const Grid& grid, CellAddress cell) {
    return !grid.sheet().value(cell.col, cell.row).isEmpty();
}

CellAddress moved(CellAddress cell, Direction d) {
    return {cell.col + d.cols, cell.row + d.rows};
}

// The cell of a span from which a step leaves it.
CellAddress leavingEdge(const Grid& grid, CellAddress cell, Direction d) {
    const Span* span = grid.spanAt(cell.col, cell.row);
    if (!span) return cell;
    if (d.cols > 0) cell.col = span->col + span->cols - 1;
    if (d.cols < 0) cell.col = span->col;
    if (d.rows > 0) cell.row = span->row + span->rows - 1;
    if (d.rows < 0) cell.row = span->row;
    return cell;
}

}  // namespace

CellAddress anchorOf(const Grid& grid, CellAddress cell) {
    const Span* span = grid.spanAt(cell.col, cell.row);
    return span ? CellAddress{span->col, span->row} : cell;
}

bool isShown(const Grid& grid, CellAddress cell) {
    const control::SideTables& sides = grid.sides();
    return !sides.cols.hidden.contains(cell.col) && !sides.rows.hidden.contains(cell.row);
}

CellAddress step(const Grid& grid, CellAddress from, Direction d) {
    CellAddress next = moved(leavingEdge(grid, from, d), d);
    while (grid.isInside(next.col, next.row)) {
        const CellAddress anchor = anchorOf(grid, next);
        if (isShown(grid, anchor)) return anchor;
        next = moved(next, d);
    }
    return from;
}

CellAddress jump(const Grid& grid, CellAddress from, Direction d) {
    CellAddress cell = step(grid, from, d);
    const bool runsInFilled = isFilled(grid, from) && isFilled(grid, cell);
    while (true) {
        if (!runsInFilled && isFilled(grid, cell)) return cell;
        const CellAddress next = step(grid, cell, d);
        if (next == cell || (runsInFilled && !isFilled(grid, next))) return cell;
        cell = next;
    }
}

CellAddress nearestShown(const Grid& grid, CellAddress cell, Direction d) {
    cell.col = std::clamp(cell.col, 1, std::max(grid.cols(), 1));
    cell.row = std::clamp(cell.row, 1, std::max(grid.rows(), 1));
    cell = anchorOf(grid, cell);
    if (isShown(grid, cell)) return cell;
    const CellAddress ahead = step(grid, cell, d);
    return ahead == cell ? step(grid, cell, {-d.cols, -d.rows}) : ahead;
}

CellAddress firstCell(const Grid& grid) {
    const CellAddress first = nearestShown(grid, {1, 1}, {1, 0});
    return nearestShown(grid, first, {0, 1});
}

CellAddress lastFilledCell(const Grid& grid) {
    const control::CellStore& cells = grid.sheet().cells();
    const CellAddress last{std::min(cells.lastCol(), grid.cols()),
                           std::min(cells.lastRow(), grid.rows())};
    const CellAddress shown = nearestShown(grid, last, {-1, 0});
    return nearestShown(grid, shown, {0, -1});
}

bool isOpen(const Grid& grid, CellAddress cell) {
    const control::CellFormat& format = grid.format(cell.col, cell.row);
    switch (format.type.kind) {
        case CellKind::staticText:
        case CellKind::picture:
        case CellKind::pictureHandle:
            return false;
        default:
            return !format.locked;
    }
}

std::optional<CellAddress> nextOpen(const Grid& grid, CellAddress cell, bool forwards) {
    const int d = forwards ? 1 : -1;
    while (true) {
        cell.col += d;
        if (cell.col < 1 || cell.col > grid.cols()) {
            cell.row += d;
            if (cell.row < 1 || cell.row > grid.rows()) return std::nullopt;
            cell.col = forwards ? 1 : grid.cols();
        }
        if (isShown(grid, cell) && anchorOf(grid, cell) == cell && isOpen(grid, cell)) return cell;
    }
}

Block blockOf(const Grid& grid, CellAddress a, CellAddress b) {
    Block block{std::min(a.col, b.col), std::min(a.row, b.row), std::max(a.col, b.col),
                std::max(a.row, b.row)};
    if (grid.sides().spans.isEmpty()) return block;
    for (const CellAddress cell : {a, b}) {
        if (const Span* span = grid.spanAt(cell.col, cell.row)) {
            block.col1 = std::min(block.col1, span->col);
            block.row1 = std::min(block.row1, span->row);
            block.col2 = std::max(block.col2, span->col + span->cols - 1);
            block.row2 = std::max(block.row2, span->row + span->rows - 1);
        }
    }
    return block;
}
