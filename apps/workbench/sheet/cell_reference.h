// Names of cells as people write them.
#pragma once

#include <QString>
#include <optional>

#include "spread/control/grid.h"

/// "B7" or "A1:C9"; "A:C" and "3:5" for whole columns and rows.
QString blockName(const control::Grid& grid, const control::Block& block);
/// Letter case and $ do not matter. Nothing when it is no block of the sheet.
std::optional<control::Block> blockNamed(const control::Grid& grid, const QString& name);
/// What a user would type to have what the cell holds: "=A1*2", "12.5", "text".
std::string typedText(const control::Grid& grid, control::CellAddress cell);
