// The macro dialog as the frame runs it. Modal it is a dialog like others; modeless it lives in a
// slot of OpenMacroDialogs, and asks to be closed through the call that it was opened with.
#pragma once

#include <functional>

#include "frame/editor/data_dialog.h"
#include "frame/editor/editor_kinds.h"

class MacroValuesDialog : public DataDialog<MacroData, macroEditor> {
  public:
    using End = std::function<void(int slot)>;

    /// Before it is created: modeless, in `slot`; `end` closes that slot.
    void setModeless(int slot, End end);

  protected:
    void onOK() override;
    void onCancel() override;

  private:
    int m_slot = -1;
    End m_end;
};

/// What the frame opens; another macro dialog takes its place by this line.
using MacroDialog = MacroValuesDialog;
