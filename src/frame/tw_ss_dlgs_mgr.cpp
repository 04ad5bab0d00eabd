#include "frame/tw_ss_dlgs_mgr.h"

#include "standards/standards_dialog.h"

TwSSDlgsMgr gSSDlgsMgr;

TwSSDlgsMgr::TwSSDlgsMgr() = default;

TwSSDlgsMgr::~TwSSDlgsMgr() {
    destroyAll();
}

// The window of a dialog goes with the host's main window.
void TwSSDlgsMgr::dropDead() {
    for (int i = length() - 1; i >= 0; --i) {
        const auto at = static_cast<size_t>(i);
        if (m_inUse[at] || m_dialogs[at]->isAlive()) continue;
        (void)destroyDlg(i);
        m_inUse.erase(m_inUse.begin() + i);
    }
}

StandardsDialog* TwSSDlgsMgr::getDlg() {
    dropDead();
    for (size_t i = 0; i < m_dialogs.size(); ++i) {
        if (m_inUse[i]) continue;
        m_inUse[i] = true;
        return m_dialogs[i].get();
    }
    auto dialog = StandardsDialog::make();
    if (!dialog) return nullptr;
    m_inUse.reserve(m_dialogs.size() + 1);  // both or neither
    m_dialogs.push_back(std::move(dialog));
    m_inUse.push_back(true);
    return m_dialogs.back().get();
}

ErrorStatus TwSSDlgsMgr::releaseDlg(void* dlg) {
    for (size_t i = 0; i < m_dialogs.size(); ++i) {
        if (m_dialogs[i].get() != dlg || !dlg) continue;
        m_inUse[i] = false;
        return Acad::eOk;
    }
    return Acad::eInvalidInput;
}

void TwSSDlgsMgr::dropDlg(const StandardsDialog* dlg) {
    for (size_t i = 0; i < m_dialogs.size(); ++i) {
        if (m_dialogs[i].get() != dlg || !dlg) continue;
        m_dialogs.erase(m_dialogs.begin() + static_cast<std::ptrdiff_t>(i));
        m_inUse.erase(m_inUse.begin() + static_cast<std::ptrdiff_t>(i));
        return;
    }
}

ErrorStatus TwSSDlgsMgr::destroyDlg(const int& index) {
    if (index < 0 || index >= length() || !m_dialogs[static_cast<size_t>(index)])
        return Acad::eInvalidInput;
    m_dialogs.erase(m_dialogs.begin() + index);
    return Acad::eOk;
}

void TwSSDlgsMgr::destroyAll() {
    for (int i = length() - 1; i >= 0; --i) (void)destroyDlg(i);
    m_inUse.clear();
}
