// The macro dialog as the frame runs it. Modal it is a dialog like others; modeless it lives in a
// slot of OpenMacroDialogs, and asks to be closed through the call that it was opened with.
#pragma once

#include <functional>
#include <utility>

#include "frame/editor/data_dialog.h"
#include "frame/editor/editor_kinds.h"

class MacroValuesDialog : public DataDialog<MacroData, macroEditor> {
  public:
    using End = std::function<void(int slot)>;

    /// Before it is created: modeless, in `slot`; `end` closes that slot.
    void setModeless(int slot, End end);
    /// Hears that the window goes, whatever made it; null for none.
    void whenDestroyed(End destroyed) { m_destroyed = std::move(destroyed); }
    /// The user has confirmed it; it may still be open for a moment.
    bool isConfirmed() const { return m_choice == IDOK; }

  protected:
    void onOK() override;
    void onCancel() override;
    void onDestroy() override;

  private:
    int m_slot = -1;
    int m_choice = 0;  ///< the first button that ended it, IDOK or IDCANCEL
    End m_end;
    End m_destroyed;
};

/// What the frame opens; another macro dialog takes its place by this line.
using MacroDialog = MacroValuesDialog;
