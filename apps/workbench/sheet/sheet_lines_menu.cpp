// Rows and columns: inserting, deleting, moving, hiding and their sizes.
#include <QInputDialog>

#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/desktop_texts.h"

using control::Block;
using editor::SheetEditor;

namespace {

constexpr int rowsAdded = 100;
constexpr int largestSize = 2000;  // pixels

int rowsOf(const Block& block) {
    return block.row2 - block.row1 + 1;
}
int colsOf(const Block& block) {
    return block.col2 - block.col1 + 1;
}

}  // namespace

void SheetCommands::makeLinesMenu() {
    QMenu& menu = *addMenu(sayMenuInsert);
    const auto lines = [&](int word, bool (SheetEditor::*change)(int, int), bool isRow,
                           const QKeySequence& keys = {}) {
        addStep(menu, word, keys, [change, isRow](SheetEditor& editor, const Block& block) {
            return isRow ? (editor.*change)(block.row1, rowsOf(block))
                         : (editor.*change)(block.col1, colsOf(block));
        });
    };
    lines(sayInsertRows, &SheetEditor::insertRows, true);
    lines(sayInsertCols, &SheetEditor::insertCols, false);
    add(menu, sayAddRows, {}, [this] { addRowsAtEnd(); });
    menu.addSeparator();
    lines(sayDeleteRows, &SheetEditor::deleteRows, true);
    lines(sayDeleteCols, &SheetEditor::deleteCols, false);
    menu.addSeparator();
    // The moved lines stay selected.
    const auto move = [&](int word, bool isRow, int by, const QKeySequence& keys) {
        add(menu, word, keys, [this, isRow, by] {
            if (!m_page.commitEdit()) return;
            const Block block = m_page.spread().chosen();
            const int at = isRow ? block.row1 : block.col1;
            const int count = isRow ? rowsOf(block) : colsOf(block);
            const int end = isRow ? m_page.grid().rows() : m_page.grid().cols();
            const int before = by < 0 ? at - 1 : at + count + 1;
            if (before < 1 || before > end + 1) return;
            SheetEditor& editor = m_page.editor();
            const bool isDone =
                isRow ? editor.moveRows(at, count, before) : editor.moveCols(at, count, before);
            if (!m_page.finish(isDone)) return;
            m_page.grid().select(isRow ? Block{block.col1, at + by, block.col2, block.row2 + by}
                                       : Block{at + by, block.row1, block.col2 + by, block.row2});
            m_page.finish(true);
        });
    };
    move(sayRowsUp, true, -1, Qt::ALT | Qt::SHIFT | Qt::Key_Up);
    move(sayRowsDown, true, 1, Qt::ALT | Qt::SHIFT | Qt::Key_Down);
    move(sayColsLeft, false, -1, Qt::ALT | Qt::SHIFT | Qt::Key_Left);
    move(sayColsRight, false, 1, Qt::ALT | Qt::SHIFT | Qt::Key_Right);
    menu.addSeparator();
    const auto hide = [&](int word, bool isRow, bool hidden) {
        addStep(menu, word, {}, [isRow, hidden](SheetEditor& editor, const Block& block) {
            return isRow ? editor.setRowsHidden(block.row1, block.row2, hidden)
                         : editor.setColsHidden(block.col1, block.col2, hidden);
        });
    };
    hide(sayHideRows, true, true);
    hide(sayHideCols, false, true);
    hide(sayShowRows, true, false);
    hide(sayShowCols, false, false);
    menu.addSeparator();
    add(menu, sayRowHeight, {}, [this] { askSize(true); });
    add(menu, sayColWidth, {}, [this] { askSize(false); });
    constexpr int fit = -1;
    addStep(menu, sayFitRows, {}, [](SheetEditor& editor, const Block& block) {
        return editor.setRowHeights(block.row1, block.row2, fit);
    });
    addStep(menu, sayFitCols, {}, [](SheetEditor& editor, const Block& block) {
        return editor.setColWidths(block.col1, block.col2, fit);
    });
}

void SheetCommands::addRowsAtEnd() {
    step([this](SheetEditor& editor, const Block&) {
        return editor.insertRows(m_page.grid().rows() + 1, rowsAdded);
    });
}

void SheetCommands::askSize(bool isRow) {
    const Block block = m_page.spread().chosen();
    QInputDialog dialog(&m_page);
    dialog.setWindowTitle(uiTitle(isRow ? sayRowHeight : sayColWidth));
    dialog.setLabelText(uiText(sayPixels));
    dialog.setOkButtonText(desktopText(DesktopText::ok));
    dialog.setCancelButtonText(desktopText(DesktopText::cancel));
    // Before the mode: it would take the limits on their way for a bad number and disable OK.
    dialog.setIntRange(1, largestSize);
    dialog.setIntValue(isRow ? m_page.grid().rowHeight(block.row1)
                             : m_page.grid().colWidth(block.col1));
    dialog.setInputMode(QInputDialog::IntInput);
    if (dialog.exec() != QDialog::Accepted) return;
    step([&](SheetEditor& editor, const Block& chosen) {
        return isRow ? editor.setRowHeights(chosen.row1, chosen.row2, dialog.intValue())
                     : editor.setColWidths(chosen.col1, chosen.col2, dialog.intValue());
    });
}
