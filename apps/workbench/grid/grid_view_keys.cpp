// What the keys do in a grid.
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include "platform/window/window_system.h"
#include "spread/vor_spread.h"
#include "workbench/grid/grid_view.h"
#include "workbench/grid/item_list.h"
#include "workbench/grid/message_bubble.h"
#include "workbench/grid/refusal.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/input_translation.h"

using control::Block;
using control::CellAddress;
using control::CellKind;

namespace {

enum EnterAction { stays = 0, goesDown = 2, goesToNextOpen = 5 };

bool isShift(const QKeyEvent& key) {
    return key.modifiers().testFlag(Qt::ShiftModifier);
}
bool isCtrl(const QKeyEvent& key) {
    return key.modifiers().testFlag(Qt::ControlModifier);
}
bool isAlt(const QKeyEvent& key) {
    return key.modifiers().testFlag(Qt::AltModifier);
}
bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

// A character that is typed; AltGr counts as Ctrl and Alt together.
bool isTyped(const QKeyEvent& key) {
    return !key.text().isEmpty() && key.text().at(0).isPrint() && isCtrl(key) == isAlt(key);
}

QStringList itemsOf(const control::CellType& type) {
    return toQt(type.text).split('\t');
}

}  // namespace

std::optional<CellAddress> GridView::activeCell() {
    const CellAddress active = grid().active();
    if (grid().isInside(active.col, active.row)) return active;
    const CellAddress first = firstCell(grid());
    if (!grid().setActive(first.col, first.row)) return std::nullopt;
    return first;
}

bool GridView::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            const bool isBack = key->key() == Qt::Key_Backtab || isShift(*key);
            const bool isTab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
            if (!isTab || isCtrl(*key) || isAlt(*key)) break;
            goOnByTab(!isBack);
            return true;
        }
        case QEvent::EnabledChange:
            viewport()->update();
            break;
        default:
            break;
    }
    return QTableView::event(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (m_editor.isOpen()) return handOn(*event);
    m_bubble->hide();
    const bool isUsed =
        model() && activeCell() &&
        (runsAction(*event) || selects(*event) || moves(*event) || acts(*event) || types(*event));
    event->setAccepted(isUsed);
}

// To the field of the cell. What that does not use, as Shift alone, comes back here, as to every
// parent.
void GridView::handOn(QKeyEvent& key) {
    if (m_isHandingOn) return key.ignore();
    const QPointer<GridView> self(this);
    m_isHandingOn = true;
    QApplication::sendEvent(m_editor.field(), &key);
    if (self) m_isHandingOn = false;
}

// Keys in the field of a cell, before the field has them.
bool GridView::editorKey(QKeyEvent& key) {
    if (isEnter(key)) {
        if (isAlt(key)) {
            m_editor.field()->insertPlainText("\n");
        } else if (commitEdit()) {
            goOnByEnter(!isShift(key));
        }
        return true;
    }
    switch (key.key()) {
        case Qt::Key_Escape:
            m_bubble->hide();
            m_editor.cancel();
            sync();
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            goOnByTab(key.key() == Qt::Key_Tab && !isShift(key));
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return entersBesides(key);
        default:
            return false;
    }
}

// Keys that lead out of a field of one line, or open the list of its cell.
bool GridView::entersBesides(const QKeyEvent& key) {
    const CellAddress cell = grid().active();
    if (isAlt(key)) {
        const bool isCombo = grid().format(cell.col, cell.row).type.kind == CellKind::comboBox;
        if (isCombo && key.key() == Qt::Key_Down) {
            m_editor.cancel();
            openList(cell);
        }
        return isCombo;
    }
    if (m_editor.field()->blockCount() > 1) return false;
    if (commitEdit()) moves(key);
    return true;
}

// --- moving -------------------------------------------------------------------------------------

bool GridView::moves(const QKeyEvent& key) {
    if (isAlt(key)) return false;
    const bool goesOn = isShift(key) && m_extended && grid().selection() == m_extended;
    const CellAddress from = goesOn ? m_head : grid().active();
    const std::optional<CellAddress> target = targetOf(key, from);
    if (!target) return false;
    isShift(key) ? extendTo(*target) : go(*target);
    return true;
}

