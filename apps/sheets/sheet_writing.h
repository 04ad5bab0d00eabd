// Sheets as the bytes of other programs' files.
#pragma once

#include <optional>
#include <string>

#include "spread/control/grid.h"

namespace sheets {

/// The cells from A1 to the last column and row that hold anything.
struct UsedArea {
    int cols = 0;
    int rows = 0;
};
UsedArea usedArea(const control::Grid& grid);

/// CSV of the used area, formulas as "=…". Nothing, with the reason, when there would be far more
/// commas than cells.
std::optional<std::string> sheetAsCsv(const control::Grid& grid, std::string& error);
/// The bytes of a workbook with formulas, their results and the looks of cells. Nothing, with the
/// reason.
std::optional<std::string> sheetAsXlsx(const control::Grid& grid, std::string& error);

/// "B7".
std::string cellName(control::CellAddress address);

}  // namespace sheets
