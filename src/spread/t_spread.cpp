#include "spread/t_spread.h"

namespace {

bool read(const control::Grid& grid, int col, int row, control::Reading reading, Vor_String& text) {
    text.clear();
    if (!grid.isAddress(col, row)) return false;
    std::string buffer;
    text = grid.text(col, row, reading, buffer);
    return true;
}

}  // namespace

bool TSpread::getData(int col, int row, Vor_String& text) const {
    return read(m_grid, col, row, control::Reading::data, text);
}

bool TSpread::getValue(int col, int row, Vor_String& text) const {
    return read(m_grid, col, row, control::Reading::value, text);
}

bool TSpread::getFormula(int col, int row, Vor_String& text) const {
    return read(m_grid, col, row, control::Reading::formula, text);
}

bool TSpread::getCellTag(int col, int row, Vor_String& text) const {
    return read(m_grid, col, row, control::Reading::tag, text);
}

int TSpread::colWidthInPixels(int col) const {
    int pixels = -1;
    SSGetColWidthInPixels(handle(), col, pixels);
    return pixels;
}

int TSpread::rowHeightInPixels(int row) const {
    int pixels = -1;
    SSGetRowHeightInPixels(handle(), row, pixels);
    return pixels;
}
