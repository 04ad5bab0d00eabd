// The modeless macro dialogs by slot. A free slot is used again before the table grows. The slot of
// a dialog whose window went with the host's main window is free.
#pragma once

#include <memory>
#include <vector>

#include "frame/delayed_ends.h"
#include "frame/macro_dialog.h"
#include "frame/starters.h"

class OpenMacroDialogs {
  public:
    OpenMacroDialogs();

    /// Opens a dialog on a copy of `data`; `slot` becomes the first free one. False when the window
    /// cannot be made.
    bool start(bool keepFocus, const MacroData& data, int& slot, MacroDialogEnded ended);
    /// A busy dialog goes a moment later. False for a bad or free slot.
    bool end(int slot);
    /// From the last slot to the first.
    void endAll();
    /// False, with `data` as it was, for a bad or free slot.
    bool getData(int slot, MacroData& data) const;
    /// Without timers, prompts and calls of hosts: the library goes.
    void dropAll();

    /// Free slots between used ones count.
    int length() const { return static_cast<int>(m_slots.size()); }

  private:
    struct Slot {
        std::unique_ptr<MacroDialog> dialog;
        MacroDialogEnded ended;
    };
    struct Ended {
        MacroDialogEnded call;
        int slot;
        bool isConfirmed;
        MacroData data;
    };

    bool isOpen(int slot) const;
    int takeFreeSlot();
    void freeSlot(int slot);
    void trim();
    /// At the very end of a call: hosts may open and end dialogs meanwhile.
    void reportEnded();

    std::vector<Slot> m_slots;
    std::vector<Ended> m_ended;
    DelayedEnds m_delayed;
};

OpenMacroDialogs& openMacroDialogs();
