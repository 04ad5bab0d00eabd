// Where the keys lead: from a cell of a grid to the next one. Hidden columns and rows are passed
// over, a span is one cell, its anchor. Every function stays where it is at the edge.
#pragma once

#include <optional>

#include "spread/control/grid.h"

struct Direction {
    int cols = 0;  ///< -1 left, 1 right
    int rows = 0;  ///< -1 up, 1 down
};

/// The anchor of the span that holds the cell, or the cell.
control::CellAddress anchorOf(const control::Grid& grid, control::CellAddress cell);
/// Shown, that is neither its column nor its row is hidden.
bool isShown(const control::Grid& grid, control::CellAddress cell);
control::CellAddress step(const control::Grid& grid, control::CellAddress from,
                          Direction direction);
/// To the end of the filled cells, or over empty ones to the next filled, or the sheet's edge.
control::CellAddress jump(const control::Grid& grid, control::CellAddress from,
                          Direction direction);
/// The first shown cell of a row or column, or the last with content; as a whole, the sheet's.
control::CellAddress firstCell(const control::Grid& grid);
control::CellAddress lastFilledCell(const control::Grid& grid);
/// The nearest shown cell at or after the one given, looking in a direction and then back.
control::CellAddress nearestShown(const control::Grid& grid, control::CellAddress cell,
                                  Direction direction);
/// A user may type into it, pick, press or tick.
bool isOpen(const control::Grid& grid, control::CellAddress cell);
/// The next open cell row by row, or nothing.
std::optional<control::CellAddress> nextOpen(const control::Grid& grid, control::CellAddress from,
                                             bool forwards);
/// The block that two cells span, widened to the spans it cuts.
control::Block blockOf(const control::Grid& grid, control::CellAddress a, control::CellAddress b);
