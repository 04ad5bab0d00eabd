// The cells of the sheet editor: a grid that also shows the references of a formula being typed,
// takes references by the mouse, and marks what means something in a standard.
#pragma once

#include "workbench/grid/grid_view.h"
#include "workbench/sheet/frozen_panes.h"
#include "workbench/sheet/sheet_marks.h"

class SheetView : public GridView {
  public:
    SheetView(TSpread& spread, QWidget* parent);

    void setMarks(const FormulaTyping::Marks& marks);
    /// Null takes the marks of standards away.
    void setStandardMarks(std::shared_ptr<const StandardMarks> marks);
    const SheetMarks& marks() const { return m_marks; }
    FormulaTyping* typing() const { return m_typing; }

    /// Puts `cell` into the formula being typed, where one can stand; pointOn makes a block of it.
    /// False when nothing was pointed at.
    bool point(control::CellAddress cell);
    bool pointOn(control::CellAddress cell);
    bool endPointing();

    FrozenPanes& frozen() { return *m_frozen; }
    /// As the grid's view, with what is frozen.
    void sync();
    void setZoom(int percent);
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void drawMarks();
    std::optional<control::CellAddress> cellAt(const QPointF& point) const;

    const control::Grid& m_grid;
    FrozenPanes* m_frozen;
    SheetMarks m_marks;
    QPointer<FormulaTyping> m_typing;
    std::optional<control::CellAddress> m_pointedFrom;
};
