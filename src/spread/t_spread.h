// A window that holds one grid control, with each control call as a method that passes the handle
// itself. Vor_Spread puts the meaning on top. Results are those of the calls (ss_api.h).
#pragma once

#include <memory>

#include "core_api/text/vor_string.h"
#include "platform/export.h"
#include "platform/window/wnd.h"
#include "spread/control/grid.h"
#include "spread/control/ss_api.h"

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

  protected:
    // The calls take one kind of handle; those that only read change nothing behind it.
    SSHandle handle() const { return m_grid.get(); }

  private:
    std::unique_ptr<control::Grid> m_grid;
};
