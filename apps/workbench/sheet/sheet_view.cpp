#include "workbench/sheet/sheet_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

using control::CellAddress;

namespace {

constexpr int zoomStep = 10;
constexpr int leastZoom = 50, mostZoom = 200;

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
    if (marks.empty() && m_marks.references.empty()) return;
    m_marks.references = marks;
    drawMarks();
}

void SheetView::setStandardMarks(std::shared_ptr<const StandardMarks> marks) {
    m_marks.standard = std::move(marks);
    drawMarks();
}

void SheetView::drawMarks() {
    viewport()->update();
    m_frozen->update();
}

void SheetView::paintEvent(QPaintEvent* event) {
    GridView::paintEvent(event);
    if (!model()) return;
    QPainter painter(viewport());
    m_marks.draw(painter, *this, m_grid);
}

// --- pointing -----------------------------------------------------------------------------------

std::optional<CellAddress> SheetView::cellAt(const QPointF& point) const {
    const QModelIndex index = indexAt(point.toPoint());
    if (!index.isValid()) return std::nullopt;
    return CellAddress{index.column() + 1, index.row() + 1};
}

bool SheetView::point(CellAddress cell) {
    m_pointedFrom.reset();
    if (field() && m_typing && m_typing->point({cell.col, cell.row, cell.col, cell.row}))
        m_pointedFrom = cell;
    return m_pointedFrom.has_value();
}

bool SheetView::pointOn(CellAddress cell) {
    if (!m_pointedFrom || !m_typing) return false;
    const CellAddress from = *m_pointedFrom;
    return m_typing->point({std::min(cell.col, from.col), std::min(cell.row, from.row),
                            std::max(cell.col, from.col), std::max(cell.row, from.row)});
}

bool SheetView::endPointing() {
    return std::exchange(m_pointedFrom, std::nullopt).has_value();
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    const auto cell = cellAt(event->position());
    if (!cell || event->button() != Qt::LeftButton || !point(*cell))
        GridView::mousePressEvent(event);
}

void SheetView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pointedFrom) return GridView::mouseMoveEvent(event);
    if (const auto cell = cellAt(event->position())) pointOn(*cell);
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
    if (!endPointing()) GridView::mouseReleaseEvent(event);
}

void SheetView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) return GridView::wheelEvent(event);
    const int step = event->angleDelta().y() > 0 ? zoomStep : -zoomStep;
    setZoom(std::clamp(zoom() + step, leastZoom, mostZoom));
    event->accept();
}
