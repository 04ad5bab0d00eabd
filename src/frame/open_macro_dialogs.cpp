#include "frame/open_macro_dialogs.h"

#include "frame/starters.h"
#include "platform/window/message_scope.h"

// Never destroyed: the library empties it while windows can still go.
OpenMacroDialogs& openMacroDialogs() {
    static OpenMacroDialogs& table = *new OpenMacroDialogs;
    return table;
}

OpenMacroDialogs::OpenMacroDialogs()
    : m_delayed([](int slot) {
          acutPrintf("Delayed timer called.\n");
          EndDlgMacroModeless(slot);
      }) {}

bool OpenMacroDialogs::isOpen(int slot) const {
    if (slot < 0 || slot >= length()) return false;
    const auto& dialog = m_slots[static_cast<size_t>(slot)];
    return dialog && dialog->isAlive();
}

int OpenMacroDialogs::takeFreeSlot() {
    int slot = 0;
    while (isOpen(slot)) ++slot;
    if (slot == length()) m_slots.emplace_back();
    freeSlot(slot);
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
    if (m_slots[static_cast<size_t>(slot)]->isBusy()) {
        m_delayed.endLater(slot);
        return true;
    }
    freeSlot(slot);
    trim();
    acedPostCommandPrompt();
    return true;
}

void OpenMacroDialogs::freeSlot(int slot) {
    m_delayed.cancel(slot);
    retire(std::move(m_slots[static_cast<size_t>(slot)]));
}

void OpenMacroDialogs::trim() {
    while (length() > 0 && !isOpen(length() - 1)) {
        freeSlot(length() - 1);
        m_slots.pop_back();
    }
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
    for (int slot = length() - 1; slot >= 0; --slot) freeSlot(slot);
    m_slots.clear();
}
