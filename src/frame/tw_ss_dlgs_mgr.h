// The pool of hidden standards dialogs. A child standard runs while its parent's dialog is in use,
// so it gets one of its own; afterwards all are kept for the next run.
#pragma once

#include <memory>
#include <vector>

#include "platform/export.h"
#include "platform/host/error_status.h"

class StandardsDialog;

class VORMANT_API TwSSDlgsMgr {
  public:
    TwSSDlgsMgr();
    TwSSDlgsMgr(const TwSSDlgsMgr&) = delete;
    TwSSDlgsMgr& operator=(const TwSSDlgsMgr&) = delete;
    ~TwSSDlgsMgr();

    /// The first dialog that is not in use, a new one when all are; null when none can be made.
    /// Owned by the pool; the caller gives it back with releaseDlg.
    StandardsDialog* getDlg();
    /// eInvalidInput when `dlg` is not in the pool. The dialog keeps its spreadsheet.
    ErrorStatus releaseDlg(void* dlg);
    /// Instead of giving it back: for one whose run was broken off, so that its spreadsheet can
    /// be in any state.
    void dropDlg(const StandardsDialog* dlg);
    /// Only while none is in use.
    void destroyAll();

    int length() const { return static_cast<int>(m_dialogs.size()); }

  private:
    void dropDead();
    ErrorStatus destroyDlg(const int& index);

    std::vector<std::unique_ptr<StandardsDialog>> m_dialogs;
    std::vector<bool> m_inUse;
};

extern VORMANT_API TwSSDlgsMgr gSSDlgsMgr;
