#include "workbench/grid/grid_view.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "workbench/grid/cell_font.h"
#include "workbench/grid/grid_header.h"
#include "workbench/grid/message_bubble.h"
#include "workbench/grid/refusal.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/dialog_style.h"

using control::CellAddress;
using control::headerIndex;

GridView::GridView(TSpread& spread, QWidget* parent)
    : QTableView(parent),
      m_spread(spread),
      m_model(spread.grid(), nullptr),
      m_painter(spread.grid(), nullptr),
      m_layout(spread.grid(), *this),
      m_editor(spread, *this,
               {[this](QKeyEvent& key) { return editorKey(key); },
                [this](const QString& why) { refuse(why); }, [this] { m_bubble->hide(); },
                [this](QPlainTextEdit* field) { emit fieldOpened(field); }}),
      m_bubble(new MessageBubble(this)) {
    static const bool isMeasuring = (measureWithCellFonts(), true);
    Q_UNUSED(isMeasuring)
    setHorizontalHeader(new GridHeader(grid(), Qt::Horizontal, this));
    setVerticalHeader(new GridHeader(grid(), Qt::Vertical, this));
    setItemDelegate(&m_painter);
    // The grid keeps the selection, this class the keys and the mouse.
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setAutoScroll(false);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAttribute(Qt::WA_InputMethodEnabled);
    setModel(&m_model);
    connectHeaders();
    sync();
}

void GridView::connectHeaders() {
    const auto select = [this](bool isCol, int section, bool isDrag) {
        setFocus(Qt::MouseFocusReason);
        if (!commitEdit()) return;
        const bool extends =
            isDrag || QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
        selectBand(isCol, section + 1, extends);
    };
    QHeaderView* cols = horizontalHeader();
    QHeaderView* rows = verticalHeader();
    connect(cols, &QHeaderView::sectionPressed, this, [=](int s) { select(true, s, false); });
    connect(cols, &QHeaderView::sectionEntered, this, [=](int s) { select(true, s, true); });
    connect(rows, &QHeaderView::sectionPressed, this, [=](int s) { select(false, s, false); });
    connect(rows, &QHeaderView::sectionEntered, this, [=](int s) { select(false, s, true); });
    connect(cols, &QHeaderView::sectionDoubleClicked, this,
            [this](int s) { m_spread.userDoubleClicks(s + 1, headerIndex); });
    connect(rows, &QHeaderView::sectionDoubleClicked, this,
            [this](int s) { m_spread.userDoubleClicks(headerIndex, s + 1); });
    connect(cols, &QHeaderView::sectionResized, this,
            [this](int s, int, int size) { setWidthByUser(s, size); });
    connect(rows, &QHeaderView::sectionResized, this,
            [this](int s, int, int size) { setHeightByUser(s, size); });
    connect(cols, &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int s) { fitByUser(true, s + 1); });
    connect(rows, &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int s) { fitByUser(false, s + 1); });
    if (auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        corner->installEventFilter(this);
}

// --- following the grid -------------------------------------------------------------------------

void GridView::sync() {
    if (!model()) return;
    m_model.follow();
    if (m_layout.follow()) {
        m_painter.pictures().forgetFiles();
        followColours();
        updateGeometries();
    }
    followActive();
    m_editor.follow();
    const int delay = grid().view().textTipDelay;
    viewport()->setProperty(tipDelayProperty, delay > 0 ? QVariant(delay) : QVariant());
    viewport()->update();
    horizontalHeader()->viewport()->update();
    verticalHeader()->viewport()->update();
}

void GridView::setZoom(int percent) {
    m_zoom = percent;
    m_painter.setZoom(percent);
    m_layout.setZoom(percent);
    m_editor.setZoom(percent);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()})
        static_cast<GridHeader*>(header)->setZoom(percent);
    sync();
}

void GridView::followColours() {
    QPalette colours = viewport()->palette();
    const QColor usual = palette().color(QPalette::Window);
    colours.setColor(QPalette::Base, toQt(grid().sides().greyArea, usual));
    viewport()->setPalette(colours);
}

