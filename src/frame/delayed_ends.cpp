#include "frame/delayed_ends.h"

#include <algorithm>

#include "platform/window/window_system.h"

void DelayedEnds::endLater(int slot) {
    const auto isWaiting = [slot](const Pending& each) { return each.slot == slot; };
    if (std::any_of(m_pending.begin(), m_pending.end(), isWaiting)) return;
    const auto call = [this](int timer) { onTimer(timer); };
    m_pending.push_back({WindowSystem::current().startTimer(delay, call), slot});
}

void DelayedEnds::onTimer(int timer) {
    const auto found = std::find_if(m_pending.begin(), m_pending.end(),
                                    [timer](const Pending& each) { return each.timer == timer; });
    if (found == m_pending.end()) return;
    const int slot = found->slot;
    WindowSystem::current().killTimer(timer);
    // Before the dialog is ended: one that is still busy waits once more.
    m_pending.erase(found);
    m_end(slot);
}

void DelayedEnds::cancel(int slot) {
    std::erase_if(m_pending, [slot](const Pending& each) {
        return each.slot == slot && (WindowSystem::current().killTimer(each.timer), true);
    });
}

void DelayedEnds::cancelAll() {
    for (const Pending& each : m_pending) WindowSystem::current().killTimer(each.timer);
    m_pending.clear();
}
