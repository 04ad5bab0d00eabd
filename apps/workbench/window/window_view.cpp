#include "workbench/window/window_view.h"

#include <QAbstractItemView>
#include <cmath>

#include "platform/window/message_scope.h"
#include "platform/window/wnd.h"
#include "workbench/window/captions.h"
#include "workbench/window/qt_window_system.h"

namespace {

constexpr WindowChange allChanges[] = {
    WindowChange::style,   WindowChange::text,  WindowChange::tip,
    WindowChange::content, WindowChange::items, WindowChange::selection,
    WindowChange::check,   WindowChange::rect,  WindowChange::enabled,
};

/// Sets a flag for the length of a scope; scopes may lie in each other.
class FlagScope {
  public:
    explicit FlagScope(bool& flag) : m_flag(flag), m_before(flag) { flag = true; }
    ~FlagScope() { m_flag = m_before; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

  private:
    bool& m_flag;
    bool m_before;
};

}  // namespace

WindowView::WindowView(QtWindowSystem& system, CWnd& window, QWidget* widget)
    : QObject(widget), m_system(system), m_window(&window), m_widget(widget) {}

WindowView::~WindowView() {
    if (m_window) m_system.forget(*m_window);
}

void WindowView::followAll() {
    for (const WindowChange change : allChanges) follow(change);
}

void WindowView::follow(WindowChange change) {
    if (!m_window) return;
    const FlagScope following(m_isFollowing);
    apply(change);
}

void WindowView::apply(WindowChange change) {
    switch (change) {
        case WindowChange::rect:
            placeWidget();
            break;
        case WindowChange::visible:
            showWidget();
            break;
        case WindowChange::enabled:
            enableWidget();
            break;
        case WindowChange::tip:
            m_widget->setToolTip(tipOf(m_window->tip()));
            break;
        case WindowChange::focus:
            if (!m_widget->hasFocus()) m_widget->setFocus(m_system.focusReason());
            break;
        default:
            break;
    }
}

void WindowView::placeWidget() {
    placeAt(m_window->rect());
}

// Where a pixel of ours is one and a half of the screen's, an edge that falls between two of them
// loses its line.
void WindowView::placeAt(const CRect& rect) {
    const qreal ratio = m_widget->devicePixelRatioF();
    const auto moved = [&](int at, int step) {
        for (int tries = 0; tries < 3 && std::floor(at * ratio) != at * ratio; ++tries) at += step;
        return at;
    };
    const QPoint topLeft(moved(rect.left, -1), moved(rect.top, -1));
    const QPoint beyond(moved(rect.right, 1), moved(rect.bottom, 1));
    m_widget->setGeometry(QRect(topLeft, beyond - QPoint(1, 1)));
}

void WindowView::showWidget() {
    m_widget->setVisible(m_window->isShown());
}

// A disabled control leaves the mouse to its dialog, which may let a user move it about; one with
// a tip keeps the mouse to show it.
void WindowView::enableWidget() {
    m_widget->setEnabled(m_window->isEnabled());
    if (!m_widget->isWindow())
        m_widget->setAttribute(Qt::WA_TransparentForMouseEvents,
                               !m_window->isEnabled() && m_window->tip().empty());
}

void WindowView::leave() {
    forgetWindow();
    m_window = nullptr;
    if (m_isBorrowed) {
        deleteLater();
        return;
    }
    // Without this, Qt would look for another widget to give the keyboard to, among windows that
    // are about to go as well.
    m_widget->clearFocus();
    m_widget->hide();
    m_widget->setObjectName({});
    if (auto* items = qobject_cast<QAbstractItemView*>(m_widget)) items->setModel(nullptr);
    if (m_actions > 0)
        m_widget->setParent(nullptr);  // the widgets around it may go before it is done
    else
        m_widget->deleteLater();
}

void WindowView::act(const std::function<void()>& action) {
    if (m_isFollowing || !m_window) return;
    ++m_actions;
    {
        const MessageScope message(*m_window);
        m_system.userActs(action);
    }
    --m_actions;
    if (m_window) {
        const FlagScope following(m_isFollowing);
        applyOwnChanges();
    } else if (m_actions == 0 && !m_isBorrowed) {
        m_widget->deleteLater();
    }
}
