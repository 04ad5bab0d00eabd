// A window that holds one grid control, with each control call as a method that passes the handle
// itself. Vor_Spread puts the meaning on top. Results are those of the calls (ss_api.h).
#pragma once

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

    /// The grid itself, for engines and views that read many cells.
    control::Grid& grid() { return m_grid; }
    const control::Grid& grid() const { return m_grid; }

    bool setMaxRows(int count) { return SSSetMaxRows(handle(), count); }
    bool setMaxCols(int count) { return SSSetMaxCols(handle(), count); }

    bool setData(int col, int row, const Vor_String& text) {
        return m_grid.setData(col, row, text);
    }
    bool setValue(int col, int row, const Vor_String& text) {
        return m_grid.setValueText(col, row, text);
    }
    /// False, with `text` empty, outside the sheet.
    bool getData(int col, int row, Vor_String& text) const;
    bool getValue(int col, int row, Vor_String& text) const;
    bool getFormula(int col, int row, Vor_String& text) const;
    bool setCellTag(int col, int row, const Vor_String& text) {
        return m_grid.setTag(col, row, text);
    }
    bool getCellTag(int col, int row, Vor_String& text) const;
    bool setFloat(int col, int row, double number) {
        return SSSetFloat(handle(), col, row, number);
    }
    bool getFloat(int col, int row, double& number) const {
        return SSGetFloat(handle(), col, row, number);
    }
    int getCellType(int col, int row) const { return SSGetCellType(handle(), col, row); }
    bool setCellType(const control::Block& b, const SSCellType& type) {
        return SSSetCellTypeRange(handle(), b.col1, b.row1, b.col2, b.row2, type);
    }
    bool clearRange(const control::Block& b) {
        return SSClearRange(handle(), b.col1, b.row1, b.col2, b.row2);
    }

    bool setBool(int option, bool on) { return SSSetBool(handle(), option, on); }
    bool getBool(int option) const { return SSGetBool(handle(), option); }
    bool setRefStyle(int style) { return SSSetRefStyle(handle(), style); }

    bool setBorder(const control::Block& b, int sides, int style,
                   control::Colour colour = control::automatic) {
        return SSSetBorder(handle(), b.col1, b.row1, b.col2, b.row2, sides, style, colour);
    }
    bool setColour(const control::Block& b, control::Colour background,
                   control::Colour text = control::automatic) {
        return SSSetColor(handle(), b.col1, b.row1, b.col2, b.row2, background, text);
    }
    bool setFont(const control::Block& b, const Vor_String& name, int height, int weight) {
        return SSSetFont(handle(), b.col1, b.row1, b.col2, b.row2, name.c_str(), height, weight);
    }
    bool setGridType(int type) { return SSSetGridType(handle(), type); }
    bool setGridColour(control::Colour colour) { return SSSetGridColor(handle(), colour); }

    bool addCellSpan(const control::Span& span) {
        return SSAddCellSpan(handle(), span.col, span.row, span.cols, span.rows);
    }
    bool removeCellSpan(int col, int row) { return SSRemoveCellSpan(handle(), col, row); }

    bool setColWidthInPixels(int col, int pixels) {
        return SSSetColWidthInPixels(handle(), col, pixels);
    }
    /// -1 outside the sheet.
    int colWidthInPixels(int col) const;
    bool setRowHeightInPixels(int row, int pixels) {
        return SSSetRowHeightInPixels(handle(), row, pixels);
    }
    int rowHeightInPixels(int row) const;

    bool clipboardCopy() { return SSClipboardCopy(handle()); }
    bool clipboardPaste() { return SSClipboardPaste(handle()); }

  protected:
    // The calls take one kind of handle; those that only read change nothing behind it.
    SSHandle handle() const { return const_cast<control::Grid*>(&m_grid); }

  private:
    control::Grid m_grid;
};
