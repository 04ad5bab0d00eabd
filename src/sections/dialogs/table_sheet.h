// The sheet in which a section table is edited: what a user does in it can be undone, the section
// type of the table included, which goes along as the tag of the sheet's corner.
#pragma once

#include "sections/vor_prof_values_table.h"
#include "spread/editor/edited_spread.h"

class TableSheet : public EditedSpread, private CellChangeObserver {
  public:
    TableSheet() { setChangeObserver(this); }

    /// Sheet columns count from 1.
    static constexpr int activeSheetColumn = Vor_ProfValuesTable::activeColumn + 1;

    /// Fills the sheet; nothing is changed then and nothing can be undone. A table without rows or
    /// columns empties it. `drawnAs` as the template list shows it.
    void showTable(const Vor_ProfValuesTable& table, const Vor_String& drawnAs);
    void setUnsaved();
    void setSaved();
    bool isChanged() const;

    const std::string& lastError() const { return editor().lastError(); }
    bool undo();
    bool redo();

    // Steps. False, with lastError(), when one cannot be done.
    bool addRow(int before);
    /// Those that are selected.
    bool removeRows();
    /// Swaps the active row with the one above (-1) or below (1).
    bool moveRow(int by);
    /// Writes the name of the table beside every row.
    bool nameRows(const Vor_String& table);
    /// Makes `header` the names of the first columns, with new columns as needed; `narrows` takes
    /// away those behind them.
    bool setTemplate(const Vor_String& drawnAs, const Vor_StringArray& header, bool narrows);
    Vor_String drawnAs() const;
    /// "SysName", "I/O" and the languages, as far as the sheet has them.
    Vor_StringArray languageHeader() const;

    /// Makes the row active whose size has this full system name. False when there is none.
    bool goToSize(const Vor_String& table, std::string_view fullName);

    /// What the clipboard holds, where the selection begins.
    bool paste();

    bool userPastes(int col, int row, std::string_view text) override;
    /// How wide the columns are is no part of the table.
    bool userSizesCol(int col, int pixels) override;
    bool userSizesRow(int row, int pixels) override;

  private:
    // Replaced cells are steps as well, of which the listener hears.
    void begin(int titleText) override { editor().begin(titleText); }
    void beforeChange(int col, int row) override { editor().beforeChange(col, row); }
    void end() override;

    void keepTexts();
    void prepareRows(int first, int last);
    void followHistory();
    Vor_StringArray header() const;

    bool m_isUnsaved = false;
};
