// Formats and kinds of cells.
#include <QActionGroup>
#include <QColorDialog>
#include <QInputDialog>

#include "core_api/texts/sheet_text_numbers.h"
#include "workbench/grid/cell_painter.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/desktop_texts.h"
#include "workbench/window/typed_text.h"

using control::Block;
using control::CellFormat;
using control::CellKind;
using editor::SheetEditor;

namespace {

constexpr int boldFrom = 600;
constexpr int mostDecimals = 15;
constexpr int thinLine = 1;

control::Colour fromQt(const QColor& colour) {
    return control::rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
                        static_cast<unsigned>(colour.blue()));
}

}  // namespace

void SheetCommands::makeFormatMenu() {
    QMenu& menu = *addMenu(sayMenuFormat);
    const auto isBold = [](const CellFormat& cellFormat) {
        return cellFormat.font.weight >= boldFrom;
    };
    const auto set = [this](bool (SheetEditor::*change)(const Block&, bool)) {
        return [this, change](const Block& block, bool on) {
            return (m_page.editor().*change)(block, on);
        };
    };
    addSwitch(menu, sayBold, Qt::CTRL | Qt::Key_B, isBold, set(&SheetEditor::setBold));
    addSwitch(
        menu, sayItalic, Qt::CTRL | Qt::Key_I,
        [](const CellFormat& cellFormat) { return cellFormat.font.italic; },
        set(&SheetEditor::setItalic));
    addSwitch(
        menu, sayUnderlined, Qt::CTRL | Qt::Key_U,
        [](const CellFormat& cellFormat) { return cellFormat.font.underlined; },
        set(&SheetEditor::setUnderlined));
    menu.addSeparator();
    makeAlignments(menu);
    menu.addSeparator();
    add(menu, sayTextColour, {}, [this] { askColour(true); });
    add(menu, sayBackground, {}, [this] { askColour(false); });
    addStep(menu, sayNoBackground, {}, [](SheetEditor& editor, const Block& block) {
        return editor.setBackground(block, control::automatic);
    });
    makeBorderMenu(menu);
    menu.addSeparator();
    makeKindMenu(menu);
    add(menu, sayMoreDecimals, {}, [this] { changeDecimals(1); });
    add(menu, sayFewerDecimals, {}, [this] { changeDecimals(-1); });
    menu.addSeparator();
    addStep(menu, sayMergeCells, {},
            [](SheetEditor& editor, const Block& block) { return editor.mergeCells(block); });
    addStep(menu, sayUnmergeCells, {},
            [](SheetEditor& editor, const Block& block) { return editor.unmergeCells(block); });
    addSwitch(
        menu, sayLock, {}, [](const CellFormat& cellFormat) { return cellFormat.locked; },
        set(&SheetEditor::setLocked));
}

void SheetCommands::makeAlignments(QMenu& menu) {
    // In the order of CellFormat::alignment.
    constexpr int words[] = {sayAlignAuto, sayAlignLeft, sayAlignRight, sayAlignCentre};
    auto* group = new QActionGroup(this);
    for (int i = 0; i < 4; ++i) {
        QAction* made = addStep(menu, words[i], {}, [i](SheetEditor& editor, const Block& block) {
            return editor.setAlignment(block, i);
        });
        made->setCheckable(true);
        group->addAction(made);
        m_followers.push_back([made, i](const CellFormat& cellFormat) {
            if (cellFormat.alignment == i) made->setChecked(true);
        });
    }
}

void SheetCommands::makeBorderMenu(QMenu& format) {
    QMenu& menu = *format.addMenu(uiText(sayBorderMenu));
    constexpr int all =
        control::borderLeft | control::borderRight | control::borderTop | control::borderBottom;
    constexpr std::tuple<int, int, int> borders[] = {
        {sayBorderAll, all, thinLine},
        {sayBorderOutline, control::borderOutline, thinLine},
        {sayBorderTop, control::borderTop, thinLine},
        {sayBorderBottom, control::borderBottom, thinLine},
        {sayBorderNone, all, 0}};
    for (const auto& [word, sides, style] : borders)
        addStep(menu, word, {},
                [sides = sides, style = style](SheetEditor& editor, const Block& block) {
                    return editor.setBorder(block, sides, style, control::automatic);
                });
}

void SheetCommands::makeKindMenu(QMenu& format) {
    QMenu& menu = *format.addMenu(uiText(sayKindMenu));
    constexpr int usualDecimals = 2;
    const auto typeOf = [](CellKind kind) {
        control::CellType type;
        type.kind = kind;
        return type;
    };
    const std::pair<int, control::CellType> kinds[] = {
        {sayKindGeneral, typeOf(CellKind::general)},
        {sayKindNumber, control::numberType(usualDecimals)},
        {sayKindText, control::editType(0)},
        {sayKindStatic, typeOf(CellKind::staticText)},
        {sayKindCheck, typeOf(CellKind::checkBox)}};
    for (const auto& [word, type] : kinds) {
        QAction* made =
            addStep(menu, word, {}, [type = type](SheetEditor& editor, const Block& block) {
                return editor.setKind(block, type);
            });
        made->setCheckable(true);
        m_followers.push_back([made, kind = type.kind](const CellFormat& cellFormat) {
            made->setChecked(cellFormat.type.kind == kind);
        });
    }
    add(menu, sayKindCombo, {}, [this] { askComboItems(); });
}

void SheetCommands::askColour(bool isText) {
    const auto [col, row] = m_page.grid().active();
    const CellFormat& cellFormat = m_page.grid().format(col, row);
    QColorDialog dialog(
        isText ? toQt(cellFormat.textColour, Qt::black) : toQt(cellFormat.background, Qt::white),
        &m_page);
    dialog.setWindowTitle(uiTitle(isText ? sayTextColour : sayBackground));
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) return;
    const control::Colour colour = fromQt(dialog.selectedColor());
    step([&](SheetEditor& editor, const Block& block) {
        return isText ? editor.setTextColour(block, colour) : editor.setBackground(block, colour);
    });
}

// A general cell becomes a number cell.
void SheetCommands::changeDecimals(int by) {
    step([&](SheetEditor& editor, const Block& block) {
        const control::CellType& type = m_page.grid().format(block.col1, block.row1).type;
        const int decimals =
            std::clamp((type.isNumber() ? type.decimals : 0) + by, 0, mostDecimals);
        return editor.setDecimals(block, decimals);
    });
}

void SheetCommands::askComboItems() {
    const auto [col, row] = m_page.grid().active();
    const control::CellType& now = m_page.grid().format(col, row).type;
    QInputDialog dialog(&m_page);
    dialog.setWindowTitle(uiTitle(sayKindCombo));
    dialog.setLabelText(uiText(sayComboItems));
    dialog.setOption(QInputDialog::UsePlainTextEditForTextInput);
    dialog.setOkButtonText(desktopText(DesktopText::ok));
    dialog.setCancelButtonText(desktopText(DesktopText::cancel));
    if (now.kind == CellKind::comboBox) dialog.setTextValue(toQt(now.text).replace('\t', '\n'));
    if (dialog.exec() != QDialog::Accepted) return;
    const QStringList items = dialog.textValue().split('\n', Qt::SkipEmptyParts);
    if (const QString why = refusalOf(items.join(' ')); !why.isEmpty())
        return m_page.showMessage(why, true);
    control::CellType type;
    type.kind = CellKind::comboBox;
    type.text = ::fromQt(items.join('\t'));
    step([&](SheetEditor& editor, const Block& block) { return editor.setKind(block, type); });
}
