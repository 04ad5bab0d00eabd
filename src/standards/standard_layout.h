// Where things lie on a standards sheet: the marker cells "Input", "Output", "Local" and "Calc",
// and the rows that each of them opens.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "spread/vor_spread.h"

enum class Marker { input, output, local, calc };
inline constexpr std::array<std::string_view, 4> markerWords{"Input", "Output", "Local", "Calc"};

/// Every cell that shows something, row by row and from the left. Costs what is stored, however
/// many rows the sheet claims.
std::vector<control::CellAddress> filledCells(const control::Grid& grid);

/// The rows of a section, both included; empty when first > last.
struct RowRange {
    int first = 1;
    int last = 0;
};

class StandardLayout {
  public:
    StandardLayout() = default;
    /// A marker is the first cell, by row and column, whose whole text is its word, letter case
    /// aside. `filled` as filledCells gives it.
    StandardLayout(const control::Grid& grid, const std::vector<control::CellAddress>& filled);

    bool has(Marker marker) const { return cell(marker).row > 0; }
    /// Row 0 when there is none.
    control::CellAddress cell(Marker marker) const { return m_cells[static_cast<size_t>(marker)]; }

    /// From below the marker to the nearest other marker below it, whose row belongs to the
    /// section, or to the last row. Empty without the marker.
    RowRange declarationRows(Marker marker) const;
    /// From below "Calc" to the last row, whatever else is there.
    RowRange equationRows() const;

  private:
    std::array<control::CellAddress, 4> m_cells{};
    int m_lastRow = 0;
};
