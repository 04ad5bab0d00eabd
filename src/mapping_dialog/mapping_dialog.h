// "Add and edit standards-spreadsheets": above, the spreadsheets attached to a macro and what each
// maps to; below, for the one that is selected, which object of the macro each variable stands for.
// It works on copies; files are written when it is closed with OK and all is well.
#pragma once

#include <set>
#include <string>

#include "mapping_dialog/attached_sheets.h"
#include "mapping_dialog/object_list.h"
#include "platform/window/dialog.h"
#include "spread/vor_spread.h"

class MappingSaver;

class TwMappingDlg : public CDialog {
  public:
    static constexpr int resourceNumber = 21520;
    enum Item {
        sheetsItem = 1001,
        addButton = 1002,
        removeButton = 1003,
        moveUpButton = 1004,
        moveDownButton = 1005,
        headingLabel = 1006,
        shownLabel = 1007,
        objectsItem = 1008,
    };
    enum SheetColumn { spreadsheetColumn = 1, mapsToColumn = 2 };
    enum ObjectColumn { typeColumn = 1, nameColumn = 2, objectColumn = 3 };

    /// `all` lists every object of the macro that can be mapped; borrowed.
    TwMappingDlg(CWnd* parent, const TabMappingData& data, const TwSSMapping& all);
    ~TwMappingDlg() override;

    /// As it is to be kept, after OK.
    const TabMappingData& data() const { return m_data; }
    /// After OK: the list or a mapping differs from what was there.
    bool isChanged() const { return m_isChanged; }

    /// One row for each attached spreadsheet.
    Vor_Spread& sheetsGrid() { return m_sheetsGrid; }
    /// A heading row "Input", one row for each input, and the same for outputs.
    Vor_Spread& objectsGrid() { return m_objectsGrid; }

    void onCommand(int id, int code) override;

  protected:
    void onInit() override;
    void onOK() override;
    void onSize(CSize before) override;
    void onDestroy() override;

  private:
    void prepareGrids();
    void fillSheets();
    void fillSheetRow(int row);
    ErrorStatus selectRow(int row);
    ErrorStatus loadChoices(AttachedSheet& sheet);
    void showObjects(const AttachedSheet& sheet);
    void showHeading(int row, const char* word);
    void showVariable(int row, const VariableChoice& variable);
    void clearObjects();

    void add();
    void remove();
    void move(int by);
    void onSheetNotice(const GridNotice& notice);
    void onSheetEntered(int col, int row);
    void onObjectEntered(int row);
    AttachedSheet* shownSheet();

    bool hasNameless();
    bool saveAll(MappingSaver& saver);
    bool saveSheet(AttachedSheet& sheet, MappingSaver& saver);

    const ObjectList& objectsFor(TwValueType type) const {
        return isNumeric(type) ? m_numericObjects : m_textObjects;
    }
    void warn(int textNumber, const Vor_String& detail = {});

    TabMappingData m_data;
    const TwSSMapping& m_all;
    const ObjectList m_numericObjects;
    const ObjectList m_textObjects;
    AttachedSheets m_sheets;
    Vor_StringArray m_standards;
    /// What the mapping file said of the row shown last. A row without a line of its own is
    /// proposed the same objects.
    TwSSMapping m_stored;
    int m_shownId = 0;                       // of the sheet in the lower grid; 0 for none
    std::vector<int> m_variableOfRow;        // by row of the lower grid, -1 for headings
    std::set<std::string> m_reportedFailed;  // spreadsheets whose failure was told
    bool m_isChanged = false;
    Vor_Spread m_sheetsGrid;
    Vor_Spread m_objectsGrid;
};
