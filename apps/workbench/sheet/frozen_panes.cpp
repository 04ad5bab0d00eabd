#include "workbench/sheet/frozen_panes.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "workbench/grid/cell_painter.h"
#include "workbench/grid/grid_header.h"
#include "workbench/grid/grid_model.h"
#include "workbench/grid/layout_follower.h"
#include "workbench/sheet/sheet_view.h"

class FrozenPane : public QTableView {
  public:
    /// A line at its `ends` tells where the other cells begin.
    FrozenPane(TSpread& spread, SheetView& view, Qt::Edges ends)
        : QTableView(&view),
          m_ends(ends),
          m_spread(spread),
          m_view(view),
          m_model(spread.grid(), nullptr),
          m_painter(spread.grid(), nullptr),
          m_layout(spread.grid(), *this) {
        setHorizontalHeader(new GridHeader(spread.grid(), Qt::Horizontal, this));
        setVerticalHeader(new GridHeader(spread.grid(), Qt::Vertical, this));
        for (QHeaderView* header : {horizontalHeader(), verticalHeader()})
            header->setSectionResizeMode(QHeaderView::Fixed);
        setItemDelegate(&m_painter);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setSelectionMode(QAbstractItemView::NoSelection);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setShowGrid(false);
        setWordWrap(false);
        setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setModel(&m_model);
        hide();
    }

    void setZoom(int percent) {
        m_painter.setZoom(percent);
        m_layout.setZoom(percent);
        for (QHeaderView* header : {horizontalHeader(), verticalHeader()})
            static_cast<GridHeader*>(header)->setZoom(percent);
    }
    void follow(bool hasColHeader, bool hasRowHeader) {
        m_model.follow();
        m_layout.follow();
        const control::SideTables& sides = m_spread.grid().sides();
        horizontalHeader()->setVisible(hasColHeader && sides.columnHeaders);
        verticalHeader()->setVisible(hasRowHeader && sides.rowHeaders);
        viewport()->update();
        horizontalHeader()->viewport()->update();
        verticalHeader()->viewport()->update();
    }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        const auto cell = cellAt(event->pos());
        const bool isLeft = event->button() == Qt::LeftButton;
        if (!cell || !isLeft || m_view.point(*cell) || !m_view.commitEdit()) return;
        m_view.setFocus(Qt::MouseFocusReason);
        m_spread.userMoves(cell->col, cell->row);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        const auto cell = cellAt(event->pos());
        if (!cell || !(event->buttons() & Qt::LeftButton) || m_view.pointOn(*cell) ||
            m_view.isEditing())
            return;
        const auto [col, row] = m_spread.grid().active();
        m_spread.userSelects({std::min(col, cell->col), std::min(row, cell->row),
                              std::max(col, cell->col), std::max(row, cell->row)});
    }
    void mouseReleaseEvent(QMouseEvent*) override { m_view.endPointing(); }
    void contextMenuEvent(QContextMenuEvent* event) override {
        const auto cell = cellAt(event->pos());
        if (!cell || !m_view.commitEdit()) return;
        if (!isSelected(m_spread.grid(), *cell)) m_spread.userMoves(cell->col, cell->row);
        m_spread.showContextMenu();
    }
    // What is frozen stays; the cells beside it scroll.
    void wheelEvent(QWheelEvent* event) override {
        QCoreApplication::sendEvent(m_view.viewport(), event);
    }
    void mouseDoubleClickEvent(QMouseEvent*) override {
        QKeyEvent edit(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_view, &edit);
    }
    void paintEvent(QPaintEvent* event) override {
        QTableView::paintEvent(event);
        const auto [col, row] = m_spread.grid().active();
        QPainter painter(viewport());
        m_view.marks().draw(painter, *this, m_spread.grid());
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        const QRect active = visualRect(m_model.index(row - 1, col - 1));
        if (!active.isEmpty()) painter.drawRect(active.adjusted(1, 1, -2, -2));
        painter.setPen(palette().color(QPalette::Dark));
        const QRect cells = viewport()->rect();
        if (m_ends.testFlag(Qt::RightEdge)) painter.drawLine(cells.topRight(), cells.bottomRight());
        if (m_ends.testFlag(Qt::BottomEdge))
            painter.drawLine(cells.bottomLeft(), cells.bottomRight());
    }

  private:
    std::optional<control::CellAddress> cellAt(const QPoint& point) const {
        const QModelIndex index = indexAt(point);
        if (!index.isValid()) return std::nullopt;
        return control::CellAddress{index.column() + 1, index.row() + 1};
    }

    Qt::Edges m_ends;
    TSpread& m_spread;
    SheetView& m_view;
    GridModel m_model;
    CellPainter m_painter;
    LayoutFollower m_layout;
};

