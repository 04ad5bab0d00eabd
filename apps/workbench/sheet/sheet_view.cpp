#include "sheet/sheet_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

using control::Block;
using control::CellAddress;

namespace {

constexpr int zoomStep = 10;
constexpr int leastZoom = 50, mostZoom = 200;

const QColor markerColour(255, 190, 60, 110);
const QColor variableColour(90, 160, 255, 60);

}  // namespace

SheetView::SheetView(TSpread& spread, QWidget* parent)
    : GridView(spread, parent), m_grid(spread.grid()), m_frozen(new FrozenPanes(spread, *this)) {
    connect(this, &GridView::fieldOpened, this, [this](QPlainTextEdit* field) {
        if (m_frozen->isFrozen() && m_frozen->holds(m_grid.active())) {
            m_frozen->setShown(false);
            GridView::scrollTo(currentIndex());
            // Later, since the field may go together with the view.
            connect(
                field, &QObject::destroyed, m_frozen, [this] { m_frozen->setShown(true); },
                Qt::QueuedConnection);
        }
        m_typing = new FormulaTyping(
            *field, m_grid, [this](const FormulaTyping::Marks& marks) { setMarks(marks); });
    });
}

void SheetView::sync() {
    GridView::sync();
    m_frozen->follow();
    m_frozen->setShown(!isEditing() || !m_frozen->holds(m_grid.active()));
}

void SheetView::setZoom(int percent) {
    GridView::setZoom(percent);
    m_frozen->setZoom(percent);
}

// What is frozen is in view, and covers what lies under it.
void SheetView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!m_frozen || !m_frozen->isFrozen()) return GridView::scrollTo(index, hint);
    const bool colStays = index.column() < m_frozen->cols();
    const bool rowStays = index.row() < m_frozen->rows();
    const int across = horizontalScrollBar()->value(), down = verticalScrollBar()->value();
    GridView::scrollTo(index, hint);
    if (colStays) horizontalScrollBar()->setValue(across);
    if (rowStays) verticalScrollBar()->setValue(down);
    const QPoint hidden(QPoint(m_frozen->covered().width(), m_frozen->covered().height()) -
                        visualRect(index).topLeft());
    if (!colStays && hidden.x() > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden.x());
    if (!rowStays && hidden.y() > 0)
        verticalScrollBar()->setValue(verticalScrollBar()->value() - hidden.y());
}

void SheetView::setMarks(const FormulaTyping::Marks& marks) {
    if (marks.empty() && m_marks.empty()) return;
    m_marks = marks;
    viewport()->update();
}

void SheetView::setStandardMarks(std::shared_ptr<const StandardMarks> marks) {
    m_standard = std::move(marks);
    viewport()->update();
}

QRect SheetView::rectOf(const Block& block) const {
    const auto rect = [&](int col, int row) {
        return visualRect(model()->index(row - 1, col - 1));
    };
    const auto inside = m_grid.resolved(block);
    if (!inside) return {};
    return rect(inside->col1, inside->row1).united(rect(inside->col2, inside->row2));
}

void SheetView::paintEvent(QPaintEvent* event) {
    GridView::paintEvent(event);
    if (!model()) return;
    QPainter painter(viewport());
    if (m_standard) drawStandard(painter);
    for (const editor::ReferenceMark& mark : m_marks) {
        const size_t count = std::size(editor::markColours);
        const QColor colour =
            toQt(editor::markColours[static_cast<size_t>(mark.colour) % count], Qt::black);
        const QRect rect = rectOf(mark.block).adjusted(0, 0, -1, -1);
        painter.setPen(QPen(colour, 2));
        painter.drawRect(rect.adjusted(1, 1, -1, -1));
        QColor tint = colour;
        tint.setAlpha(25);
        painter.fillRect(rect, tint);
    }
}

void SheetView::drawStandard(QPainter& painter) const {
    const int first = std::max(rowAt(0), 0);
    int last = rowAt(viewport()->height() - 1);
    if (last < 0) last = m_grid.rows() - 1;
    const auto fill = [&](const std::vector<CellAddress>& cells, const QColor& colour) {
        for (const CellAddress& cell : cells)
            if (cell.row - 1 >= first && cell.row - 1 <= last)
                painter.fillRect(rectOf({cell.col, cell.row, cell.col, cell.row}), colour);
    };
    fill(m_standard->markers, markerColour);
    fill(m_standard->variables, variableColour);
}

// --- pointing -----------------------------------------------------------------------------------

std::optional<CellAddress> SheetView::cellAt(const QPointF& point) const {
    const QModelIndex index = indexAt(point.toPoint());
    if (!index.isValid()) return std::nullopt;
    return CellAddress{index.column() + 1, index.row() + 1};
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    const auto cell = cellAt(event->position());
    if (cell && field() && m_typing && event->button() == Qt::LeftButton &&
        m_typing->point({cell->col, cell->row, cell->col, cell->row})) {
        m_pointedFrom = cell;
        return;
    }
    GridView::mousePressEvent(event);
}

void SheetView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pointedFrom) return GridView::mouseMoveEvent(event);
    const auto cell = cellAt(event->position());
    if (!cell || !m_typing) return;
    m_typing->point(
        {std::min(cell->col, m_pointedFrom->col), std::min(cell->row, m_pointedFrom->row),
         std::max(cell->col, m_pointedFrom->col), std::max(cell->row, m_pointedFrom->row)});
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(m_pointedFrom, std::nullopt)) GridView::mouseReleaseEvent(event);
}

void SheetView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) return GridView::wheelEvent(event);
    const int step = event->angleDelta().y() > 0 ? zoomStep : -zoomStep;
    setZoom(std::clamp(zoom() + step, leastZoom, mostZoom));
    event->accept();
}
