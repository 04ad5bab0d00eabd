#include "mapping/start_dlg_standards_ss.h"

#include <utility>

#include "core_api/resource_override.h"
#include "frame/tw_ss_dlgs_mgr.h"
#include "standards/run_chain.h"
#include "standards/run_failure.h"
#include "standards/run_observer.h"

namespace {

/// A dialog of the pool for the length of a scope.
class PooledDialog {
  public:
    PooledDialog() : m_dialog(gSSDlgsMgr.getDlg()) {}
    ~PooledDialog() {
        if (m_dialog) (void)gSSDlgsMgr.releaseDlg(m_dialog);
    }
    PooledDialog(const PooledDialog&) = delete;
    PooledDialog& operator=(const PooledDialog&) = delete;

    explicit operator bool() const { return m_dialog != nullptr; }
    StandardsDialog* operator->() const { return m_dialog; }

  private:
    StandardsDialog* m_dialog;
};

bool runStandard(TwDlgStandardsData& data) {
    PooledDialog dialog;
    if (!dialog) {
        setRunFailure("no spreadsheet can be made for the run");
        return false;
    }
    RunningStandard running;
    dialog->data() = data;
    if (dialog->run(running) != Acad::eOk) return false;
    std::swap(data, dialog->data());
    return true;
}

}  // namespace

bool StartDlgStandardsSS(TwDlgStandardsData& data) {
    const ResourceOverrideScope resources;
    clearRunFailure();
    const bool done = runStandard(data);
    if (done) clearRunFailure();
    if (RunObserver* observer = runObserver()) observer->runEnded(done);
    return done;
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
