// One of the three tables in the cutting-stock dialog: the rows of one item in a grid.
#pragma once

#include <optional>

#include "cutstock/item_rows.h"
#include "spread/vor_spread.h"

namespace cutstock {

class StockSheet {
  public:
    void attach(CWnd* dialog, int gridItem);
    Vor_Spread& grid() { return m_grid; }

    /// The rows of the item; without one the grid is empty. Rows may be wider than the table has
    /// column names: all their cells are shown.
    void show(const Csp2Table& table, std::optional<int> itemId);
    /// What the grid holds. Empty cells beyond the named columns are left out.
    Rows rows() const;

    /// Below the active row, so that rows can be typed one after another; the first one of an empty
    /// grid. Its first cell becomes the active one.
    void insertRow();
    void deleteRow();

  private:
    Vor_Spread m_grid;
    int m_namedColumns = 0;
};

}  // namespace cutstock
