// Filling, sorting, notes, functions, settings, and the checks of standards.
#include <QInputDialog>

#include "workbench/sheet/cell_reference.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/sheet_settings_dialog.h"
#include "workbench/sheet/sort_dialog.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/desktop_texts.h"
#include "workbench/window/typed_text.h"

using control::Block;
using editor::SheetEditor;

namespace {

// The cells that a series begins with: the filled ones at the block's beginning, along its longer
// side.
Block seriesSource(const control::Grid& grid, const Block& block) {
    const bool isVertical = block.row2 - block.row1 >= block.col2 - block.col1;
    Block source = block;
    int& end = isVertical ? source.row2 : source.col2;
    const int first = isVertical ? block.row1 : block.col1;
    const auto isFilled = [&](int line) {
        const int col = isVertical ? block.col1 : line, row = isVertical ? line : block.row1;
        return !grid.sheet().value(col, row).isEmpty();
    };
    const int last = end;
    end = first;
    while (end < last && isFilled(end + 1)) ++end;
    return source;
}

// One cell stands for the table around it.
Block tableAround(const control::Grid& grid, Block block) {
    if (block.col1 != block.col2 || block.row1 != block.row2) return block;
    const auto anyIn = [&](int col1, int row1, int col2, int row2) {
        if (!grid.isInside(col1, row1) || !grid.isInside(col2, row2)) return false;
        bool isAny = false;
        const control::Area area{row1, row2, static_cast<uint16_t>(col1),
                                 static_cast<uint16_t>(col2)};
        grid.sheet().cells().each(area, [&](int, int, const control::Cell& cell) {
            isAny = isAny || cell.type != control::ValueType::empty;
        });
        return isAny;
    };
    for (bool isGrown = true; isGrown;) {
        isGrown = false;
        const auto grow = [&](int& edge, int by, bool isFilled) {
            if (!isFilled) return;
            edge += by;
            isGrown = true;
        };
        grow(block.col1, -1, anyIn(block.col1 - 1, block.row1, block.col1 - 1, block.row2));
        grow(block.col2, 1, anyIn(block.col2 + 1, block.row1, block.col2 + 1, block.row2));
        grow(block.row1, -1, anyIn(block.col1, block.row1 - 1, block.col2, block.row1 - 1));
        grow(block.row2, 1, anyIn(block.col1, block.row2 + 1, block.col2, block.row2 + 1));
    }
    return block;
}

}  // namespace

void SheetCommands::makeDataMenu() {
    QMenu& menu = *addMenu(sayMenuData);
    addStep(menu, sayFillDown, Qt::CTRL | Qt::Key_D,
            [](SheetEditor& editor, const Block& block) { return editor.fillDown(block); });
    addStep(menu, sayFillRight, Qt::CTRL | Qt::Key_R,
            [](SheetEditor& editor, const Block& block) { return editor.fillRight(block); });
    addStep(menu, sayFillSeries, {}, [this](SheetEditor& editor, const Block& block) {
        return editor.fillSeries(seriesSource(m_page.grid(), block), block);
    });
    menu.addSeparator();
    add(menu, saySort, {}, [this] { askSort(); });
    add(menu, sayFunctions, Qt::SHIFT | Qt::Key_F3, [this] { insertFunction(); });
    add(menu, sayNote, Qt::SHIFT | Qt::Key_F2, [this] { askNote(); });
    menu.addSeparator();
    QAction* check = add(menu, sayCheck, {}, [this] { m_page.check(); });
    m_followers.push_back([this, check](const control::CellFormat&) {
        check->setEnabled(m_page.file().isStandard());
    });
    add(menu, saySheetSettings, {}, [this] { changeSettings(); });
    menu.addSeparator();
    makeFreeze(menu);
    makeZoom(menu);
}

void SheetCommands::askSort() {
    if (!m_page.commitEdit()) return;
    const Block block = tableAround(m_page.grid(), m_page.spread().chosen());
    m_page.goTo(block);
    SortDialog dialog(m_page.grid(), block, &m_page);
    if (dialog.exec() != QDialog::Accepted) return;
    m_page.finish(m_page.editor().sort(block, dialog.keys(), dialog.hasTitles()));
}

void SheetCommands::askNote() {
    if (!m_page.commitEdit()) return;
    const auto [col, row] = m_page.grid().active();
    QInputDialog dialog(&m_page);
    dialog.setWindowTitle(uiTitle(sayNote));
    dialog.setLabelText(uiText(sayNoteLabel).arg(blockName(m_page.grid(), {col, row, col, row})));
    dialog.setOption(QInputDialog::UsePlainTextEditForTextInput);
    dialog.setOkButtonText(desktopText(DesktopText::ok));
    dialog.setCancelButtonText(desktopText(DesktopText::cancel));
    dialog.setTextValue(toQt(m_page.grid().note(col, row)));
    if (dialog.exec() != QDialog::Accepted) return;
    const QString why = refusalOf(dialog.textValue());
    if (!why.isEmpty()) return m_page.showMessage(why, true);
    m_page.finish(m_page.editor().setNote(col, row, fromQt(dialog.textValue())));
}

// The settings travel in the corner's tag.
void SheetCommands::changeSettings() {
    if (!m_page.commitEdit()) return;
    TwSheetSettings settings;
    settings.readFromSheet(m_page.spread());
    SheetSettingsDialog dialog(settings, &m_page);
    if (dialog.exec() != QDialog::Accepted || dialog.settings() == settings) return;
    m_page.finish(m_page.editor().setTag(0, 0, dialog.settings().toList().write()));
}