void GridView::followActive() {
    const CellAddress active = grid().active();
    if (active == m_shownActive) return;
    m_shownActive = active;
    m_bubble->hide();
    const QModelIndex index = indexOf(active);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    if (index.isValid() && isShown(grid(), active)) scrollTo(index);
}

// A size that the user gave a column or row.
void GridView::setWidthByUser(int section, int size) {
    if (m_layout.isFollowing()) return;
    m_spread.userSizesCol(section + 1, zoomed(size, 10000 / m_zoom));
    sync();
}

void GridView::setHeightByUser(int section, int size) {
    if (m_layout.isFollowing()) return;
    m_spread.userSizesRow(section + 1, zoomed(size, 10000 / m_zoom));
    sync();
}

void GridView::fitByUser(bool isCol, int index) {
    isCol ? m_spread.userSizesCol(index, grid().fitWidth(index))
          : m_spread.userSizesRow(index, grid().fitHeight(index));
    sync();
}

// Columns that share the window's width may miss it by a frame or two; no bar for that.
void GridView::updateGeometries() {
    constexpr int hardlyMore = 4;  // pixels
    const bool fits = horizontalHeader()->length() - viewport()->width() <= hardlyMore;
    setHorizontalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    QTableView::updateGeometries();
}

void GridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    m_bubble->hide();
    m_editor.place();
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    m_editor.place();
}

// --- drawing ------------------------------------------------------------------------------------

void GridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!model()) return;
    QPainter painter(viewport());
    drawFrames(painter);
}

void GridView::drawFrames(QPainter& painter) const {
    const CellAddress active = grid().active();
    if (!grid().isInside(active.col, active.row)) return;
    const QPalette::ColorGroup group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    const QColor colour = hasFocus() ? toQt(grid().sides().selectionBackground,
                                            palette().color(group, QPalette::Highlight))
                                     : palette().color(QPalette::Mid);
    QRect rect = rectOf(active).adjusted(0, 0, -1, -1);
    if (m_editor.isOpen()) rect = m_editor.field()->geometry().adjusted(-2, -2, 2, 2);
    if (rect.isEmpty()) return;
    painter.setPen(colour);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.drawRect(rect.adjusted(1, 1, -2, -2));
}

void GridView::drawCorner(QWidget& corner) const {
    QPainter painter(&corner);
    std::string buffer;
    const auto text = grid().text(headerIndex, headerIndex, control::Reading::data, buffer);
    drawHeaderCell(painter, corner.rect(), toQt(text), grid().format(headerIndex, headerIndex),
                   palette(), false, m_zoom);
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && qobject_cast<QAbstractButton*>(watched)) {
        drawCorner(*static_cast<QWidget*>(watched));
        return true;
    }
    return QTableView::eventFilter(watched, event);
}

// --- messages -----------------------------------------------------------------------------------

QString GridView::refusal() const {
    return m_bubble->isVisibleTo(this) ? m_bubble->text() : QString();
}

void GridView::refuse(const QString& why) {
    const QRect cell = m_editor.isOpen() ? m_editor.field()->geometry() : rectOf(grid().active());
    m_bubble->showMessage(why, cell.translated(viewport()->pos()));
    emit refused(why);
}

void GridView::showWhyClosed(CellAddress cell) {
    if (const QString why = whyClosed(grid(), cell.col, cell.row); !why.isEmpty()) refuse(why);
}

QString GridView::tipAt(const QPoint& point) const {
    const std::optional<CellAddress> cell = cellAt(point);
    if (!cell) return {};
    if (const auto note = grid().note(cell->col, cell->row); !note.empty()) return toQt(note);
    if (grid().view().textTips && m_painter.isCutOff(*cell, rectOf(*cell).width()))
        return m_model.data(indexOf(*cell), Qt::DisplayRole).toString();
    return {};
}

bool GridView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString tip = tipAt(help->pos());
    const std::optional<CellAddress> cell = cellAt(help->pos());
    if (tip.isEmpty()) return QTableView::viewportEvent(event);
    // Rich text would read "<" in a cell's text as markup.
    QToolTip::showText(help->globalPos(), tip.toHtmlEscaped(), viewport(), rectOf(*cell));
    return true;
}
