// Draws the cells of a grid, straight from the grid.
#pragma once

#include <QStyledItemDelegate>

#include "spread/control/grid.h"
#include "workbench/grid/cell_font.h"
#include "workbench/grid/cell_pictures.h"

/// Colours of the module as Qt has them; `automatic` gives the fallback.
QColor toQt(control::Colour colour, const QColor& fallback);

/// Where a check box and the arrow of a combo box lie in their cell.
QRect checkBoxIn(const QRect& cell);
QRect comboArrowIn(const QRect& cell);

/// In the selected block.
bool isSelected(const control::Grid& grid, control::CellAddress cell);

class CellPainter : public QStyledItemDelegate {
  public:
    CellPainter(const control::Grid& grid, QObject* parent);

    /// Percent.
    void setZoom(int zoom) { m_zoom = zoom; }
    CellPictures& pictures() { return m_pictures; }
    /// The button cell that the mouse holds down.
    void setPressed(control::CellAddress cell) { m_pressed = cell; }
    /// True when the text of a cell of this width cannot be seen whole.
    bool isCutOff(control::CellAddress cell, int width) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  private:
    struct Drawing;
    void drawBackground(const Drawing& d) const;
    void drawContent(const Drawing& d) const;
    void drawText(const Drawing& d, const QRect& room) const;
    void drawTextFromTheLeft(const Drawing& d) const;
    void drawCheckBox(const Drawing& d) const;
    void drawComboArrow(const Drawing& d) const;
    void drawButton(const Drawing& d) const;
    void drawPicture(const Drawing& d) const;
    void drawLines(const Drawing& d) const;
    void drawLine(const Drawing& d, const QRect& line, const control::CellFormat& format) const;
    void drawNoteMark(const Drawing& d) const;

    const CellFont& fontOf(const control::CellFormat& format) const {
        return cellFont(format.font, m_zoom);
    }
    QColor textColour(const Drawing& d, control::CellAddress cell) const;
    struct Reach;
    std::optional<Reach> reachInto(control::CellAddress cell) const;
    bool goesOnToTheRight(const Drawing& d) const;

    const control::Grid& m_grid;
    // A picture is read when it is first drawn.
    mutable CellPictures m_pictures;
    control::CellAddress m_pressed;
    int m_zoom = 100;
};
