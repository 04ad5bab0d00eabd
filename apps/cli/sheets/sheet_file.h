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

/// A field that starts with "=" is a formula, a numeric field a number, all else text. False,
/// after telling "file:line: why".
bool sheetFromCsv(const std::string& path, control::Grid& grid);

}  // namespace cli
