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
    const auto& dialog = m_slots[static_cast<size_t>(slot)].dialog;
    return dialog && dialog->isAlive();
}

int OpenMacroDialogs::takeFreeSlot() {
    int slot = 0;
    while (isOpen(slot)) ++slot;
    if (slot == length()) m_slots.emplace_back();
    freeSlot(slot);
    return slot;
}

bool OpenMacroDialogs::start(bool keepFocus, const MacroData& data, int& slot,
                             MacroDialogEnded ended) {
    slot = takeFreeSlot();
    auto dialog = std::make_unique<MacroDialog>();
    dialog->setModeless(slot, [](int number) { EndDlgMacroModeless(number); });
    dialog->data() = data;
    const bool isMade = dialog->create();
    if (isMade) {
        dialog->show(true);
        if (ended) dialog->whenDestroyed([this](int number) { m_delayed.endLater(number); });
        m_slots[static_cast<size_t>(slot)] = {std::move(dialog), std::move(ended)};
        if (!keepFocus) Host::current().focusMainWindow();
    }
    reportEnded();
    return isMade;
}

bool OpenMacroDialogs::end(int slot) {
    const bool wasOpen = isOpen(slot);
    if (wasOpen && m_slots[static_cast<size_t>(slot)].dialog->isBusy()) {
        m_delayed.endLater(slot);
        return true;
    }
    if (slot < 0 || slot >= length()) return false;
    freeSlot(slot);
    trim();
    if (wasOpen) acedPostCommandPrompt();
    reportEnded();
    return wasOpen;
}

void OpenMacroDialogs::freeSlot(int slot) {
    Slot& freed = m_slots[static_cast<size_t>(slot)];
    if (freed.ended) {
        m_ended.push_back({freed.ended, slot, freed.dialog->isConfirmed(), freed.dialog->data()});
        freed.ended = nullptr;
    }
    m_delayed.cancel(slot);
    if (freed.dialog) freed.dialog->whenDestroyed(nullptr);
    retire(std::move(freed.dialog));
}

void OpenMacroDialogs::reportEnded() {
    while (!m_ended.empty()) {
        const Ended ended = std::move(m_ended.back());
        m_ended.pop_back();
        ended.call(ended.slot, ended.isConfirmed, ended.data);
    }
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
    data = m_slots[static_cast<size_t>(slot)].dialog->data();
    return true;
}

void OpenMacroDialogs::dropAll() {
    for (int slot = length() - 1; slot >= 0; --slot) {
        m_slots[static_cast<size_t>(slot)].ended = nullptr;
        freeSlot(slot);
    }
    m_slots.clear();
}
