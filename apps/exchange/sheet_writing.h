// Sheets as the bytes of other programs' files.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "spread/control/grid.h"

namespace exchange {

/// The cells from A1 to the last column and row that hold anything.
struct UsedArea {
    int cols = 0;
    int rows = 0;
};
UsedArea usedArea(const control::Grid& grid);

/// Other programs have no header of a column's own words: a copy of the grid that has them in a
/// first row, to which formulas and all else moved down. Null when the columns have their letters.
std::unique_ptr<control::Grid> withHeaderRow(const control::Grid& grid);

/// How texts that read like formulas are written (core_api/text/delimited_text.h).
enum class CsvTexts {
    exact,    ///< so that they come back as they were
    guarded,  ///< so that no spreadsheet runs them: exports to open elsewhere
};

/// CSV of the used area, the words of column headers first, formulas as "=…". Nothing, with the
/// reason, when there would be far more commas than cells.
std::optional<std::string> sheetAsCsv(const control::Grid& grid, CsvTexts texts,
                                      std::string& error);
/// The bytes of a workbook with the words of column headers, formulas, their results, pictures and
/// the formats of cells. Nothing, with the reason.
std::optional<std::string> sheetAsXlsx(const control::Grid& grid, std::string& error);

/// "B7".
std::string cellName(control::CellAddress address);

}  // namespace exchange