std::optional<CellAddress> GridView::targetOf(const QKeyEvent& key, CellAddress from) const {
    const auto along = [&](Direction direction) {
        return isCtrl(key) ? jump(grid(), from, direction) : step(grid(), from, direction);
    };
    switch (key.key()) {
        case Qt::Key_Left:
            return along({-1, 0});
        case Qt::Key_Right:
            return along({1, 0});
        case Qt::Key_Up:
            return along({0, -1});
        case Qt::Key_Down:
            return along({0, 1});
        case Qt::Key_Home:
            return isCtrl(key) ? firstCell(grid()) : nearestShown(grid(), {1, from.row}, {1, 0});
        case Qt::Key_End:
            return isCtrl(key) ? lastFilledCell(grid())
                               : nearestShown(grid(), {grid().cols(), from.row}, {-1, 0});
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            // With Ctrl they turn the pages of the dialog.
            if (isCtrl(key)) return std::nullopt;
            return pageFrom(from, key.key() == Qt::Key_PageUp ? -1 : 1);
        default:
            return std::nullopt;
    }
}

// The row that stands one view's height further, always another one.
CellAddress GridView::pageFrom(CellAddress from, int direction) const {
    const int height = std::max(viewport()->height() - rowHeight(from.row - 1), 1);
    const int place = rowViewportPosition(from.row - 1) + direction * height;
    const int section = verticalHeader()->logicalIndexAt(place);
    const int end = direction < 0 ? 1 : grid().rows();
    int row = section < 0 ? end : section + 1;
    if (row == from.row && row != end) row += direction;
    return nearestShown(grid(), {from.col, row}, {0, direction});
}

bool GridView::selects(const QKeyEvent& key) {
    const CellAddress cell = grid().active();
    if (key.key() == Qt::Key_A && isCtrl(key) && !isAlt(key) && !isShift(key)) {
        selectAll();
        return true;
    }
    if (key.key() != Qt::Key_Space || isShift(key) == isCtrl(key) || isAlt(key)) return false;
    selectBand(isCtrl(key), isCtrl(key) ? cell.col : cell.row, false);
    return true;
}

void GridView::leaveBy(bool forwards) {
    focusNextPrevChild(forwards);
}

void GridView::goOnByTab(bool forwards) {
    if (!commitEdit()) return;
    m_bubble->hide();
    if (!activeCell()) return leaveBy(forwards);
    int action = Vor_Spread::tabMoves;
    if (auto* spread = dynamic_cast<Vor_Spread*>(&m_spread))
        spread->handleTabKey(Vor_Spread::tabKey, action);
    const auto leaving = forwards ? Vor_Spread::tabLeavesForwards : Vor_Spread::tabLeavesBackwards;
    const std::optional<CellAddress> next = nextOpen(grid(), grid().active(), forwards);
    if (action == leaving || !next) return leaveBy(forwards);
    go(*next);
}

// After Enter. False when it leads nowhere.
bool GridView::goOnByEnter(bool forwards) {
    const CellAddress from = grid().active();
    switch (grid().view().editEnterAction) {
        case goesDown:
            go(step(grid(), from, {0, forwards ? 1 : -1}));
            return true;
        case goesToNextOpen: {
            const std::optional<CellAddress> next = nextOpen(grid(), from, forwards);
            if (next) go(*next);
            return next.has_value();
        }
        default:
            sync();
            return false;
    }
}

// --- doing --------------------------------------------------------------------------------------

bool GridView::runsAction(const QKeyEvent& key) {
    const std::optional<KeyMessage> message = keyMessage(key);
    if (!message || message->alt) return false;
    const auto action = grid().keyAction({message->key, message->shift, message->ctrl});
    return action && run(*action);
}

bool GridView::run(control::KeyAction action) {
    const QPointer<GridView> self(this);
    const std::optional<Block> block = grid().resolved(chosen());
    if (!block) return false;
    bool isWhole = true;
    if (action == control::KeyAction::paste) {
        const std::string text = WindowSystem::current().clipboardText();
        isWhole = m_spread.userPastes(block->col1, block->row1, text);
    } else {
        m_spread.clipboardCopy();
        if (action == control::KeyAction::cut) m_spread.userClears(*block);
    }
    if (!isAlive(self)) return true;
    sync();
    if (!isWhole) refuse(whySomeRefused());
    return true;
}

