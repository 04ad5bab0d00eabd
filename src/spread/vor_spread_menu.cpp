// The context menu, the Tab key, and check boxes that lock other cells.
#include <algorithm>
#include <array>
#include <vector>

#include "core_api/texts/texts.h"
#include "platform/window/window_system.h"
#include "spread/vor_spread.h"

using control::CellAddress;

namespace {

constexpr std::array menuIds = {0x802B, 0x802C, 0x8030, 0x8031, 0x8032,
                                0x8020, 0x8021, 0x8022, 0x8023, 0x8024};

int labelOf(int command) {
    switch (command) {
        case Vor_Spread::menuCopy:
            return 1154;
        case Vor_Spread::menuPaste:
            return 1155;
        case Vor_Spread::menuInsertRow:
            return 774;
        case Vor_Spread::menuDeleteRow:
            return 775;
        case Vor_Spread::menuInsertCol:
            return 1156;
        case Vor_Spread::menuDeleteCol:
            return 1157;
        case Vor_Spread::menuCheckAll:
            return 1400;
        default:
            return 1401;
    }
}

}  // namespace

bool Vor_Spread::setMenuCommands(const Vor_Array<int>& codes) {
    const auto isCommand = [](int code) { return code >= menuSeparator && code <= menuUncheckAll; };
    if (!isAttached() || !std::all_of(codes.begin(), codes.end(), isCommand)) return false;
    m_menuCommands = codes;
    return true;
}

bool Vor_Spread::showContextMenu() {
    if (!isAttached() || m_menuCommands.isEmpty()) return false;
    std::vector<MenuEntry> entries;
    size_t index = 0;
    for (const int command : m_menuCommands) {
        if (command == menuSeparator)
            entries.push_back({});
        else if (index < menuIds.size())
            entries.push_back({menuIds[index++], dialString(labelOf(command)).str()});
    }
    if (const int picked = WindowSystem::current().popupMenu(*this, entries)) onCommand(picked, 0);
    return true;
}

void Vor_Spread::onCommand(int id, int) {
    const auto found = std::find(menuIds.begin(), menuIds.end(), id);
    if (found != menuIds.end()) runMenuCommand(static_cast<int>(found - menuIds.begin()));
}

bool Vor_Spread::runMenuCommand(int index) {
    if (!isAttached() || index < 0) return false;
    int command = 0;
    for (const int code : m_menuCommands)
        if (code != menuSeparator && index-- == 0) command = code;
    switch (command) {
        case menuCopy:
            return clipboardCopy();
        case menuPaste:
            return clipboardPaste();
        case menuInsertRow:
            return insertRow(currentRow(), false, true);
        case menuDeleteRow:
            return deleteRow(currentRow());
        case menuInsertCol:
            return insertCol(currentCol(), true, true);
        case menuDeleteCol:
            return deleteCol(currentCol());
        case menuCheckAll:
            return checkSelection(true);
        case menuUncheckAll:
            return checkSelection(false);
        default:
            return false;
    }
}

bool Vor_Spread::checkSelection(bool checked) {
    control::Block selected;
    getSelection(selected.col1, selected.row1, selected.col2, selected.row2);
    const auto block = grid().resolved(selected);
    if (!block) return false;
    for (int row = block->row1; row <= block->row2; ++row)
        for (int col = block->col1; col <= block->col2; ++col)
            if (grid().format(col, row).type.kind == control::CellKind::checkBox)
                setCheck(col, row, checked);
    return true;
}

// --- the Tab key --------------------------------------------------------------------------------

void Vor_Spread::handleTabKey(int key, int& action) {
    action = tabNotHandled;
    const CWnd* focused = CWnd::focused();
    if (key != tabKey || !isAttached() || !focused) return;
    const std::string_view name = focused->className();
    if (std::none_of(std::begin(gridClassPrefixes), std::end(gridClassPrefixes),
                     [&](const char* prefix) { return name.starts_with(prefix); }))
        return;
    CellAddress active;
    getActiveCell(active.col, active.row);
    if (WindowSystem::current().isShiftHeld())
        action = active == firstEditable() ? tabLeavesBackwards : tabMoves;
    else
        action = active == lastEditable() ? tabLeavesForwards : tabMoves;
}

bool Vor_Spread::isEditable(int col, int row) const {
    if (isLocked(col, row)) return false;
    const control::Span* span = grid().spanAt(col, row);
    return !span || !isLocked(span->col, span->row);
}

CellAddress Vor_Spread::firstEditable() const {
    for (int row = 1; row <= nrRows(); ++row)
        for (int col = 1; col <= nrCols(); ++col)
            if (isEditable(col, row)) return {col, row};
    return {};
}

CellAddress Vor_Spread::lastEditable() const {
    for (int row = nrRows(); row >= 1; --row) {
        for (int col = nrCols(); col >= 1; --col) {
            if (!isEditable(col, row)) continue;
            const control::Span* span = grid().spanAt(col, row);
            return {span ? span->col : col, row};
        }
    }
    return {};
}

// --- linked cells -------------------------------------------------------------------------------

bool Vor_Spread::linkCheckColumn(int checkCol, int dependentCol) {
    const auto isCol = [&](int col) { return col >= 1 && col <= nrCols(); };
    if (!isAttached() || !isCol(checkCol) || !isCol(dependentCol)) return false;
    m_checkColumn = checkCol;
    m_dependentColumn = dependentCol;
    for (int row = 1; row <= nrRows(); ++row) applyLink(row);
    return true;
}

void Vor_Spread::applyLink(int row) {
    bool checked = false;
    if (getCheck(m_checkColumn, row, checked)) setLock(m_dependentColumn, row, !checked);
}

void Vor_Spread::onCellCommand(int code, int col, int row) {
    constexpr int boxClicked = 0x3B, boxClickedAgain = 0x3C;
    if (!isAttached() || (code != boxClicked && code != boxClickedAgain)) return;
    if (col != m_checkColumn || row < 1 || row > nrRows()) return;
    applyLink(row);
    setActiveCell(m_dependentColumn, row);
}
