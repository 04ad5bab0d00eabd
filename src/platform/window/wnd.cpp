#include "platform/window/wnd.h"

#include <algorithm>

#include "platform/window/window_system.h"

namespace {

CWnd* focusedWindow = nullptr;

}  // namespace

CWnd::~CWnd() {
    destroy();
}

bool CWnd::create(const WindowTemplate& made, CWnd* parent) {
    if (m_isCreated || (parent && !parent->isCreated())) return false;
    m_made = made;
    m_parent = parent;
    m_isCreated = true;
    m_isEnabled = true;
    if (parent) parent->m_children.push_back(this);
    WindowSystem::current().created(*this);
    return true;
}

bool CWnd::destroy() {
    if (!m_isCreated) return false;
    onDestroy();
    while (!m_children.empty()) m_children.back()->destroy();
    m_owned.clear();
    if (focusedWindow == this) focusedWindow = nullptr;
    WindowSystem::current().destroyed(*this);
    if (m_parent) m_parent->forgetChild(this);
    m_parent = nullptr;
    m_isCreated = false;
    return true;
}

void CWnd::forgetChild(CWnd* child) {
    std::erase(m_children, child);
}

CWnd* CWnd::item(int id) const {
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [&](const CWnd* child) { return child->id() == id; });
    return found == m_children.end() ? nullptr : *found;
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

void CWnd::setStyle(unsigned style) {
    m_made.style = style;
    WindowSystem::current().changed(*this, WindowChange::style);
}

void CWnd::move(const CRect& rect) {
    m_made.rect = rect;
    WindowSystem::current().changed(*this, WindowChange::rect);
}

void CWnd::setText(std::string_view text) {
    m_made.text = text;
    WindowSystem::current().changed(*this, WindowChange::text);
}

bool CWnd::isVisible() const {
    return m_isCreated && m_made.isVisible && (!m_parent || m_parent->isVisible());
}

void CWnd::show(bool visible) {
    m_made.isVisible = visible;
    WindowSystem::current().changed(*this, WindowChange::visible);
}

void CWnd::enable(bool enabled) {
    m_isEnabled = enabled;
    WindowSystem::current().changed(*this, WindowChange::enabled);
}

bool CWnd::focus() {
    if (!isVisible() || !m_isEnabled) return false;
    focusedWindow = this;
    WindowSystem::current().changed(*this, WindowChange::focus);
    return true;
}

CWnd* CWnd::focused() {
    return focusedWindow;
}