FrozenPanes::FrozenPanes(TSpread& spread, SheetView& view)
    : QObject(&view),
      m_grid(spread.grid()),
      m_view(view),
      m_top(new FrozenPane(spread, view, Qt::BottomEdge)),
      m_left(new FrozenPane(spread, view, Qt::RightEdge)),
      m_corner(new FrozenPane(spread, view, Qt::RightEdge | Qt::BottomEdge)) {
    connect(view.horizontalScrollBar(), &QScrollBar::valueChanged, m_top->horizontalScrollBar(),
            &QScrollBar::setValue);
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, m_left->verticalScrollBar(),
            &QScrollBar::setValue);
    view.installEventFilter(this);
}

void FrozenPanes::freeze(int cols, int rows) {
    m_cols = std::clamp(cols, 0, m_grid.cols() - 1);
    m_rows = std::clamp(rows, 0, m_grid.rows() - 1);
    follow();
}

QSize FrozenPanes::covered() const {
    const QHeaderView& cols = *m_view.horizontalHeader();
    const QHeaderView& rows = *m_view.verticalHeader();
    return {m_cols > 0 ? cols.sectionPosition(m_cols) : 0,
            m_rows > 0 ? rows.sectionPosition(m_rows) : 0};
}

void FrozenPanes::setZoom(int percent) {
    for (FrozenPane* pane : {m_top, m_left, m_corner}) pane->setZoom(percent);
    follow();
}

void FrozenPanes::update() {
    for (FrozenPane* pane : {m_top, m_left, m_corner}) pane->viewport()->update();
}

void FrozenPanes::setShown(bool shown) {
    m_isShown = shown;
    place();
}

void FrozenPanes::follow() {
    if (isFrozen()) {
        m_top->follow(false, true);
        m_left->follow(true, false);
        m_corner->follow(true, true);
    }
    place();
}

void FrozenPanes::place() {
    m_top->setVisible(m_isShown && m_rows > 0);
    m_left->setVisible(m_isShown && m_cols > 0);
    m_corner->setVisible(m_isShown && m_rows > 0 && m_cols > 0);
    if (!isFrozen()) return;
    const QRect cells = m_view.viewport()->geometry();
    const int frame = m_view.frameWidth();
    const QSize size = covered();
    m_top->setGeometry(frame, cells.top(), cells.right() + 1 - frame, size.height());
    m_left->setGeometry(cells.left(), frame, size.width(), cells.bottom() + 1 - frame);
    m_corner->setGeometry(frame, frame, cells.left() - frame + size.width(),
                          cells.top() - frame + size.height());
    m_top->horizontalScrollBar()->setValue(m_view.horizontalScrollBar()->value());
    m_left->verticalScrollBar()->setValue(m_view.verticalScrollBar()->value());
    m_corner->raise();
}

bool FrozenPanes::eventFilter(QObject* watched, QEvent* event) {
    const bool resizes = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
    if (watched == &m_view && resizes)
        QMetaObject::invokeMethod(
            this, [this] { place(); }, Qt::QueuedConnection);
    return false;
}
