// A window that holds one grid control, with each control call as a method that passes the handle
// itself. Vor_Spread puts the meaning on top. Results are those of the calls (ss_api.h).
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "core_api/text/vor_string.h"
#include "platform/export.h"
#include "platform/window/wnd.h"
#include "spread/control/grid.h"
#include "spread/control/ss_api.h"

/// What a user did in a grid.
struct GridNotice {
    enum class What {
        changed,  ///< another text, from a list too
        moved,    ///< another cell is active or other cells are selected
        pressed,  ///< a button cell
        checked,  ///< a check box, which has its new state already
        doubleClicked,
    };
    What what = What::changed;
    int col = 0;
    int row = 0;
};

class VORMANT_API TSpread : public CWnd {
  public:
    /// The window class of grids; other grids that Tab may leave begin with one of the prefixes.
    static constexpr const char* gridClassName = "fpSpread70";
    static constexpr const char* gridClassPrefixes[] = {"SPR32", "fpSpr"};

    TSpread();
    ~TSpread() override;

    /// The grid itself, for engines and views that read many cells.
    control::Grid& grid() { return *m_grid; }
    const control::Grid& grid() const { return *m_grid; }

    bool setMaxRows(int count);
    bool setMaxCols(int count);

    bool setData(int col, int row, const Vor_String& text);
    bool setValue(int col, int row, const Vor_String& text);
    /// False, with `text` empty, outside the sheet.
    bool getData(int col, int row, Vor_String& text) const;
    bool getValue(int col, int row, Vor_String& text) const;
    bool getFormula(int col, int row, Vor_String& text) const;
    bool setCellTag(int col, int row, const Vor_String& text);
    bool getCellTag(int col, int row, Vor_String& text) const;
    bool setFloat(int col, int row, double number);
    bool getFloat(int col, int row, double& number) const;
    int getCellType(int col, int row) const;
    bool setCellType(const control::Block& block, const SSCellType& type);
    bool clearRange(const control::Block& block);

    bool setBool(int option, bool on);
    bool getBool(int option) const;
    bool setRefStyle(int style);

    bool setBorder(const control::Block& block, int sides, int style,
                   control::Colour colour = control::automatic);
    bool setColour(const control::Block& block, control::Colour background,
                   control::Colour text = control::automatic);
    bool setFont(const control::Block& block, const Vor_String& name, int height, int weight);
    bool setGridType(int type);
    bool setGridColour(control::Colour colour);

    bool addCellSpan(const control::Span& span);
    bool removeCellSpan(int col, int row);

    bool setColWidthInPixels(int col, int pixels);
    /// -1 outside the sheet.
    int colWidthInPixels(int col) const;
    bool setRowHeightInPixels(int row, int pixels);
    int rowHeightInPixels(int row) const;

    bool clipboardCopy();
    bool clipboardPaste();

    // --- what a user does -------------------------------------------------------------------
    // By hand or by a script; false when the cell does not allow it. Afterwards the listener hears
    // of it; what the program does it does not hear.
    using Listener = std::function<void(const GridNotice&)>;
    void setListener(Listener listener) { m_listener = std::move(listener); }
    /// Types a text into a cell, or picks it from the cell's list.
    virtual bool userEnters(int col, int row, std::string_view text);
    /// Empties what may be typed into; the listener hears of each cell that was emptied.
    virtual bool userClears(const control::Block& block);
    /// Writes tab-separated lines from a cell on; the listener hears of each cell that took its
    /// text. False when one refused.
    virtual bool userPastes(int col, int row, std::string_view text);
    bool userMoves(int col, int row);
    bool userSelects(const control::Block& block);
    /// Presses a button cell, or toggles a check box.
    virtual bool userClicks(int col, int row);
    bool userDoubleClicks(int col, int row);
    /// Pulls at the edge of a header cell.
    virtual bool userSizesCol(int col, int pixels) { return grid().setColWidth(col, pixels); }
    virtual bool userSizesRow(int row, int pixels) { return grid().setRowHeight(row, pixels); }
    /// The right mouse button. True when there was a menu.
    virtual bool showContextMenu() { return false; }
    /// What the control tells of a cell: `code` 0x3B or 0x3C when its check box was clicked.
    virtual void onCellCommand(int /*code*/, int /*col*/, int /*row*/) {}

  protected:
    // The calls take one kind of handle; those that only read change nothing behind it.
    /// None before the window exists: every call fails then.
    SSHandle handle() const { return isCreated() ? m_grid.get() : nullptr; }

    /// Always true.
    bool notifyListener(GridNotice::What what, int col, int row);

  private:
    void notifyChanged(const std::vector<control::CellAddress>& cells);

    std::unique_ptr<control::Grid> m_grid;
    Listener m_listener;
};
