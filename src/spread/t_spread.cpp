#include "spread/t_spread.h"

#include "platform/window/message_scope.h"
#include "platform/window/window_system.h"

using control::Block;
using control::CellAddress;
using control::Colour;

namespace {

bool read(const control::Grid* grid, int col, int row, control::Reading reading, Vor_String& text) {
    text.clear();
    if (!grid || !grid->isAddress(col, row)) return false;
    std::string buffer;
    text.append(grid->text(col, row, reading, buffer));
    return true;
}

}  // namespace

TSpread::TSpread() : m_grid(std::make_unique<control::Grid>()) {}

// What shows the grid may look at it once more while it goes.
TSpread::~TSpread() {
    destroyNow();
}

bool TSpread::setMaxRows(int count) {
    return SSSetMaxRows(handle(), count);
}
bool TSpread::setMaxCols(int count) {
    return SSSetMaxCols(handle(), count);
}

bool TSpread::setData(int col, int row, const Vor_String& text) {
    return isCreated() && m_grid->setData(col, row, text);
}
bool TSpread::setValue(int col, int row, const Vor_String& text) {
    return isCreated() && m_grid->setValueText(col, row, text);
}
bool TSpread::getData(int col, int row, Vor_String& text) const {
    return read(handle(), col, row, control::Reading::data, text);
}
bool TSpread::getValue(int col, int row, Vor_String& text) const {
    return read(handle(), col, row, control::Reading::value, text);
}
bool TSpread::getFormula(int col, int row, Vor_String& text) const {
    return read(handle(), col, row, control::Reading::formula, text);
}
bool TSpread::setCellTag(int col, int row, const Vor_String& text) {
    return isCreated() && m_grid->setTag(col, row, text);
}
bool TSpread::getCellTag(int col, int row, Vor_String& text) const {
    return read(handle(), col, row, control::Reading::tag, text);
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

// --- what a user does ---------------------------------------------------------------------------

bool TSpread::notifyListener(GridNotice::What what, int col, int row) {
    const MessageScope message(*this);
    notify(WindowChange::content);
    // A copy: the listener may set another one, or none.
    if (const Listener listener = m_listener) listener({what, col, row});
    return true;
}

bool TSpread::userEnters(int col, int row, std::string_view text) {
    return isCreated() && m_grid->enter(col, row, text) &&
           notifyListener(GridNotice::What::changed, col, row);
}

void TSpread::notifyChanged(const std::vector<CellAddress>& cells) {
    if (cells.empty()) return;
    const MessageScope message(*this);
    notify(WindowChange::content);
    const Listener listener = m_listener;
    if (!listener) return;
    for (const CellAddress& cell : cells) listener({GridNotice::What::changed, cell.col, cell.row});
}

bool TSpread::userClears(const Block& given) {
    const std::optional<Block> block = m_grid->resolved(given);
    if (!isCreated() || !block) return false;
    const control::Area area{block->row1, block->row2, static_cast<uint16_t>(block->col1),
                             static_cast<uint16_t>(block->col2)};
    std::vector<CellAddress> filled;
    m_grid->sheet().cells().each(area, [&](int row, int col, const control::Cell& cell) {
        if (cell.type != control::ValueType::empty || cell.formula != 0)
            filled.push_back({col, row});
    });
    std::erase_if(filled,
                  [&](const CellAddress& cell) { return !m_grid->enter(cell.col, cell.row, ""); });
    notifyChanged(filled);
    return !filled.empty();
}

bool TSpread::userPastes(int col, int row, std::string_view text) {
    if (!isCreated()) return false;
    std::vector<CellAddress> taken;
    const bool isWhole = m_grid->pasteText(col, row, text, [&](int toCol, int toRow) {
        taken.push_back({toCol, toRow});
    });
    notifyChanged(taken);
    return isWhole;
}

bool TSpread::userMoves(int col, int row) {
    return isCreated() && m_grid->setActive(col, row) &&
           notifyListener(GridNotice::What::moved, col, row);
}

bool TSpread::userSelects(const control::Block& block) {
    return isCreated() && m_grid->select(block) &&
           notifyListener(GridNotice::What::moved, block.col1, block.row1);
}

bool TSpread::userClicks(int col, int row) {
    if (!isCreated() || !m_grid->isInside(col, row)) return false;
    const control::CellFormat& format = m_grid->format(col, row);
    if (format.locked) return false;
    if (format.type.kind == control::CellKind::button)
        return notifyListener(GridNotice::What::pressed, col, row);
    if (format.type.kind != control::CellKind::checkBox) return false;
    constexpr int boxClicked = 0x3B;
    const bool isChecked = m_grid->text(col, row, control::Reading::value) == "1";
    if (!m_grid->enter(col, row, isChecked ? "0" : "1")) return false;
    const MessageScope message(*this);
    onCellCommand(boxClicked, col, row);
    return notifyListener(GridNotice::What::checked, col, row);
}

bool TSpread::userDoubleClicks(int col, int row) {
    return isCreated() && m_grid->isAddress(col, row) &&
           notifyListener(GridNotice::What::doubleClicked, col, row);
}
