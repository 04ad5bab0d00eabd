#include "workbench/sheet/sheet_marks.h"

#include <QPainter>
#include <QTableView>

#include "workbench/grid/cell_painter.h"

using control::Block;
using control::CellAddress;

namespace {

const QColor markerColour(255, 190, 60, 110);
const QColor variableColour(90, 160, 255, 60);
constexpr int tintAlpha = 25;

class MarksPainter {
  public:
    MarksPainter(QPainter& painter, const QTableView& view, const control::Grid& grid)
        : m_painter(painter), m_view(view), m_grid(grid) {}

    void fill(const std::vector<CellAddress>& cells, const QColor& colour) {
        const int first = std::max(m_view.rowAt(0), 0);
        int last = m_view.rowAt(m_view.viewport()->height() - 1);
        if (last < 0) last = m_grid.rows() - 1;
        for (const CellAddress& cell : cells)
            if (cell.row - 1 >= first && cell.row - 1 <= last)
                m_painter.fillRect(rectOf(cell.col, cell.row), colour);
    }
    void frame(const editor::ReferenceMark& mark) {
        const auto block = m_grid.resolved(mark.block);
        if (!block) return;
        const QRect rect = rectOf(block->col1, block->row1)
                               .united(rectOf(block->col2, block->row2))
                               .adjusted(0, 0, -1, -1);
        QColor colour = colourOf(mark);
        m_painter.setPen(QPen(colour, 2));
        m_painter.drawRect(rect.adjusted(1, 1, -1, -1));
        colour.setAlpha(tintAlpha);
        m_painter.fillRect(rect, colour);
    }

  private:
    QRect rectOf(int col, int row) const {
        return m_view.visualRect(m_view.model()->index(row - 1, col - 1));
    }

    QPainter& m_painter;
    const QTableView& m_view;
    const control::Grid& m_grid;
};

}  // namespace

void SheetMarks::draw(QPainter& painter, const QTableView& view, const control::Grid& grid) const {
    MarksPainter marks(painter, view, grid);
    if (standard) {
        marks.fill(standard->markers, markerColour);
        marks.fill(standard->variables, variableColour);
    }
    for (const editor::ReferenceMark& mark : references) marks.frame(mark);
}