bool GridView::acts(const QKeyEvent& key) {
    const CellAddress cell = *activeCell();
    const control::CellFormat& format = grid().format(cell.col, cell.row);
    const bool isPressed = format.type.kind == CellKind::button ||
                           (format.type.kind == CellKind::checkBox && !isEnter(key));
    if (isEnter(key)) {
        if (isPressed) return press(cell), true;
        const bool goesOnAnywhere = grid().view().editEnterAction == goesDown;
        // A cell that only shows something leaves Enter to the dialog.
        if (!goesOnAnywhere && !isOpen(grid(), cell)) return false;
        if (grid().view().editEnterAction == stays) return m_editor.begin();
        return goOnByEnter(!isShift(key));
    }
    const bool opens = key.key() == Qt::Key_F4 || (key.key() == Qt::Key_Down && isAlt(key));
    if (opens && format.type.kind == CellKind::comboBox) {
        isOpen(grid(), cell) ? openList(cell) : showWhyClosed(cell);
        return true;
    }
    if (isCtrl(key) || isAlt(key)) return false;
    switch (key.key()) {
        case Qt::Key_Space:
            if (!isPressed) return false;
            press(cell);
            return true;
        case Qt::Key_F2:
            if (format.type.kind == CellKind::checkBox || !m_editor.begin()) showWhyClosed(cell);
            return true;
        case Qt::Key_Delete: {
            const QPointer<GridView> self(this);
            const bool isCleared = m_spread.userClears(chosen());
            if (!isAlive(self)) return true;
            sync();
            if (!isCleared && !grid().selection() && format.locked) showWhyClosed(cell);
            return true;
        }
        case Qt::Key_Backspace:
            if (!m_editor.beginWith({})) showWhyClosed(cell);
            return true;
        default:
            return false;
    }
}

// --- typing -------------------------------------------------------------------------------------

bool GridView::types(const QKeyEvent& key) {
    if (!isTyped(key)) return false;
    const CellAddress cell = *activeCell();
    const control::CellType& type = grid().format(cell.col, cell.row).type;
    if (type.kind == CellKind::button || type.kind == CellKind::checkBox) return false;
    if (!isOpen(grid(), cell)) {
        showWhyClosed(cell);
        return true;
    }
    if (type.kind == CellKind::comboBox && !type.editable) return picksByLetter(cell, key.text());
    m_editor.beginWith(key.text());
    return true;
}

// What an input method composes goes to the field of the cell.
void GridView::inputMethodEvent(QInputMethodEvent* event) {
    const bool isText = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
    const std::optional<CellAddress> cell = activeCell();
    if (!isText || !cell || !isOpen(grid(), *cell) || !m_editor.beginWith({})) {
        event->ignore();
        return;
    }
    QApplication::sendEvent(m_editor.field(), event);
}

/// The next item that begins with the letter, from the present one on.
bool GridView::picksByLetter(CellAddress cell, const QString& letter) {
    const QStringList items = itemsOf(grid().format(cell.col, cell.row).type);
    const auto now = items.indexOf(m_model.data(indexOf(cell), Qt::DisplayRole).toString());
    for (qsizetype i = 1; i <= items.size(); ++i) {
        const QString& item = items[(now + i + items.size()) % items.size()];
        if (!item.startsWith(letter, Qt::CaseInsensitive)) continue;
        const QPointer<GridView> self(this);
        m_spread.userEnters(cell.col, cell.row, fromQt(item));
        if (isAlive(self)) sync();
        break;
    }
    return true;
}

void GridView::openList(CellAddress cell) {
    const QRect place = rectOf(cell);
    const QRect onScreen(viewport()->mapToGlobal(place.topLeft()), place.size());
    const QPointer<GridView> self(this);
    ItemList::open(this, onScreen, itemsOf(grid().format(cell.col, cell.row).type),
                   m_model.data(indexOf(cell), Qt::DisplayRole).toString(),
                   [self, cell](const QString& item) {
                       if (!isAlive(self)) return;
                       self->m_spread.userEnters(cell.col, cell.row, fromQt(item));
                       if (isAlive(self)) self->sync();
                   });
}
