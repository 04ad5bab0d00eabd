#include "platform/window/wnd.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/window/controls.h"
#include "platform/window/message_scope.h"
#include "platform/window/window_system.h"

namespace {

CWnd* focusedWindow = nullptr;
CWnd* capturedWindow = nullptr;
MessageScope* innermostMessage = nullptr;

// Never destroyed: windows that are globals go at the very end.
/// There from the beginning, without memory of its own, to the very end: windows go late.
template <class List>
union Lasting {
    constexpr Lasting() : list() {}
    ~Lasting() {}
    List list;
};

std::vector<CWnd*>& leavingWindows() {
    static constinit Lasting<std::vector<CWnd*>> windows;
    return windows.list;
}

std::vector<std::unique_ptr<CWnd>>& retiredWindows() {
    static constinit Lasting<std::vector<std::unique_ptr<CWnd>>> windows;
    return windows.list;
}

/// Takes the first that is not busy out of `windows`; null when there is none.
template <class Pointer>
Pointer takeIdle(std::vector<Pointer>& windows) {
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [](const Pointer& window) { return !window->isBusy(); });
    if (found == windows.end()) return nullptr;
    Pointer idle = std::move(*found);
    windows.erase(found);
    return idle;
}

}  // namespace

MessageScope::MessageScope(const CWnd& window)
    : m_window(&window), m_outer(std::exchange(innermostMessage, this)) {}

MessageScope::~MessageScope() {
    innermostMessage = m_outer;
    CWnd::destroyLeaving();
}

void retire(std::unique_ptr<CWnd> window) {
    if (!window) return;
    window->destroy();
    if (window->isBusy()) retiredWindows().push_back(std::move(window));
}

CWnd::~CWnd() {
    destroyNow();
    for (MessageScope* scope = innermostMessage; scope; scope = scope->m_outer)
        if (scope->m_window == this) scope->m_window = nullptr;
}

bool CWnd::create(const WindowTemplate& made, CWnd* parent) {
    if (m_isCreated || (parent && !parent->isAlive())) return false;
    m_made = made;
    m_parent = parent;
    m_isCreated = true;
    m_isEnabled = true;
    if (parent) parent->m_children.push_back(this);
    WindowSystem::current().created(*this);
    return true;
}

bool CWnd::isBelow(const CWnd& outer) const {
    const CWnd* window = m_parent;
    while (window && window != &outer) window = window->m_parent;
    return window != nullptr;
}

bool CWnd::isBusy() const {
    for (const MessageScope* scope = innermostMessage; scope; scope = scope->m_outer)
        if (scope->m_window && (scope->m_window == this || scope->m_window->isBelow(*this)))
            return true;
    return false;
}

bool CWnd::destroy() {
    if (!isAlive()) return false;
    if (isBusy()) {
        m_isLeaving = true;
        leavingWindows().push_back(this);
        show(false);
    } else {
        destroyNow();
    }
    return true;
}

// Also of a busy window, when its object is deleted all the same: a busy child that somebody else
// owns then stays, without a parent, until it has handled its message.
void CWnd::destroyNow() {
    if (!m_isCreated) return;
    std::erase(leavingWindows(), this);
    try {
        onDestroy();
    } catch (const std::bad_alloc&) {
        // It goes all the same, where memory has run out: without keeping its size, say.
    }
    while (!m_children.empty()) {
        CWnd& child = *m_children.back();
        if (!child.isBusy()) {
            child.destroyNow();
            continue;
        }
        child.destroy();
        child.leaveParent();
    }
    m_owned.clear();
    if (focusedWindow == this) focusedWindow = nullptr;
    if (capturedWindow == this) capturedWindow = nullptr;
    WindowSystem::current().destroyed(*this);
    leaveParent();
    m_isCreated = m_isLeaving = false;
}

void CWnd::leaveParent() {
    if (m_parent) std::erase(m_parent->m_children, this);
    m_parent = nullptr;
}

