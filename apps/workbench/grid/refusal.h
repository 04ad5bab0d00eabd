// Why a cell does not take what a user typed, in words.
#pragma once

#include <QString>
#include <string_view>

#include "spread/control/grid.h"

/// Why the cell cannot be typed into at all; empty when it can.
QString whyClosed(const control::Grid& grid, int col, int row);
/// Why Grid::enter just refused `typed` for this cell.
QString whyRefused(const control::Grid& grid, int col, int row, std::string_view typed);
QString whyTooLong(int maxLength);
QString whySomeRefused();
