// Undoing, the clipboard, clearing and searching.
#include "workbench/sheet/sheet_clipboard.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/ui_text.h"

void SheetCommands::makeEditMenu() {
    QMenu& menu = *addMenu(sayMenuEdit);
    const auto undo = [&](bool redo, const QKeySequence& keys) {
        auto* made = new QAction(this);
        made->setShortcut(keys);
        made->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(made, &QAction::triggered, this, [this, redo] { undoOrRedo(redo); });
        menu.addAction(made);
        m_page.addAction(made);
        return made;
    };
    m_undo = undo(false, QKeySequence(Qt::CTRL | Qt::Key_Z));
    m_redo = undo(true, QKeySequence(Qt::CTRL | Qt::Key_Y));
    menu.addSeparator();
    const auto clip = [this](bool (SheetClipboard::*take)(SheetSpread&)) {
        return [this, take] {
            if (m_page.commitEdit()) (SheetClipboard::shared().*take)(m_page.spread());
        };
    };
    add(menu, sayCut, QKeySequence(Qt::CTRL | Qt::Key_X), clip(&SheetClipboard::cut));
    add(menu, sayCopy, QKeySequence(Qt::CTRL | Qt::Key_C), clip(&SheetClipboard::copy));
    using What = editor::PasteWhat;
    const std::tuple<int, QKeySequence, What> pastes[] = {
        {sayPaste, Qt::CTRL | Qt::Key_V, What::all},
        {sayPasteValues, Qt::CTRL | Qt::SHIFT | Qt::Key_V, What::values},
        {sayPasteContents, {}, What::contents},
        {sayPasteFormats, {}, What::formats}};
    for (const auto& [word, keys, what] : pastes)
        add(menu, word, keys, [this, what = what] { paste(what); });
    menu.addSeparator();
    addStep(menu, sayClearContents, {},
            [](editor::SheetEditor& editor, const control::Block& block) {
                return editor.clearContents(block);
            });
    addStep(menu, sayClearFormats, {},
            [](editor::SheetEditor& editor, const control::Block& block) {
                return editor.clearFormats(block);
            });
    add(menu, saySelectAll, {}, [this] { m_page.view().selectAll(); });
    menu.addSeparator();
    add(menu, sayFind, QKeySequence(Qt::CTRL | Qt::Key_F), [this] {
        if (m_page.commitEdit()) m_page.findBar().open();
    });
}

void SheetCommands::paste(editor::PasteWhat what) {
    if (!m_page.commitEdit()) return;
    QString why;
    const bool isDone = SheetClipboard::shared().paste(m_page.spread(), what, why);
    if (!m_page.finish(isDone || !why.isEmpty())) return;
    if (!why.isEmpty()) return m_page.showMessage(why, true);
    m_page.finishAt(true);
}

void SheetCommands::undoOrRedo(bool redo) {
    if (!m_page.commitEdit()) return;
    m_page.finishAt(redo ? m_page.editor().redo() : m_page.editor().undo());
}
