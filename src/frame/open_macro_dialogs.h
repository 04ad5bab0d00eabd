// The modeless macro dialogs by slot. A free slot is used again before the table grows. A dialog
// that is busy when it is ended goes a moment later, from a timer on the same thread.
#pragma once

#include <memory>
#include <vector>

#include "frame/macro_dialog.h"

class OpenMacroDialogs {
  public:
    /// Milliseconds that a busy dialog stays.
    static constexpr int closeDelay = 50;

    /// Opens a dialog on a copy of `data`; `slot` becomes the first free one. False when the window
    /// cannot be made.
    bool start(bool keepFocus, const MacroData& data, int& slot);
    /// False for a bad or free slot, or when its window cannot be destroyed.
    bool end(int slot);
    /// From the last slot to the first.
    void endAll();
    /// False, with `data` as it was, for a bad or free slot.
    bool getData(int slot, MacroData& data) const;
    /// Without timers and prompts: the library goes.
    void dropAll();

    /// Free slots between used ones count.
    int length() const { return static_cast<int>(m_slots.size()); }

  private:
    struct PendingClose {
        int timer = 0;
        int slot = 0;
    };

    bool isOpen(int slot) const;
    int takeFreeSlot();
    void endLater(int slot);
    void onTimer(int timer);
    void cancelPending(int slot);
    void freeSlot(int slot);

    std::vector<std::unique_ptr<MacroDialog>> m_slots;
    std::vector<PendingClose> m_pending;
};

OpenMacroDialogs& openMacroDialogs();
