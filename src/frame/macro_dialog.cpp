#include "frame/macro_dialog.h"

#include <utility>

void MacroValuesDialog::setModeless(int slot, End end) {
    m_slot = slot;
    m_end = std::move(end);
}

void MacroValuesDialog::onOK() {
    if (!m_end) return DataDialog::onOK();
    if (takeValues()) m_end(m_slot);
}

void MacroValuesDialog::onCancel() {
    if (!m_end) return DataDialog::onCancel();
    m_end(m_slot);
}
