// A window that holds one grid control, with each control call as a method that passes the handle
// itself. Vor_Spread puts the meaning on top.
#pragma once

#include <memory>

#include "core_api/text/vor_string.h"
#include "platform/export.h"
#include "spread/control/grid.h"
#include "spread/control/ss_api.h"

class VORMANT_API TSpread {
  public:
    TSpread();
    virtual ~TSpread();
    TSpread(const TSpread&) = delete;
    TSpread& operator=(const TSpread&) = delete;

    /// The grid behind the handle, for engines and views that read many cells.
    control::Grid& grid() { return *m_grid; }
    const control::Grid& grid() const { return *m_grid; }
    SSHandle handle() const { return m_grid.get(); }

    bool setData(int col, int row, const Vor_String& text);
    bool setValue(int col, int row, const Vor_String& text);
    bool getData(int col, int row, Vor_String& text) const;
    bool getValue(int col, int row, Vor_String& text) const;
    bool getFormula(int col, int row, Vor_String& text) const;
    bool setCellTag(int col, int row, const Vor_String& text);
    bool getCellTag(int col, int row, Vor_String& text) const;
    bool setFloat(int col, int row, double number);
    bool getFloat(int col, int row, double& number) const;
    int getCellType(int col, int row) const;
    bool setBool(int option, bool on);
    bool getBool(int option) const;
    bool setRefStyle(int style);
    bool setBorder(const control::Block& block, int sides, int style,
                   control::Colour colour = control::automatic);
    bool setColour(const control::Block& block, control::Colour background,
                   control::Colour text = control::automatic);
    bool setFont(const control::Block& block, const Vor_String& name, int height, int weight);
    bool setColWidthInPixels(int col, int pixels);
    int colWidthInPixels(int col) const;
    bool setRowHeightInPixels(int row, int pixels);
    int rowHeightInPixels(int row) const;
    bool setGridType(int type);
    bool setGridColour(control::Colour colour);

  private:
    std::unique_ptr<control::Grid> m_grid;
};
