#include "workbench/module/open_macros.h"

#include <utility>

#include "frame/starters.h"

namespace {

/// Well below the time that a confirmed dialog stays.
constexpr int milliseconds = 10;

}  // namespace

OpenMacros::OpenMacros(OnClosed onClosed) : m_onClosed(std::move(onClosed)) {
    m_timer.setInterval(milliseconds);
    m_timer.callOnTimeout([this] { look(); });
}

bool OpenMacros::open(const Vor_String& path, const MacroData& data) {
    look();
    int slot = 0;
    MacroData given = data;
    if (!StartDlgMacroModeless(true, given, slot)) return false;
    m_open.push_back({slot, path, data, data});
    m_timer.start();
    return true;
}

void OpenMacros::look() {
    std::vector<Entry> gone;
    std::erase_if(m_open, [&](Entry& each) {
        if (GetDlgMacroData(each.slot, each.seen)) return false;
        if (!(each.seen == each.before)) gone.push_back(each);
        return true;
    });
    if (m_open.empty()) m_timer.stop();
    for (const Entry& each : gone) m_onClosed(each.path, each.seen);
}

bool OpenMacros::endLast() {
    look();
    const bool isEnded = !m_open.empty() && EndDlgMacroModeless(m_open.back().slot);
    look();
    return isEnded;
}

bool OpenMacros::endAll() {
    if (count() == 0) return false;
    DestroyAllMacroDlgs();
    look();
    return true;
}

bool OpenMacros::takeLast() {
    look();
    if (m_open.empty()) return false;
    m_onClosed(m_open.back().path, m_open.back().seen);
    m_open.back().before = m_open.back().seen;
    return true;
}

int OpenMacros::count() {
    look();
    return static_cast<int>(m_open.size());
}
