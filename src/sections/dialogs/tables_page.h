// The page of the section library dialog that edits the table files: a list of them, the one that
// is chosen as a sheet, and how its sections are drawn. A table is written when it is saved, whole
// or not at all; one that cannot be read is shown empty with the reason, and is left as it is.
#pragma once

#include "core_api/dialog_data/dlg_edit_lib_data.h"
#include "core_api/dialogs/open_file.h"
#include "platform/window/dialog.h"
#include "sections/dialogs/table_sheet.h"

class TablesPage : public CDialog {
  public:
    static constexpr int resourceNumber = 8750;
    enum Item {
        tableList = 1001,
        newButton = 1002,
        deleteButton = 1003,
        rowNamesButton = 1004,
        renameButton = 1005,
        saveButton = 1006,
        undoButton = 1007,
        redoButton = 1008,
        copyButton = 1009,
        pasteButton = 1010,
        insertRowButton = 1011,
        deleteRowButton = 1012,
        rowUpButton = 1013,
        rowDownButton = 1014,
        findButton = 1015,
        sheetItem = 1016,
        templateFrame = 1017,
        templateList = 1018,
        templatePicture = 1019,
        problemLabel = 1020,
    };

    /// `data` lists the tables and drawn templates; borrowed.
    TablesPage(CWnd* parent, DlgEditLibData& data);
    ~TablesPage() override;

    /// Shows the table of a full section name with that size active; the first table when there is
    /// none.
    void start(const Vor_String& section);
    /// Asks to save what was changed. False: the user wants to stay, or it could not be saved.
    bool mayLeave();

    TableSheet& sheet() { return m_sheet; }

    void onCommand(int id, int code) override;
    bool preTranslateKey(const KeyMessage& key) override;

  protected:
    void onInit() override;

  private:
    Vor_String tableName() const;
    bool isReadable() const { return m_problem.isEmpty(); }

    // tables_page.cpp
    void fillTables();
    void fillTemplates();
    void showTable(int index);
    void showProblem();
    void selectTemplate(const Vor_String& display);
    void showPicture();
    void showWhatCanBeDone();
    void onTableChosen();
    void onTemplateChosen();
    void applyTemplate(bool byUser);
    bool asksToDropColumns(const Vor_String& display);
    void nameRows();
    void insertRow();
    void did(bool isDone);
    void showMenu();

    // tables_page_files.cpp
    bool takeBack(Vor_ProfValuesTable& table);
    bool save();
    bool write(Vor_ProfValuesTable& table, const Vor_String& name, int title);
    void newTable();
    void renameTable();
    bool isGoodName(const Vor_String& name);
    bool rename(const Vor_String& name);
    void deleteTable();
    void forgetTable();
    void read(int index);

    DlgEditLibData& m_data;
    TableSheet m_sheet;
    int m_index = -1;             // of the table shown
    Vor_ProfValuesTable m_table;  // as it was read, or made
    Vor_String m_problem;         // why it could not be read
    bool m_isNew = false;         // has no file yet
    OpenFile m_file;
};
