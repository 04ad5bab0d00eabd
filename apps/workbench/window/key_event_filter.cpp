#include "workbench/window/key_event_filter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "platform/window/wnd.h"
#include "workbench/window/input_translation.h"
#include "workbench/window/qt_window_system.h"

KeyEventFilter::KeyEventFilter(QtWindowSystem& system) : m_system(system) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyEventFilter::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::FocusIn)
        return false;
    if (!watched->isWidgetType()) return false;
    auto& widget = static_cast<QWidget&>(*watched);
    if (type != QEvent::FocusIn) return hearKey(widget, static_cast<QKeyEvent&>(*event));
    hearFocus(widget);
    return false;
}

// A key that nobody wants climbs from widget to widget; the windows have heard of it at the first.
// An open list or menu has its keys for itself.
bool KeyEventFilter::isForWindows(QWidget& widget) const {
    if (QApplication::activePopupWidget()) return false;
    const QWidget* focused = QApplication::focusWidget();
    return focused ? &widget == focused : widget.isWindow();
}

bool KeyEventFilter::hearKey(QWidget& widget, const QKeyEvent& event) {
    const bool isRepeatedRelease = event.type() == QEvent::KeyRelease && event.isAutoRepeat();
    if (isRepeatedRelease || !isForWindows(widget)) return false;
    CWnd* window = m_system.windowOf(&widget);
    const auto message = keyMessage(event);
    return window && message && m_system.userPressesKey(*window, *message);
}

// A dialog that is shown is told of a keyboard that it does not have. The window tells the one that
// had the keyboard before, whose dialog may do anything then.
void KeyEventFilter::hearFocus(QWidget& widget) {
    if (&widget != QApplication::focusWidget()) return;
    CWnd* window = m_system.windowOf(&widget);
    if (window && window != CWnd::focused()) m_system.userActs([&] { window->focus(); });
}
