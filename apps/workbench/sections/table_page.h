// The page of one section table: its sizes and their values to look at, in any order, and beside
// them a drawing of the size that is selected.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <functional>

#include "core_api/sections/section_table.h"
#include "workbench/sections/size_panel.h"

class TablePage : public QWidget {
  public:
    /// `path` is the file's, host style.
    TablePage(const Vor_String& path, const SectionTable& table, QWidget* parent = nullptr);

    QTableView& table() { return *m_view; }
    SizePanel& drawing() { return *m_drawing; }

    /// What the buttons above the table do. Until they are set the table is one of no library, only
    /// to look at.
    struct Commands {
        std::function<void()> editLibrary;
        std::function<void()> addSize;
    };
    void setCommands(Commands commands);
    bool isOfLibrary() const { return m_commands.editLibrary != nullptr; }

    const Vor_String& tableName() const { return m_name; }
    /// The full name of the size that is selected, else of the first.
    Vor_String section() const;
    /// False when the table has no such size.
    bool select(const Vor_String& section);
    /// Shows the table as it is now, in the same order, with the same size selected.
    void show(const SectionTable& table);

  private:
    void fill(const SectionTable& table);
    QWidget* makeHeading(const Vor_String& path);
    QWidget* makeMiddle();
    int selectedRow() const;
    void drawSelected();

    QStandardItemModel m_model;
    QTableView* m_view;
    SizePanel* m_drawing;
    Vor_String m_name;
    Vor_String m_drawnAs;
    Vor_StringArray m_columns;  ///< of values
    QLabel* m_notOfLibrary = nullptr;
    QList<QPushButton*> m_buttons;
    Commands m_commands;
};
