// The header row or column of a grid: its texts, formats, spans and sizes are the grid's.
#pragma once

#include <QHeaderView>

#include "spread/control/grid.h"

class GridHeader : public QHeaderView {
  public:
    GridHeader(const control::Grid& grid, Qt::Orientation orientation, QWidget* parent);

    /// As high, or wide, as the grid says.
    QSize sizeHint() const override;
    /// Percent.
    void setZoom(int zoom);

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

  private:
    bool isChosen(int index) const;
    QRect spanned(const QRect& rect, int index, int& anchor) const;

    const control::Grid& m_grid;
    int m_zoom = 100;
};

/// Draws one header cell, the corner too.
void drawHeaderCell(QPainter& painter, const QRect& rect, const QString& text,
                    const control::CellFormat& format, const QPalette& palette, bool isChosen,
                    int zoom);
