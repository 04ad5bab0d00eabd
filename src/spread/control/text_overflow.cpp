#include "spread/control/text_overflow.h"

namespace control {

namespace {

constexpr int farthest = 40;  // columns: every cell that is drawn looks for such a text

bool isPlain(CellKind kind) {
    return kind == CellKind::general || kind == CellKind::edit || kind == CellKind::staticText;
}

}  // namespace

bool mayOverflow(const Grid& grid, CellAddress cell) {
    const CellFormat& format = grid.format(cell.col, cell.row);
    const Value value = grid.sheet().value(cell.col, cell.row);
    return isPlain(format.type.kind) && value.isText() && format.alignment <= 1 &&
           value.text().find('\n') == std::string_view::npos && grid.colWidth(cell.col) > 0 &&
           !grid.spanAt(cell.col, cell.row);
}

bool isRoomForText(const Grid& grid, int col, int row) {
    if (col > grid.cols() || !grid.sheet().value(col, row).isEmpty()) return false;
    const CellKind kind = grid.format(col, row).type.kind;
    return (isPlain(kind) || kind == CellKind::number) && !grid.spanAt(col, row);
}

std::optional<CellAddress> overflowingInto(const Grid& grid, CellAddress cell) {
    CellAddress from = cell;
    while (isRoomForText(grid, from.col, from.row))
        if (--from.col < 1 || cell.col - from.col > farthest) return std::nullopt;
    return from != cell && mayOverflow(grid, from) ? std::optional(from) : std::nullopt;
}

int lastColumnForText(const Grid& grid, CellAddress cell) {
    int last = cell.col;
    if (!mayOverflow(grid, cell)) return last;
    while (last - cell.col < farthest && isRoomForText(grid, last + 1, cell.row)) ++last;
    return last;
}

}  // namespace control
