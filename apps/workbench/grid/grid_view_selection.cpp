// What the mouse does in a grid, and what selecting means.
#include <QGuiApplication>
#include <QHeaderView>
#include <QMouseEvent>

#include "workbench/grid/grid_view.h"
#include "workbench/grid/message_bubble.h"

using control::Block;
using control::CellAddress;
using control::CellKind;

namespace {

constexpr int boxReach = 3;  // pixels beside a check box that still hit it

}  // namespace

std::optional<CellAddress> GridView::cellAt(const QPoint& point) const {
    const int row = rowAt(point.y()), col = columnAt(point.x());
    if (row < 0 || col < 0) return std::nullopt;
    return anchorOf(grid(), {col + 1, row + 1});
}

// --- selecting ----------------------------------------------------------------------------------
// A listener may do anything to the grid and even close the dialog. Its grid is gone then, and the
// view waits without a model for its own end.

bool GridView::isAlive(const QPointer<GridView>& view) {
    return view && view->model();
}

bool GridView::commitEdit() {
    const QPointer<GridView> self(this);
    return isAlive(self) && m_editor.commit() && isAlive(self);
}

void GridView::go(CellAddress cell) {
    if (cell == grid().active() && !grid().selection()) return;
    const QPointer<GridView> self(this);
    m_spread.userMoves(cell.col, cell.row);
    if (isAlive(self)) sync();
}

void GridView::select(const Block& block) {
    if (grid().selection() == block) return;
    m_extended = block;
    const QPointer<GridView> self(this);
    m_spread.userSelects(block);
    if (isAlive(self)) sync();
}

void GridView::extendTo(CellAddress cell) {
    if (!m_extended || grid().selection() != m_extended) m_anchor = grid().active();
    m_head = cell;
    if (m_anchor == cell) return go(cell);
    const QPointer<GridView> self(this);
    select(blockOf(grid(), m_anchor, cell));
    if (isAlive(self) && grid().isInside(cell.col, cell.row)) scrollTo(indexOf(cell));
}

void GridView::selectBand(bool isCol, int index, bool extends) {
    if (!extends || m_bandAnchor == 0) m_bandAnchor = index;
    const int first = std::min(m_bandAnchor, index), last = std::max(m_bandAnchor, index);
    select(isCol ? Block{first, 1, last, -1} : Block{1, first, -1, last});
}

void GridView::selectAll() {
    if (commitEdit()) select({1, 1, -1, -1});
}

Block GridView::chosen() const {
    const CellAddress active = grid().active();
    return grid().selection().value_or(Block{active.col, active.row, active.col, active.row});
}

// --- the mouse ----------------------------------------------------------------------------------

void GridView::mousePressEvent(QMouseEvent* event) {
    m_bubble->hide();
    const std::optional<CellAddress> cell = cellAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell) {
        commitEdit();
        return;
    }
    if (!commitEdit()) return;
    const QPointer<GridView> self(this);
    const bool wasActive = grid().active() == *cell;
    m_isDragging = true;
    m_pressed = *cell;
    if (event->modifiers() & Qt::ShiftModifier) return extendTo(*cell);
    go(*cell);
    if (!isAlive(self)) return;
    m_anchor = m_head = *cell;
    const control::CellFormat& format = grid().format(cell->col, cell->row);
    if (format.type.kind == CellKind::button && !format.locked) {
        m_painter.setPressed(*cell);
        viewport()->update();
    }
    const bool isOnArrow = comboArrowIn(rectOf(*cell)).contains(event->position().toPoint());
    const bool opens = isOnArrow || (wasActive && !format.type.editable);
    if (format.type.kind == CellKind::comboBox && opens && isOpen(grid(), *cell)) {
        m_isDragging = false;
        openList(*cell);
    }
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (!model() || !m_isDragging || !(event->buttons() & Qt::LeftButton)) return;
    QPoint point = event->position().toPoint();
    // Beyond the edge the selection goes on to the next cell, which scrolls.
    const QRect view = viewport()->rect();
    point.setX(std::clamp(point.x(), view.left() - 1, view.right() + 1));
    point.setY(std::clamp(point.y(), view.top() - 1, view.bottom() + 1));
    const int col = horizontalHeader()->logicalIndexAt(point.x());
    const int row = verticalHeader()->logicalIndexAt(point.y());
    const CellAddress cell =
        anchorOf(grid(), {col < 0 ? grid().cols() : col + 1, row < 0 ? grid().rows() : row + 1});
    if (cell == m_head || !grid().isInside(cell.col, cell.row)) return;
    if (grid().format(m_pressed.col, m_pressed.row).type.kind == CellKind::button) return;
    if (!grid().selection()) m_extended = std::nullopt;
    extendTo(cell);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasDragging = std::exchange(m_isDragging, false);
    m_painter.setPressed({});
    viewport()->update();
    const QPoint point = event->position().toPoint();
    const std::optional<CellAddress> cell = cellAt(point);
    if (!wasDragging || event->button() != Qt::LeftButton || !cell || *cell != m_pressed) return;
    const CellKind kind = grid().format(cell->col, cell->row).type.kind;
    if (kind == CellKind::button) press(*cell);
    if (kind == CellKind::checkBox) toggleAt(*cell, point);
}

void GridView::press(CellAddress cell) {
    const QPointer<GridView> self(this);
    if (!m_spread.userClicks(cell.col, cell.row)) showWhyClosed(cell);
    if (isAlive(self)) sync();
}

void GridView::toggleAt(CellAddress cell, const QPoint& point) {
    constexpr QMargins reach(boxReach, boxReach, boxReach, boxReach);
    if (checkBoxIn(rectOf(cell)).marginsAdded(reach).contains(point)) press(cell);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    const std::optional<CellAddress> cell = cellAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell) return;
    const CellKind kind = grid().format(cell->col, cell->row).type.kind;
    // Two quick clicks on a button or a check box are two clicks.
    if (kind == CellKind::button || kind == CellKind::checkBox) return mousePressEvent(event);
    if (!commitEdit()) return;
    const QPointer<GridView> self(this);
    go(*cell);
    if (isAlive(self)) m_spread.userDoubleClicks(cell->col, cell->row);
    if (!isAlive(self)) return;
    if (grid().active() == *cell && isOpen(grid(), *cell)) m_editor.begin();
    sync();
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    if (!commitEdit()) return;
    const QPointer<GridView> self(this);
    if (event->reason() == QContextMenuEvent::Mouse) {
        const std::optional<CellAddress> cell = cellAt(event->pos());
        const bool isChosen =
            cell && (grid().selection() ? isSelected(grid(), *cell) : *cell == grid().active());
        if (cell && !isChosen) go(*cell);
    }
    if (!isAlive(self)) return;
    const bool wasShown = m_spread.showContextMenu();
    if (!isAlive(self)) return;
    event->setAccepted(wasShown);
    sync();
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (!model()) return;
    m_spread.focus();
    activeCell();
    viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}
