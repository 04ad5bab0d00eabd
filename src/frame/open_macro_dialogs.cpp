#include "frame/open_macro_dialogs.h"

#include <algorithm>

#include "frame/starters.h"
#include "platform/window/window_system.h"

// Never destroyed: the library empties it while windows can still go.
OpenMacroDialogs& openMacroDialogs() {
    static OpenMacroDialogs& table = *new OpenMacroDialogs;
    return table;
}

bool OpenMacroDialogs::isOpen(int slot) const {
    return slot >= 0 && slot < length() && m_slots[static_cast<size_t>(slot)];
}

int OpenMacroDialogs::takeFreeSlot() {
    const auto free = std::find(m_slots.begin(), m_slots.end(), nullptr);
    const auto slot = static_cast<int>(free - m_slots.begin());
    if (free == m_slots.end()) m_slots.emplace_back();
    return slot;
}

bool OpenMacroDialogs::start(bool keepFocus, const MacroData& data, int& slot) {
    slot = takeFreeSlot();
    auto dialog = std::make_unique<MacroDialog>();
    dialog->setModeless(slot, [](int ended) { EndDlgMacroModeless(ended); });
    dialog->data() = data;
    if (!dialog->create()) return false;
    dialog->show(true);
    m_slots[static_cast<size_t>(slot)] = std::move(dialog);
    if (!keepFocus) Host::current().focusMainWindow();
    return true;
}

bool OpenMacroDialogs::end(int slot) {
    if (!isOpen(slot)) return false;
    MacroDialog& dialog = *m_slots[static_cast<size_t>(slot)];
    if (dialog.isCloseDelayed()) {
        endLater(slot);
        return true;
    }
    if (!dialog.destroy()) return false;
    freeSlot(slot);
    acedPostCommandPrompt();
    return true;
}

void OpenMacroDialogs::freeSlot(int slot) {
    cancelPending(slot);  // it must not close the next dialog in this slot
    m_slots[static_cast<size_t>(slot)].reset();
    if (slot != length() - 1) return;
    while (!m_slots.empty() && !m_slots.back()) m_slots.pop_back();
}

/// A dialog that is ended twice while it is busy waits once.
void OpenMacroDialogs::endLater(int slot) {
    const auto isWaiting = [slot](const PendingClose& each) { return each.slot == slot; };
    if (std::any_of(m_pending.begin(), m_pending.end(), isWaiting)) return;
    const auto call = [this](int timer) { onTimer(timer); };
    m_pending.push_back({WindowSystem::current().startTimer(closeDelay, call), slot});
}

void OpenMacroDialogs::onTimer(int timer) {
    acutPrintf("Delayed timer called.\n");
    const auto found =
        std::find_if(m_pending.begin(), m_pending.end(),
                     [timer](const PendingClose& each) { return each.timer == timer; });
    if (found == m_pending.end()) return;
    const int slot = found->slot;
    WindowSystem::current().killTimer(timer);
    // Before the slot is ended: a dialog that is still busy waits once more.
    m_pending.erase(found);
    EndDlgMacroModeless(slot);
}

void OpenMacroDialogs::cancelPending(int slot) {
    std::erase_if(m_pending, [slot](const PendingClose& each) {
        return each.slot == slot && (WindowSystem::current().killTimer(each.timer), true);
    });
}

void OpenMacroDialogs::endAll() {
    for (int slot = length() - 1; slot >= 0; --slot) EndDlgMacroModeless(slot);
}

bool OpenMacroDialogs::getData(int slot, MacroData& data) const {
    if (!isOpen(slot)) return false;
    data = m_slots[static_cast<size_t>(slot)]->data();
    return true;
}

void OpenMacroDialogs::dropAll() {
    for (const PendingClose& each : m_pending) WindowSystem::current().killTimer(each.timer);
    m_pending.clear();
    m_slots.clear();
}
