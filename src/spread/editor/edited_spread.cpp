#include "spread/editor/edited_spread.h"

#include <algorithm>

using control::Block;

EditedSpread::EditedSpread() : m_editor(grid()) {
    setChangeObserver(&m_editor);
}

// The window of find and replace goes before the editor that it tells of changes.
EditedSpread::~EditedSpread() {
    destroyNow();
}

Block EditedSpread::chosen() const {
    const auto [col, row] = grid().active();
    const Block active{std::max(col, 1), std::max(row, 1), std::max(col, 1), std::max(row, 1)};
    return grid().resolved(grid().selection().value_or(active)).value_or(Block{});
}

bool EditedSpread::userEnters(int col, int row, std::string_view text) {
    return m_editor.type(col, row, text) && notifyListener(GridNotice::What::changed, col, row);
}

bool EditedSpread::userClears(const Block& block) {
    return m_editor.clearContents(block) &&
           notifyListener(GridNotice::What::changed, block.col1, block.row1);
}

bool EditedSpread::userPastes(int col, int row, std::string_view text) {
    return m_editor.pasteText(text, {col, row, col, row}) &&
           notifyListener(GridNotice::What::changed, col, row);
}

bool EditedSpread::userClicks(int col, int row) {
    if (!grid().isInside(col, row)) return false;
    if (grid().format(col, row).type.kind != control::CellKind::checkBox)
        return Vor_Spread::userClicks(col, row);
    const bool isChecked = grid().text(col, row, control::Reading::value) == "1";
    return m_editor.type(col, row, isChecked ? "0" : "1") &&
           notifyListener(GridNotice::What::checked, col, row);
}

// Every line that is selected gets the size of the one that is pulled.
bool EditedSpread::userSizesCol(int col, int pixels) {
    const Block block = chosen();
    const bool isWhole = block.row1 == 1 && block.row2 == grid().rows();
    const bool isChosen = isWhole && col >= block.col1 && col <= block.col2;
    return m_editor.setColWidths(isChosen ? block.col1 : col, isChosen ? block.col2 : col,
                                 pixels) &&
           notifyListener(GridNotice::What::changed, col, 1);
}

bool EditedSpread::userSizesRow(int row, int pixels) {
    const Block block = chosen();
    const bool isWhole = block.col1 == 1 && block.col2 == grid().cols();
    const bool isChosen = isWhole && row >= block.row1 && row <= block.row2;
    return m_editor.setRowHeights(isChosen ? block.row1 : row, isChosen ? block.row2 : row,
                                  pixels) &&
           notifyListener(GridNotice::What::changed, 1, row);
}

bool EditedSpread::showContextMenu() {
    if (m_menuOpener) m_menuOpener();
    return m_menuOpener != nullptr;
}
