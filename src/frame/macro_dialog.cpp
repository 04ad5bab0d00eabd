#include "frame/macro_dialog.h"

#include <utility>

void MacroValuesDialog::setModeless(int slot, End end) {
    m_slot = slot;
    m_end = std::move(end);
}

void MacroValuesDialog::onOK() {
    if (!m_end) return DataDialog::onOK();
    if (m_choice == IDCANCEL || !takeValues()) return;
    m_choice = IDOK;
    m_end(m_slot);
}

void MacroValuesDialog::onCancel() {
    if (!m_end) return DataDialog::onCancel();
    if (m_choice == 0) m_choice = IDCANCEL;
    m_end(m_slot);
}

void MacroValuesDialog::onDestroy() {
    DataDialog::onDestroy();
    if (m_destroyed) m_destroyed(m_slot);
}
