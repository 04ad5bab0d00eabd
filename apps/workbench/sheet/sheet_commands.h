// The menus and the tool bar of a sheet's page. Every entry does one step of the editor to the
// selected cells.
#pragma once

#include <QComboBox>
#include <QMenu>
#include <QSpinBox>
#include <QToolBar>
#include <functional>
#include <map>

#include "spread/editor/sheet_editor.h"
#include "workbench/sheet/sheet_icons.h"

class SheetPage;

class SheetCommands : public QObject {
  public:
    explicit SheetCommands(SheetPage& page);
    ~SheetCommands() override;

    /// Edit, insert and so on, for the window's menu bar while the page is in front.
    const QList<QMenu*>& menus() const { return m_menus; }
    QToolBar& toolBar() { return *m_toolBar; }
    /// By the number of its word.
    QAction& action(int word) const { return *m_actions.at(word); }
    QAction& undoAction() const { return *m_undo; }
    QAction& redoAction() const { return *m_redo; }
    void openContextMenu();
    /// Lets the user choose a function and puts it where a formula is typed, or begins one.
    void insertFunction();
    /// Shows what the active cell is, and which steps can be undone.
    void follow();

  private:
    using Do = std::function<void()>;
    using Step = std::function<bool(editor::SheetEditor& editor, const control::Block& block)>;

    QMenu* addMenu(int word);
    QAction* add(QMenu& menu, int word, const QKeySequence& keys, Do action);
    /// A step for the selected cells, after what is being typed was entered.
    QAction* addStep(QMenu& menu, int word, const QKeySequence& keys, Step step);
    QAction* addSwitch(QMenu& menu, int word, const QKeySequence& keys,
                       std::function<bool(const control::CellFormat&)> isOn,
                       std::function<bool(const control::Block&, bool)> set);
    void step(const Step& step);

    // sheet_edit_menu.cpp
    void makeEditMenu();
    void paste(editor::PasteWhat what);
    void undoOrRedo(bool redo);
    // sheet_lines_menu.cpp
    void makeLinesMenu();
    void addRowsAtEnd();
    void askSize(bool isRow);
    // sheet_format_menu.cpp
    void makeFormatMenu();
    void makeBorderMenu(QMenu& format);
    void makeKindMenu(QMenu& format);
    void makeAlignments(QMenu& format);
    void askColour(bool isText);
    void changeDecimals(int by);
    void askComboItems();
    // sheet_data_menu.cpp
    void makeDataMenu();
    void askSort();
    void askNote();
    void changeSettings();
    // sheet_tool_bar.cpp
    void makeToolBar();
    void makeFontFields();
    void setPicture(int word, SheetPicture picture);
    void makeFreeze(QMenu& menu);
    void makeZoom(QMenu& menu);

    SheetPage& m_page;
    QToolBar* m_toolBar;
    QList<QMenu*> m_menus;
    QMenu* m_contextMenu = nullptr;
    std::map<int, QAction*> m_actions;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QComboBox* m_font = nullptr;
    QSpinBox* m_fontHeight = nullptr;
    std::vector<std::function<void(const control::CellFormat&)>> m_followers;
};
