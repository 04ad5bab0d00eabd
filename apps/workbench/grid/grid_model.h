// A grid as Qt's views see it: nothing is copied, every question goes to the grid. Only the counts
// are kept, as views must be told before they change. Model indexes count from 0.
#pragma once

#include <QAbstractTableModel>

#include "spread/control/grid.h"

class GridModel : public QAbstractTableModel {
  public:
    GridModel(const control::Grid& grid, QObject* parent);

    /// Takes over the grid's present counts; true when they had changed.
    bool follow();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// The text that a user sees, for screen readers and searches by key; cells are drawn from the
    /// grid itself.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    bool followRows();
    bool followCols();

    const control::Grid& m_grid;
    int m_rows = 0;
    int m_cols = 0;
};

/// What the header of a column or row (from 1) shows: its text, else its letters or number.
QString columnHeaderText(const control::Grid& grid, int col);
QString rowHeaderText(const control::Grid& grid, int row);
