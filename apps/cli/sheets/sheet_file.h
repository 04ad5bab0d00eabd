// Sheets from and to files, by the extension of their names: documents (.tws and the like), CSV
// and, for writing, .xlsx.
#pragma once

#include <optional>
#include <string>

#include "spread/control/grid.h"

namespace cli {

enum class SheetFormat { document, csv, xlsx };

/// Nothing for an extension that is none of them.
std::optional<SheetFormat> sheetFormat(const std::string& path);

/// False, after telling why; the grid is then of no use.
bool loadSheet(const std::string& path, SheetFormat format, control::Grid& grid);

/// Writes the file whole or not at all. False after telling why.
bool saveSheet(const control::Grid& grid, const std::string& path, SheetFormat format);

/// The cells from A1 to the last column and row that hold anything.
struct UsedArea {
    int cols = 0;
    int rows = 0;
};
UsedArea usedArea(const control::Grid& grid);

/// CSV of the used area, formulas as "=…". Nothing, with the reason, when there would be far more
/// commas than cells.
std::optional<std::string> sheetAsCsv(const control::Grid& grid, std::string& error);
/// A field that starts with "=" is a formula, a numeric field a number, all else text. False,
/// after telling "file:line: why".
bool sheetFromCsv(const std::string& path, control::Grid& grid);

/// The bytes of a workbook with formulas, their results and the looks of cells. Nothing, with the
/// reason.
std::optional<std::string> sheetAsXlsx(const control::Grid& grid, std::string& error);

}  // namespace cli
