#include "workbench/window/dialog_view.h"

#include <QApplication>
#include <algorithm>

#include "platform/window/dialog.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/dialog_navigation.h"
#include "workbench/window/dialog_widget.h"
#include "workbench/window/placement.h"
#include "workbench/window/qt_window_system.h"

namespace {

CTabCtrl* visibleTabs(const CDialog& dialog) {
    for (CWnd* child : dialog.children()) {
        auto* tabs = dynamic_cast<CTabCtrl*>(child);
        if (tabs && tabs->isVisible() && tabs->isEnabled() && tabs->count() > 0) return tabs;
    }
    return nullptr;
}

bool isBelow(const CWnd* window, const CWnd& outer) {
    while (window && window->parent() != &outer) window = window->parent();
    return window != nullptr;
}

CRect rectOf(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

}  // namespace

DialogView::DialogView(QtWindowSystem& system, CDialog& dialog, DialogWidget* widget)
    : SurfaceView(system, dialog, widget) {
    Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (dialog.madeFrom().isResizable) flags |= Qt::WindowMaximizeButtonHint;
    if (dialog.madeFrom().isTopmost) flags |= Qt::WindowStaysOnTopHint;
    widget->setWindowFlags(flags);
    widget->setView(this);
}

CDialog& DialogView::dialog() const {
    return static_cast<CDialog&>(*window());
}

DialogWidget& DialogView::frame() const {
    return static_cast<DialogWidget&>(*widget());
}

void DialogView::forgetWindow() {
    frame().setView(nullptr);
}

bool DialogView::isGone() const {
    return !window() || dialog().isEnded() || !dialog().isShown();
}

// --- what the user does with the frame ----------------------------------------------------------

void DialogView::userEscapes() {
    act([&] {
        if (!dialog().press(IDCANCEL)) QApplication::beep();
    });
}

void DialogView::userCloses() {
    act([&] { dialog().onClose(); });
}

bool DialogView::userConfirms() {
    CButton* button = window() ? defaultButton(dialog()) : nullptr;
    if (!button || !button->isVisible() || !button->isEnabled()) return false;
    act([&] { button->userPresses(); });
    return true;
}

void DialogView::userTabs(bool backwards) {
    if (!window()) return;
    if (CWnd* next = nextInTabOrder(dialog(), CWnd::focused(), backwards))
        act([&] { system().focusByTab(*next); });
}

bool DialogView::userTurnsPage(bool backwards) {
    CTabCtrl* tabs = window() ? visibleTabs(dialog()) : nullptr;
    if (!tabs) return false;
    const int step = backwards ? tabs->count() - 1 : 1;
    const int page = (std::max(tabs->selected(), 0) + step) % tabs->count();
    act([&] { tabs->userSelects(page); });
    return true;
}

// --- its place on the screen --------------------------------------------------------------------

bool DialogView::eventFilter(QObject* watched, QEvent* event) {
    const bool isMoved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (watched == widget() && isMoved && widget()->isVisible()) takePlaceOver();
    return SurfaceView::eventFilter(watched, event);
}

// Places are told relative to the window that owns the dialog, wherever that is by now.
static QPoint originOf(const QtWindowSystem& system, const CWnd& window) {
    const CWnd* parent = window.parent();
    if (!parent) return {};
    if (const QWidget* widget = system.widgetOf(*parent)) return widget->mapToGlobal(QPoint());
    const CPoint at = parent->windowRect().topLeft();
    return {at.x, at.y};
}

void DialogView::takePlaceOver() {
    if (!window()) return;
    const CRect place = rectOf(widget()->geometry().translated(-originOf(system(), *window())));
    if (place == window()->rect()) return;
    act([&] { window()->move(place); });
    if (window()) takeDialogsAlong();
}

// They stay where they are, so their places relative to this window are others now.
void DialogView::takeDialogsAlong() {
    for (CWnd* child : window()->children()) {
        const QWidget* shown = system().widgetOf(*child);
        if (!shown || !shown->isWindow()) continue;
        child->move(rectOf(shown->geometry().translated(-originOf(system(), *child))));
    }
}

void DialogView::limitSize() {
    const CSize size = window()->rect().size();
    if (!dialog().madeFrom().isResizable) {
        widget()->setFixedSize(size.width, size.height);
        return;
    }
    const CSize least = window()->minimumSize();
    widget()->setMinimumSize(std::min(least.width, size.width),
                             std::min(least.height, size.height));
}

void DialogView::placeWidget() {
    limitSize();
    const CRect& rect = window()->rect();
    const QPoint at = originOf(system(), *window()) + QPoint(rect.left, rect.top);
    const QRect place(at, QSize(rect.width(), rect.height()));
    if (widget()->geometry() != place) widget()->setGeometry(place);
}

void DialogView::showWidget() {
    if (!window()->isShown()) {
        widget()->hide();
        return;
    }
    if (widget()->isVisible()) return;
    prepareToShow();
    widget()->show();
    widget()->activateWindow();
    focusFirst();
}

// A dialog that was put nowhere yet lies over the middle of its owner. One that was remembered at
// a place where no screen is any more comes back onto one.
void DialogView::prepareToShow() {
    const CPoint unplaced = pixelsOf(dialog().madeFrom().size).topLeft();
    const CRect& rect = window()->rect();
    const QPoint origin = originOf(system(), *window());
    QRect place(origin + QPoint(rect.left, rect.top), QSize(rect.width(), rect.height()));
    if (!m_wasShown && rect.topLeft() == unplaced) {
        const QWidget* owner = widget()->parentWidget();
        place =
            centredOver(owner ? owner->window()->geometry() : screenAround(place), place.size());
    }
    if (dialog().madeFrom().isResizable)
        place.setSize(place.size().boundedTo(screenAround(place).size()));
    m_wasShown = true;
    window()->move(rectOf(movedOntoScreen(place).translated(-origin)));
    widget()->setWindowModality(dialog().isModal() ? Qt::ApplicationModal : Qt::NonModal);
}

void DialogView::focusFirst() {
    CWnd* const focused = CWnd::focused();
    CWnd* const first =
        isBelow(focused, *window()) ? focused : nextInTabOrder(dialog(), nullptr, false);
    if (!first) return;
    if (first == focused)
        system().changed(*first, WindowChange::focus);
    else
        system().focusByTab(*first);
}

void DialogView::apply(WindowChange change) {
    if (change == WindowChange::text) widget()->setWindowTitle(toQt(window()->text()));
    SurfaceView::apply(change);
}
