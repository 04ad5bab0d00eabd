// A spreadsheet whose user works through the editor's steps: whatever is typed, pasted, cleared,
// ticked or pulled wider can be undone.
#pragma once

#include "spread/editor/sheet_editor.h"
#include "spread/vor_spread.h"

class VORMANT_API EditedSpread : public Vor_Spread {
  public:
    EditedSpread();
    ~EditedSpread() override;

    editor::SheetEditor& editor() { return m_editor; }
    const editor::SheetEditor& editor() const { return m_editor; }
    /// The selected cells, or the active one; cut to the sheet.
    control::Block chosen() const;

    bool userEnters(int col, int row, std::string_view text) override;
    bool userClears(const control::Block& block) override;
    bool userPastes(int col, int row, std::string_view text) override;
    bool userClicks(int col, int row) override;
    bool userSizesCol(int col, int pixels) override;
    bool userSizesRow(int row, int pixels) override;
    bool showContextMenu() override;

    /// Opens the context menu; without one there is none.
    void setMenuOpener(std::function<void()> opener) { m_menuOpener = std::move(opener); }

  private:
    editor::SheetEditor m_editor;
    std::function<void()> m_menuOpener;
};
