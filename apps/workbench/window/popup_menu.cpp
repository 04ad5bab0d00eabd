// Menus that open at the mouse.
#include <QCursor>
#include <QMenu>

#include "platform/window/wnd.h"
#include "workbench/window/captions.h"
#include "workbench/window/qt_window_system.h"

namespace {

/// At the mouse; for a menu that was called by a key, in the window.
QPoint menuPlace(const QWidget* widget) {
    const QPoint mouse = QCursor::pos();
    if (!widget || widget->rect().contains(widget->mapFromGlobal(mouse))) return mouse;
    return widget->mapToGlobal(widget->rect().center());
}

}  // namespace

int QtWindowSystem::popupMenu(CWnd& owner, std::span<const MenuEntry> entries) {
    syncGrids();
    QWidget* widget = widgetOf(owner);
    QMenu menu(widget ? widget : ownerOf(&owner));
    for (const MenuEntry& entry : entries) {
        if (entry.command == 0) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(captionOf(entry.text));
        action->setData(entry.command);
        action->setEnabled(entry.isEnabled);
        action->setCheckable(entry.isChecked);
        action->setChecked(entry.isChecked);
    }
    const QAction* picked = menu.exec(menuPlace(widget));
    return picked ? picked->data().toInt() : 0;
}