void CWnd::destroyLeaving() {
    while (CWnd* window = takeIdle(leavingWindows())) window->destroyNow();
    while (takeIdle(retiredWindows())) continue;
}

CWnd* CWnd::top() {
    CWnd* window = this;
    while (window->m_parent) window = window->m_parent;
    return window;
}

CWnd* CWnd::item(int id) const {
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [&](const CWnd* child) { return child->id() == id; });
    return found == m_children.end() ? nullptr : *found;
}

CWnd* CWnd::descendant(int id) const {
    if (CWnd* direct = item(id)) return direct;
    for (const CWnd* child : m_children)
        if (CWnd* found = child->descendant(id)) return found;
    return nullptr;
}

void CWnd::comeBefore(const CWnd* sibling) {
    if (!m_parent || sibling == this) return;
    std::vector<CWnd*>& order = m_parent->m_children;
    if (sibling && std::find(order.begin(), order.end(), sibling) == order.end()) return;
    std::erase(order, this);
    order.insert(std::find(order.begin(), order.end(), sibling), this);
}

CWnd* CWnd::adopt(std::unique_ptr<CWnd> child) {
    m_owned.push_back(std::move(child));
    return m_owned.back().get();
}

CRect CWnd::windowRect() const {
    if (!m_parent) return m_made.rect;
    const CPoint origin = m_parent->windowRect().topLeft();
    return m_made.rect.movedBy(origin.x, origin.y);
}

void CWnd::notify(WindowChange change) {
    if (m_isCreated) WindowSystem::current().changed(*this, change);
}

void CWnd::notify(int code) {
    const MessageScope message(*this);
    if (m_parent) m_parent->onCommand(id(), code);
}

void CWnd::setStyle(unsigned style) {
    m_made.style = style;
    notify(WindowChange::style);
}

void CWnd::move(const CRect& rect) {
    const CSize before = m_made.rect.size();
    m_made.rect = rect;
    notify(WindowChange::rect);
    if (rect.size() != before) onSize(before);
}

void CWnd::setText(std::string_view text) {
    m_made.text = text;
    notify(WindowChange::text);
}

bool CWnd::isVisible() const {
    return m_isCreated && m_made.isVisible && (!m_parent || m_parent->isVisible());
}

void CWnd::show(bool visible) {
    m_made.isVisible = visible;
    notify(WindowChange::visible);
}

void CWnd::enable(bool enabled) {
    m_isEnabled = enabled;
    notify(WindowChange::enabled);
}

void CWnd::setTip(std::string_view tip) {
    m_tip = tip;
    notify(WindowChange::tip);
}

bool CWnd::focus() {
    if (!isVisible() || !m_isEnabled) return false;
    if (focusedWindow == this) return true;
    CWnd* const before = std::exchange(focusedWindow, this);
    notify(WindowChange::focus);
    if (before) before->notify(focusLost);
    return true;
}

CWnd* CWnd::focused() {
    return focusedWindow;
}

void CWnd::setCapture() {
    capturedWindow = this;
}

void CWnd::releaseCapture() {
    capturedWindow = nullptr;
}

CWnd* CWnd::captured() {
    return capturedWindow;
}

void CWnd::invalidate() {
    notify(WindowChange::content);
}

bool dispatchKey(CWnd& focused, const KeyMessage& key) {
    const MessageScope message(focused);
    for (CWnd* window = &focused; window; window = window->parent())
        if (window->preTranslateKey(key)) return true;
    return false;
}

void dispatchMouse(CWnd& window, MouseMessage message) {
    CWnd* const target = CWnd::captured() ? CWnd::captured() : &window;
    const CPoint from = window.windowRect().topLeft();
    const CPoint to = target->windowRect().topLeft();
    const MessageScope scope(*target);
    message.point.x += from.x - to.x;
    message.point.y += from.y - to.y;
    target->onMouse(message);
}
