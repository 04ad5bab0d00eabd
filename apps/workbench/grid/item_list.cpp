#include "workbench/grid/item_list.h"

#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int mostLines = 12;

}  // namespace

ItemList::ItemList(QWidget* parent) : QListWidget(parent) {
    setWindowFlags(Qt::Popup);
    setAttribute(Qt::WA_DeleteOnClose);
    setUniformItemSizes(true);
    setMouseTracking(true);
    setFrameShape(QFrame::Box);
    connect(this, &QListWidget::itemEntered, this,
            [this](QListWidgetItem* item) { setCurrentItem(item); });
    connect(this, &QListWidget::itemClicked, this, [this] { pick(); });
}

ItemList* ItemList::open(QWidget* parent, const QRect& cell, const QStringList& items,
                         const QString& current, Picked picked) {
    auto* list = new ItemList(parent);
    list->addItems(items);
    list->m_picked = std::move(picked);
    list->setCurrentRow(static_cast<int>(items.indexOf(current)));
    list->place(cell);
    list->show();
    list->setFocus(Qt::PopupFocusReason);
    list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
    return list;
}

void ItemList::place(const QRect& cell) {
    const int lines = std::clamp(count(), 1, mostLines);
    const int frame = 2 * frameWidth();
    const int line = std::max(sizeHintForRow(0), fontMetrics().height());
    const int bar = count() > mostLines ? verticalScrollBar()->sizeHint().width() : 0;
    QRect place(cell.bottomLeft(), QSize(std::max(cell.width(), sizeHintForColumn(0) + bar + frame),
                                         lines * line + frame));
    const QScreen* shown = parentWidget() ? parentWidget()->screen() : nullptr;
    if (shown && place.bottom() > shown->availableGeometry().bottom()) place.moveBottom(cell.top());
    setGeometry(place);
}

void ItemList::pick() {
    const QListWidgetItem* item = currentItem();
    const Picked picked = std::move(m_picked);
    m_picked = nullptr;
    const QString text = item ? item->text() : QString();
    const bool isPicked = item != nullptr;
    close();
    if (isPicked && picked) picked(text);
}

void ItemList::keyPressEvent(QKeyEvent* event) {
    const bool closes = event->key() == Qt::Key_Escape || event->key() == Qt::Key_F4 ||
                        (event->key() == Qt::Key_Up && (event->modifiers() & Qt::AltModifier));
    switch (event->key()) {
        case Qt::Key_Enter:
        case Qt::Key_Return:
        case Qt::Key_Tab:
            return pick();
        default:
            return closes ? static_cast<void>(close()) : QListWidget::keyPressEvent(event);
    }
}
