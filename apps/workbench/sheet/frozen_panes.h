// Rows and columns of headings that stay in view while the cells scroll: up to three small tables
// that lie over the edges of the view and show the same grid.
#pragma once

#include <QTableView>

#include "spread/t_spread.h"

class FrozenPane;
class SheetView;

class FrozenPanes : public QObject {
  public:
    FrozenPanes(TSpread& spread, SheetView& view);

    /// The first `cols` and `rows` stay; none for 0.
    void freeze(int cols, int rows);
    int cols() const { return m_cols; }
    int rows() const { return m_rows; }
    bool isFrozen() const { return m_cols > 0 || m_rows > 0; }
    bool holds(control::CellAddress cell) const { return cell.col <= m_cols || cell.row <= m_rows; }
    /// Pixels of the view that they cover.
    QSize covered() const;

    void setZoom(int percent);
    /// Shows what the grid is now.
    void follow();
    /// Draws the marks of the sheet again.
    void update();
    /// They make room while one of their cells is typed into.
    void setShown(bool shown);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void place();

    const control::Grid& m_grid;
    SheetView& m_view;
    FrozenPane* m_top;
    FrozenPane* m_left;
    FrozenPane* m_corner;
    int m_cols = 0;
    int m_rows = 0;
    bool m_isShown = true;
};
