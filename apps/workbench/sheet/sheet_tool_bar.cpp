// The tool bar, what stays in view, and how large the cells are shown.
#include <QFontDatabase>

#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/ui_text.h"

using control::Block;
using editor::SheetEditor;

namespace {

constexpr int pictureSize = 20;
constexpr int fontWidth = 140;
constexpr int largestFont = 200;  // pixels
constexpr int zoomStep = 10, leastZoom = 50, mostZoom = 200, usualZoom = 100;

}  // namespace

void SheetCommands::setPicture(int word, SheetPicture picture) {
    QAction& action = *m_actions.at(word);
    action.setIcon(sheetIcon(picture, m_page.palette()));
    action.setIconVisibleInMenu(false);
    m_toolBar->addAction(&action);
}

void SheetCommands::makeToolBar() {
    m_toolBar->setIconSize({pictureSize, pictureSize});
    for (QAction* action : {m_undo, m_redo}) {
        const bool isUndo = action == m_undo;
        action->setIcon(
            sheetIcon(isUndo ? SheetPicture::undo : SheetPicture::redo, m_page.palette()));
        action->setIconVisibleInMenu(false);
        m_toolBar->addAction(action);
    }
    m_toolBar->addSeparator();
    makeFontFields();
    setPicture(sayBold, SheetPicture::bold);
    setPicture(sayItalic, SheetPicture::italic);
    setPicture(sayUnderlined, SheetPicture::underlined);
    m_toolBar->addSeparator();
    setPicture(sayAlignLeft, SheetPicture::left);
    setPicture(sayAlignCentre, SheetPicture::centre);
    setPicture(sayAlignRight, SheetPicture::right);
    m_toolBar->addSeparator();
    setPicture(sayTextColour, SheetPicture::textColour);
    setPicture(sayBackground, SheetPicture::background);
    setPicture(sayBorderAll, SheetPicture::borders);
    setPicture(sayMergeCells, SheetPicture::merge);
    m_toolBar->addSeparator();
    setPicture(sayMoreDecimals, SheetPicture::moreDecimals);
    setPicture(sayFewerDecimals, SheetPicture::fewerDecimals);
    setPicture(sayFunctions, SheetPicture::sum);
}

void SheetCommands::makeFontFields() {
    m_font = new QComboBox;
    m_font->setEditable(true);
    m_font->setFixedWidth(fontWidth);
    m_font->addItems(QFontDatabase::families());
    m_font->setToolTip(uiText(sayFontName));
    m_fontHeight = new QSpinBox;
    m_fontHeight->setRange(1, largestFont);
    m_fontHeight->setKeyboardTracking(false);
    m_fontHeight->setToolTip(uiText(saySize));
    connect(m_font, &QComboBox::textActivated, this, [this](const QString& name) {
        step([&](SheetEditor& editor, const Block& block) {
            return editor.setFontName(block, fromQt(name));
        });
        m_page.view().setFocus();
    });
    connect(m_fontHeight, &QSpinBox::valueChanged, this, [this](int height) {
        step([&](SheetEditor& editor, const Block& block) {
            return editor.setFontHeight(block, height);
        });
    });
    m_followers.push_back([this](const control::CellFormat& format) {
        const QSignalBlocker quiet(m_fontHeight);
        if (!m_font->hasFocus()) m_font->setCurrentText(toQt(format.font.name));
        m_fontHeight->setValue(format.font.height);
    });
    m_toolBar->addWidget(m_font);
    m_toolBar->addWidget(m_fontHeight);
}

// What lies above and to the left of the active cell stays; the same entry lets it go.
void SheetCommands::makeFreeze(QMenu& menu) {
    QAction* made = add(menu, sayFreeze, {}, [this] {
        FrozenPanes& frozen = m_page.view().frozen();
        const auto [col, row] = m_page.grid().active();
        frozen.isFrozen() ? frozen.freeze(0, 0) : frozen.freeze(col - 1, row - 1);
        m_page.finish(true);
    });
    made->setCheckable(true);
    m_followers.push_back([this, made](const control::CellFormat&) {
        made->setChecked(m_page.view().frozen().isFrozen());
    });
}

void SheetCommands::makeZoom(QMenu& menu) {
    const auto zoom = [&](int word, const QKeySequence& keys, int by) {
        add(menu, word, keys, [this, by] {
            SheetView& view = m_page.view();
            view.setZoom(by == 0 ? usualZoom : std::clamp(view.zoom() + by, leastZoom, mostZoom));
        });
    };
    zoom(sayZoomIn, Qt::CTRL | Qt::Key_Plus, zoomStep);
    zoom(sayZoomOut, Qt::CTRL | Qt::Key_Minus, -zoomStep);
    zoom(sayZoomNormal, Qt::CTRL | Qt::Key_0, 0);
}
