// What the value cells of variables and the cells of equations are.
#pragma once

#include "mapping/tw_var_cell.h"
#include "spread/control/cell_format.h"

/// A number cell of 0 or 7 decimals, or a text cell.
const control::CellType& variableCellType(TwValueType type);
/// The cell of an equation whose variable is a String (`givesText`) or not.
const control::CellType& equationCellType(bool givesText);
