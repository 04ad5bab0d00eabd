// Entries of lists: inserting and deleting them.
#include <algorithm>

#include "frame/editor/entry_list.h"
#include "frame/editor/named_values_dialog.h"

void NamedValuesDialog::onCommand(int id, int code) {
    if (code != clicked) return CDialog::onCommand(id, code);
    if (id == namedValuesInsert) return insertEntry();
    if (id == namedValuesDelete) return deleteEntries();
    CDialog::onCommand(id, code);
}

/// Insert and Delete, with Ctrl or without it, are the buttons while they can be pressed. Otherwise
/// they keep their meaning: in a text that is typed, and for values that belong to no list.
bool NamedValuesDialog::preTranslateKey(const KeyMessage& key) {
    if (!key.isDown || key.alt || key.shift) return false;
    if (!m_grid.hasFocus() || m_grid.grid().isEditing()) return false;
    if (key.key == keyInsert) return press(namedValuesInsert);
    return key.key == keyDelete && press(namedValuesDelete);
}

/// Null without rows.
const NamedValue* NamedValuesDialog::activeValue() {
    const auto row = static_cast<size_t>(m_values.empty() ? 0 : m_grid.currentRow());
    return row >= 1 && row <= m_values.size() ? &m_values[row - 1] : nullptr;
}

void NamedValuesDialog::showWhatCanBeDone() {
    if (!item(namedValuesInsert)) return;
    const NamedValue* active = activeValue();
    const bool isInList = active && active->list;
    item(namedValuesInsert)->enable(isInList);
    item(namedValuesDelete)->enable(isInList && active->entry >= 0);
}

/// A copy of the active entry comes after it. On the heading the first entry is copied to the top,
/// where a list without entries gets a new one.
void NamedValuesDialog::insertEntry() {
    if (!activeValue() || !activeValue()->list || !takeValues()) return;
    const NamedValue& active = *activeValue();
    const int from = active.list->length == 0 ? -1 : std::max(active.entry, 0);
    const int to = active.entry + 1;
    active.list->insert(from, to);
    m_isChanged = true;
    showEntry(headingOf(active), to);
}

/// Those that the selection touches, in the list of the active cell.
void NamedValuesDialog::deleteEntries() {
    if (!activeValue() || activeValue()->entry < 0 || !takeValues()) return;
    const NamedValue& active = *activeValue();
    const auto [first, last] = selectedEntries();
    for (int entry = last; entry >= first; --entry) active.list->remove(entry);
    m_isChanged = true;
    showEntry(headingOf(active), std::min(first, active.list->length - 1 - (last - first + 1)));
}

std::pair<int, int> NamedValuesDialog::selectedEntries() {
    const NamedValue& active = *activeValue();
    control::Block block;
    m_grid.getSelection(block.col1, block.row1, block.col2, block.row2);
    const int top = std::max(block.row1, 1);
    const int bottom = block.row2 < 1 ? m_grid.nrRows() : std::min(block.row2, m_grid.nrRows());
    std::pair<int, int> entries{active.entry, active.entry};
    for (int row = top; row <= bottom; ++row) {
        const NamedValue& each = m_values[static_cast<size_t>(row - 1)];
        if (each.list != active.list || each.entry < 0) continue;
        entries.first = std::min(entries.first, each.entry);
        entries.second = std::max(entries.second, each.entry);
    }
    return entries;
}

/// The row of the heading over a row's list.
int NamedValuesDialog::headingOf(const NamedValue& value) const {
    int row = 1;
    while (m_values[static_cast<size_t>(row - 1)].list != value.list) ++row;
    return row;
}

/// Shows the changed data with the first row of this entry active; the heading when there is no
/// such entry.
void NamedValuesDialog::showEntry(int heading, int entry) {
    showRows();
    const auto title = m_values.begin() + (heading - 1);
    const auto found = std::find_if(title, m_values.end(), [&](const NamedValue& each) {
        return each.list == title->list && each.entry == entry;
    });
    const auto shown = found == m_values.end() ? title : found;
    m_grid.setActiveCell(namedValuesValueColumn, static_cast<int>(shown - m_values.begin()) + 1);
    m_grid.focus();
    showWhatCanBeDone();
}
