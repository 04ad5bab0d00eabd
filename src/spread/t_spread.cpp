#include "spread/t_spread.h"

using control::Block;
using control::Colour;

namespace {

bool read(const control::Grid& grid, int col, int row, control::Reading reading, Vor_String& text) {
    text.clear();
    if (!grid.isAddress(col, row)) return false;
    std::string buffer;
    text.append(grid.text(col, row, reading, buffer));
    return true;
}

}  // namespace

TSpread::TSpread() : m_grid(std::make_unique<control::Grid>()) {}
TSpread::~TSpread() = default;

bool TSpread::setMaxRows(int count) {
    return SSSetMaxRows(handle(), count);
}
bool TSpread::setMaxCols(int count) {
    return SSSetMaxCols(handle(), count);
}

bool TSpread::setData(int col, int row, const Vor_String& text) {
    return m_grid->setData(col, row, text);
}
bool TSpread::setValue(int col, int row, const Vor_String& text) {
    return m_grid->setValueText(col, row, text);
}
bool TSpread::getData(int col, int row, Vor_String& text) const {
    return read(*m_grid, col, row, control::Reading::data, text);
}
bool TSpread::getValue(int col, int row, Vor_String& text) const {
    return read(*m_grid, col, row, control::Reading::value, text);
}
bool TSpread::getFormula(int col, int row, Vor_String& text) const {
    return read(*m_grid, col, row, control::Reading::formula, text);
}
bool TSpread::setCellTag(int col, int row, const Vor_String& text) {
    return m_grid->setTag(col, row, text);
}
bool TSpread::getCellTag(int col, int row, Vor_String& text) const {
    return read(*m_grid, col, row, control::Reading::tag, text);
}

bool TSpread::setFloat(int col, int row, double number) {
    return SSSetFloat(handle(), col, row, number);
}
bool TSpread::getFloat(int col, int row, double& number) const {
    return SSGetFloat(handle(), col, row, number);
}
int TSpread::getCellType(int col, int row) const {
    return SSGetCellType(handle(), col, row);
}
bool TSpread::setCellType(const Block& b, const SSCellType& type) {
    return SSSetCellTypeRange(handle(), b.col1, b.row1, b.col2, b.row2, type);
}
bool TSpread::clearRange(const Block& b) {
    return SSClearRange(handle(), b.col1, b.row1, b.col2, b.row2);
}

bool TSpread::setBool(int option, bool on) {
    return SSSetBool(handle(), option, on);
}
bool TSpread::getBool(int option) const {
    return SSGetBool(handle(), option);
}
bool TSpread::setRefStyle(int style) {
    return SSSetRefStyle(handle(), style);
}

bool TSpread::setBorder(const Block& b, int sides, int style, Colour colour) {
    return SSSetBorder(handle(), b.col1, b.row1, b.col2, b.row2, sides, style, colour);
}
bool TSpread::setColour(const Block& b, Colour background, Colour text) {
    return SSSetColor(handle(), b.col1, b.row1, b.col2, b.row2, background, text);
}
bool TSpread::setFont(const Block& b, const Vor_String& name, int height, int weight) {
    return SSSetFont(handle(), b.col1, b.row1, b.col2, b.row2, name.c_str(), height, weight);
}
bool TSpread::setGridType(int type) {
    return SSSetGridType(handle(), type);
}
bool TSpread::setGridColour(Colour colour) {
    return SSSetGridColor(handle(), colour);
}

bool TSpread::addCellSpan(const control::Span& span) {
    return SSAddCellSpan(handle(), span.col, span.row, span.cols, span.rows);
}
bool TSpread::removeCellSpan(int col, int row) {
    return SSRemoveCellSpan(handle(), col, row);
}

bool TSpread::setColWidthInPixels(int col, int pixels) {
    return SSSetColWidthInPixels(handle(), col, pixels);
}
int TSpread::colWidthInPixels(int col) const {
    int pixels = -1;
    SSGetColWidthInPixels(handle(), col, pixels);
    return pixels;
}
bool TSpread::setRowHeightInPixels(int row, int pixels) {
    return SSSetRowHeightInPixels(handle(), row, pixels);
}
int TSpread::rowHeightInPixels(int row) const {
    int pixels = -1;
    SSGetRowHeightInPixels(handle(), row, pixels);
    return pixels;
}

bool TSpread::clipboardCopy() {
    return SSClipboardCopy(handle());
}
bool TSpread::clipboardPaste() {
    return SSClipboardPaste(handle());
}
