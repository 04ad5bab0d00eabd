// The hidden dialog that a standards run computes in: one spreadsheet and its own copy of the
// request. Pooled by TwSSDlgsMgr; a run loads its document afresh, the rest is reused.
#pragma once

#include <memory>

#include "mapping/tw_dlg_standards_data.h"
#include "standards/tw_standards_ss.h"

class RunningStandard;

class StandardsDialog {
  public:
    static constexpr int resource = 253;

    /// Null when the spreadsheet cannot be made.
    static std::unique_ptr<StandardsDialog> create();

    TwDlgStandardsData& data() { return m_data; }
    TwStandardsSS& spread() { return m_spread; }

    /// Runs what data() asks for; its macro or its variable cells have the results afterwards.
    /// On failure lastRunFailure() says why; the variable cells are as they were.
    /// `running` learns the path of the loaded file.
    ErrorStatus run(RunningStandard& running);

  private:
    StandardsDialog() = default;

    // Values from and to the macro.
    ErrorStatus initSSForInput();
    ErrorStatus calcMain();
    // Values from and to the data's variable cells, bound by position.
    ErrorStatus getFromVars();
    ErrorStatus calcChild();
    ErrorStatus setToVars();

    ErrorStatus bind(TwVarCell& variable, int position);
    void warnOfErrors();

    TwStandardsSS m_spread;
    TwDlgStandardsData m_data;
};
