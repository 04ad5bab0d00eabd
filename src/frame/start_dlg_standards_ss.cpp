#include "mapping/start_dlg_standards_ss.h"

#include <new>
#include <utility>

#include "core_api/resource_override.h"
#include "frame/tw_ss_dlgs_mgr.h"
#include "standards/run_chain.h"
#include "standards/run_failure.h"
#include "standards/run_observer.h"
#include "standards/standards_dialog.h"

namespace {

/// A dialog of the pool for the length of a scope.
class PooledDialog {
  public:
    PooledDialog() : m_dialog(gSSDlgsMgr.getDlg()) {}
    ~PooledDialog() {
        if (m_dialog && m_isWhole)
            (void)gSSDlgsMgr.releaseDlg(m_dialog);
        else
            gSSDlgsMgr.dropDlg(m_dialog);
    }
    PooledDialog(const PooledDialog&) = delete;
    PooledDialog& operator=(const PooledDialog&) = delete;

    explicit operator bool() const { return m_dialog != nullptr; }
    StandardsDialog* operator->() const { return m_dialog; }
    /// Until it is called the run is being worked on.
    void setWhole() { m_isWhole = true; }

  private:
    StandardsDialog* m_dialog;
    bool m_isWhole = false;
};

bool runStandard(TwDlgStandardsData& data) try {
    PooledDialog dialog;
    if (!dialog) {
        setRunFailure("no spreadsheet can be made for the run");
        return false;
    }
    RunningStandard running;
    dialog->data() = data;
    const bool isDone = dialog->run(running) == Acad::eOk;
    dialog.setWhole();
    if (!isDone) return false;
    std::swap(data, dialog->data());
    return true;
} catch (const std::bad_alloc&) {
    setRunFailure("out of memory");  // so short that it needs none
    return false;
}

}  // namespace

bool StartDlgStandardsSS(TwDlgStandardsData& data) try {
    const ResourceOverrideScope resources;
    clearRunFailure();
    const bool done = runStandard(data);
    if (done) clearRunFailure();
    if (RunObserver* observer = runObserver()) observer->runEnded(done);
    return done;
} catch (const std::bad_alloc&) {
    return false;
}

bool StartDlgStandardsSStest() {
    const auto input = TwCellType::input;
    const auto output = TwCellType::output;
    TwDlgStandardsData data;
    data.mode = TwDlgStandardsData::Mode::variables;
    data.standardsName = "c:\\a\\a\\a\\test.tws";
    data.varCells.append(TwVarCell("Column", input, TwValueType::String, "IPE-200"));
    data.varCells.append(TwVarCell("Thickness", input, TwValueType::Double, "10"));
    data.varCells.append(TwVarCell("Width", output, TwValueType::Double, "212"));
    data.varCells.append(TwVarCell("Length", output, TwValueType::Double, "356"));
    return StartDlgStandardsSS(data);
}
