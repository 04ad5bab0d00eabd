#include "frame/string_array_dialog.h"

#include <algorithm>

#include "core_api/dialog_state.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "platform/host/host.h"

namespace {

constexpr int tableFormat = 1;  // one that is typed into
constexpr int textLength = 4096;

constexpr ControlTemplate controls[] = {
    {Control::placeholder, stringArrayGrid, {}, {7, 7, 246, 186}, 0, anchorAll},
    {Control::button, stringArrayAdd, dialText(26001), {259, 7, 84, 14}, 0, anchorTopRight},
    {Control::button, stringArrayInsert, dialText(26002), {259, 25, 84, 14}, 0, anchorTopRight},
    {Control::button, stringArrayDelete, dialText(26003), {259, 43, 84, 14}, 0, anchorTopRight},
    {Control::button, stringArrayUp, dialText(26004), {259, 67, 84, 14}, 0, anchorTopRight},
    {Control::button, stringArrayDown, dialText(26005), {259, 85, 84, 14}, 0, anchorTopRight},
    {Control::button, stringArrayCopy, dialText(26006), {259, 109, 84, 14}, 0, anchorTopRight},
    {Control::button, stringArrayPaste, dialText(26007), {259, 127, 84, 14}, 0, anchorTopRight},
    {Control::button, IDOK, dialText(1), {193, 200, 72, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(2), {271, 200, 72, 14}, 0, anchorBottomRight},
};
constexpr DialogResource resource{
    stringArrayNumber, dialText(21026), {0, 0, 350, 221}, controls, true};

}  // namespace

StringArrayDialog::StringArrayDialog(const StringTable& table)
    : CDialog(resource, Host::current().mainWindow()), m_table(table) {}

void StringArrayDialog::onInit() {
    if (!m_table.title.isEmpty()) setText(m_table.title);
    m_grid.attach(this, stringArrayGrid, true);
    m_grid.setStandardLook(tableFormat);
    m_grid.setNrCols(m_table.columns.length(), false);
    for (int col = 1; col <= m_grid.nrCols(); ++col)
        m_grid.setData(col, Vor_Spread::headerIndex, m_table.columns[col - 1]);
    Vor_Array<int> menu{Vor_Spread::menuCopy, Vor_Spread::menuPaste};
    if (!m_table.fixedRows) {
        for (const int entry :
             {Vor_Spread::menuSeparator, Vor_Spread::menuInsertRow, Vor_Spread::menuDeleteRow})
            menu.append(entry);
    }
    m_grid.setMenuCommands(menu);
    constexpr int rowNumbersWidth = 40;
    m_grid.setAutoSize(4, Vor_Spread::headerIndex, rowNumbersWidth);
    showRows();
    ChangeDlgSize(*this, m_table.sizeName);
    m_grid.autoSize();
    m_grid.setListener([this](const GridNotice&) { showWhatCanBeDone(); });
    showWhatCanBeDone();
}

void StringArrayDialog::showRows() {
    m_grid.setNrRows(m_rows.length());
    for (int row = 1; row <= m_rows.length(); ++row) {
        prepareRow(row);
        m_grid.setRow(row, m_rows[row - 1]);
    }
    if (!m_rows.isEmpty()) m_grid.setActiveCell(1, 1);
}

void StringArrayDialog::prepareRow(int row) {
    for (int col = 1; col <= m_grid.nrCols(); ++col) {
        const bool hasList =
            m_table.choices.isIndex(col - 1) && !m_table.choices[col - 1].isEmpty();
        const control::Block cell{col, row, col, row};
        // Lists can be typed into as well: rows may hold texts from before the list was made.
        if (hasList)
            m_grid.setComboCell(cell, strToArr(m_table.choices[col - 1], ';'), true);
        else
            m_grid.setTextCell(cell, textLength);
    }
}

void StringArrayDialog::addRow(int row) {
    if (!m_grid.insertRow(row, false, false)) return;
    prepareRow(row);
    m_grid.setActiveCell(1, row);
    m_grid.focus();
}

void StringArrayDialog::deleteRows() {
    control::Block selected;
    m_grid.getSelection(selected.col1, selected.row1, selected.col2, selected.row2);
    const int first = selected.row1 < 1 ? 1 : selected.row1;
    const int last = selected.row2 < 1 ? m_grid.nrRows() : std::min(selected.row2, m_grid.nrRows());
    for (int row = last; row >= first; --row) m_grid.deleteRow(row);
    if (m_grid.nrRows() > 0) m_grid.setActiveCell(1, std::min(first, m_grid.nrRows()));
}

bool StringArrayDialog::isRowCommand(int id) const {
    return id >= stringArrayAdd && id <= stringArrayDown;
}

void StringArrayDialog::onCommand(int id, int code) {
    if (code != clicked) return;
    if (isRowCommand(id) && m_table.fixedRows) return;
    switch (id) {
        case stringArrayAdd:
            addRow(m_grid.nrRows() + 1);
            break;
        case stringArrayInsert:
            addRow(m_grid.nrRows() == 0 ? 1 : m_grid.currentRow());
            break;
        case stringArrayDelete:
            deleteRows();
            break;
        case stringArrayUp:
            m_grid.moveRowUp();
            break;
        case stringArrayDown:
            m_grid.moveRowDown();
            break;
        case stringArrayCopy:
            m_grid.clipboardCopy();
            break;
        case stringArrayPaste:
            m_grid.clipboardPaste();
            break;
        default:
            return CDialog::onCommand(id, code);
    }
    showWhatCanBeDone();
}

/// As in other tables: Ctrl+Insert and Ctrl+Delete for rows, Alt+Up and Alt+Down to move them,
/// Ctrl+C and Ctrl+V.
bool StringArrayDialog::preTranslateKey(const KeyMessage& key) {
    if (!key.isDown || !m_grid.hasFocus()) return false;
    struct Shortcut {
        int key;
        bool ctrl, alt;
        int command;
    };
    constexpr Shortcut shortcuts[] = {
        {keyInsert, true, false, stringArrayInsert}, {keyDelete, true, false, stringArrayDelete},
        {keyUp, false, true, stringArrayUp},         {keyDown, false, true, stringArrayDown},
        {'C', true, false, stringArrayCopy},         {'V', true, false, stringArrayPaste},
    };
    for (const Shortcut& each : shortcuts) {
        if (each.key != key.key || each.ctrl != key.ctrl || each.alt != key.alt) continue;
        return press(each.command);
    }
    return false;
}

void StringArrayDialog::showWhatCanBeDone() {
    const int row = m_grid.nrRows() > 0 ? m_grid.currentRow() : 0;
    const bool canChange = !m_table.fixedRows;
    item(stringArrayAdd)->enable(canChange);
    item(stringArrayInsert)->enable(canChange);
    item(stringArrayDelete)->enable(canChange && row > 0);
    item(stringArrayUp)->enable(canChange && row > 1);
    item(stringArrayDown)->enable(canChange && row > 0 && row < m_grid.nrRows());
    item(stringArrayCopy)->enable(row > 0);
    item(stringArrayPaste)->enable(row > 0);
}

void StringArrayDialog::onOK() {
    m_rows.clear();
    m_grid.getAllRows(m_rows);
    CDialog::onOK();
}

void StringArrayDialog::onDestroy() {
    WriteDlgSize(*this, m_table.sizeName);
}

void StringArrayDialog::onSize(CSize before) {
    CDialog::onSize(before);
    m_grid.autoSize();
}
