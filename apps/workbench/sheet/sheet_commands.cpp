#include "workbench/sheet/sheet_commands.h"

#include <QCursor>

#include "workbench/sheet/function_dialog.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/ui_text.h"

SheetCommands::SheetCommands(SheetPage& page)
    : QObject(&page), m_page(page), m_toolBar(new QToolBar(&page)) {
    makeEditMenu();
    makeLinesMenu();
    makeFormatMenu();
    makeDataMenu();
    makeToolBar();
    m_contextMenu = new QMenu(&page);
    constexpr int entries[] = {sayCut,
                               sayCopy,
                               sayPaste,
                               sayPasteValues,
                               0,
                               sayClearContents,
                               0,
                               sayInsertRows,
                               sayInsertCols,
                               sayDeleteRows,
                               sayDeleteCols,
                               0,
                               sayHideRows,
                               sayHideCols,
                               0,
                               saySort,
                               sayMergeCells,
                               sayLock,
                               sayNote};
    for (const int word : entries)
        if (word == 0)
            m_contextMenu->addSeparator();
        else
            m_contextMenu->addAction(m_actions.at(word));
}

SheetCommands::~SheetCommands() = default;

QMenu* SheetCommands::addMenu(int word) {
    m_menus += new QMenu(uiText(word), &m_page);
    return m_menus.back();
}

// Shortcuts belong to the page: several pages have the same.
QAction* SheetCommands::add(QMenu& menu, int word, const QKeySequence& keys, Do action) {
    auto* made = new QAction(uiText(word), this);
    made->setShortcut(keys);
    made->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(made, &QAction::triggered, this, std::move(action));
    menu.addAction(made);
    m_page.addAction(made);
    m_actions[word] = made;
    return made;
}

void SheetCommands::step(const Step& step) {
    if (m_page.commitEdit()) m_page.finish(step(m_page.editor(), m_page.spread().chosen()));
}

QAction* SheetCommands::addStep(QMenu& menu, int word, const QKeySequence& keys, Step action) {
    return add(menu, word, keys, [this, action = std::move(action)] { step(action); });
}

QAction* SheetCommands::addSwitch(QMenu& menu, int word, const QKeySequence& keys,
                                  std::function<bool(const control::CellFormat&)> isOn,
                                  std::function<bool(const control::Block&, bool)> set) {
    QAction* made = addStep(menu, word, keys,
                            [this, isOn, set = std::move(set)](auto&, const control::Block& block) {
                                const control::Grid& grid = m_page.grid();
                                return set(block, !isOn(grid.format(block.col1, block.row1)));
                            });
    made->setCheckable(true);
    m_followers.push_back([made, isOn = std::move(isOn)](const control::CellFormat& format) {
        made->setChecked(isOn(format));
    });
    return made;
}

void SheetCommands::openContextMenu() {
    m_contextMenu->popup(QCursor::pos());
}

void SheetCommands::follow() {
    editor::SheetEditor& editor = m_page.editor();
    m_undo->setText(toQt(editor.undoTitle()));
    m_undo->setEnabled(editor.canUndo());
    m_redo->setText(toQt(editor.redoTitle()));
    m_redo->setEnabled(editor.canRedo());
    const auto [col, row] = m_page.grid().active();
    if (!m_page.grid().isInside(col, row)) return;
    for (const auto& follower : m_followers) follower(m_page.grid().format(col, row));
}

void SheetCommands::insertFunction() {
    FunctionDialog dialog(&m_page);
    if (dialog.exec() != QDialog::Accepted) return;
    const QString call = dialog.chosen() + "(";
    QPlainTextEdit* field = m_page.view().field();
    if (!field) field = &m_page.formulaBar().field();
    field->setFocus();
    QTextCursor at = field->textCursor();
    if (!field->toPlainText().startsWith('=')) {
        at.select(QTextCursor::Document);
        at.insertText("=");
    }
    at.insertText(call);
    field->setTextCursor(at);
}
