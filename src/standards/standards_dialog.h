// The hidden dialog (resource 253) that a standards run computes in: one spreadsheet and its own
// copy of the request. Pooled by TwSSDlgsMgr; a run loads its document afresh, the rest is reused.
#pragma once

#include <memory>

#include "mapping/tw_dlg_standards_data.h"
#include "platform/window/dialog.h"
#include "standards/tw_standards_ss.h"

class RunningStandard;

class StandardsDialog : public CDialog {
  public:
    /// Null when the window or its spreadsheet cannot be made.
    static std::unique_ptr<StandardsDialog> make();

    TwDlgStandardsData& data() { return m_data; }
    TwStandardsSS& spread() { return m_spread; }

    /// Runs what data() asks for; its macro or its variable cells have the results afterwards.
    /// On failure lastRunFailure() says why; the variable cells are as they were.
    /// `running` learns the path of the loaded file.
    ErrorStatus run(RunningStandard& running);

  private:
    StandardsDialog();

    // Values from and to the macro.
    ErrorStatus initSSForInput();
    ErrorStatus calcMain();
    // Values from and to the data's variable cells, bound by position.
    ErrorStatus getFromVars();
    ErrorStatus calcChild(RunningStandard& running);
    ErrorStatus setToVars(RunningStandard& running);

    ErrorStatus bind(int index, int position);
    void warnOfErrors();
    void warnOfShift();

    TwStandardsSS m_spread;
    TwDlgStandardsData m_data;
};
