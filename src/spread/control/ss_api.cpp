#include "spread/control/ss_api.h"

#include <cmath>
#include <cstring>
#include <string>
#include <tuple>

#include "core_api/text/number_text.h"
#include "platform/window/window_system.h"
#include "spread/control/grid.h"

namespace {

using control::Block;
using control::CellKind;
using control::Grid;
using control::Reading;

std::string_view viewOf(const char* text) {
    return text ? std::string_view(text) : std::string_view();
}

int lengthOf(const Grid* grid, int col, int row, Reading reading) {
    if (!grid) return 0;
    std::string buffer;
    return static_cast<int>(grid->text(col, row, reading, buffer).size());
}

bool copyTo(char* buffer, std::string_view text) {
    if (!buffer) return false;
    std::memcpy(buffer, text.data(), text.size());
    buffer[text.size()] = '\0';
    return true;
}

bool readTo(const Grid* grid, int col, int row, Reading reading, char* buffer) {
    if (!grid || !grid->isAddress(col, row)) return false;
    std::string read;
    return copyTo(buffer, grid->text(col, row, reading, read));
}

// A type made anew: what it was before does not shine through.
control::CellType& startType(SSCellType& type, CellKind kind, uint32_t style) {
    type = {};
    type.kind = kind;
    type.style = style;
    return type;
}

constexpr double pixelsPerUnit = 8;
constexpr double pixelsPerPoint = 4.0 / 3;

}  // namespace

// --- size ---------------------------------------------------------------------------------------

int SSGetMaxRows(SSHandle grid) {
    return grid ? grid->rows() : 0;
}
int SSGetMaxCols(SSHandle grid) {
    return grid ? grid->cols() : 0;
}
bool SSSetMaxRows(SSHandle grid, int count) {
    return grid && grid->setRows(count);
}
bool SSSetMaxCols(SSHandle grid, int count) {
    return grid && grid->setCols(count);
}

// --- cell text ----------------------------------------------------------------------------------

bool SSSetData(SSHandle grid, int col, int row, const char* text) {
    return grid && grid->setData(col, row, viewOf(text));
}
int SSGetDataLen(SSHandle grid, int col, int row) {
    return lengthOf(grid, col, row, Reading::data);
}
bool SSGetData(SSHandle grid, int col, int row, char* buffer) {
    return readTo(grid, col, row, Reading::data, buffer);
}
bool SSSetValue(SSHandle grid, int col, int row, const char* text) {
    return grid && grid->setValueText(col, row, viewOf(text));
}
int SSGetValueLen(SSHandle grid, int col, int row) {
    return lengthOf(grid, col, row, Reading::value);
}
bool SSGetValue(SSHandle grid, int col, int row, char* buffer) {
    return readTo(grid, col, row, Reading::value, buffer);
}
int SSGetFormulaLen(SSHandle grid, int col, int row) {
    return lengthOf(grid, col, row, Reading::formula);
}
bool SSGetFormula(SSHandle grid, int col, int row, char* buffer) {
    return readTo(grid, col, row, Reading::formula, buffer);
}
bool SSSetCellTag(SSHandle grid, int col, int row, const char* text) {
    return grid && grid->setTag(col, row, viewOf(text));
}
int SSGetCellTagLen(SSHandle grid, int col, int row) {
    return lengthOf(grid, col, row, Reading::tag);
}
bool SSGetCellTag(SSHandle grid, int col, int row, char* buffer) {
    return readTo(grid, col, row, Reading::tag, buffer);
}
bool SSSetCellNote(SSHandle grid, int col, int row, const char* text) {
    return grid && grid->setNote(col, row, viewOf(text));
}
int SSGetCellNoteLen(SSHandle grid, int col, int row) {
    return grid ? static_cast<int>(grid->note(col, row).size()) : 0;
}
bool SSGetCellNote(SSHandle grid, int col, int row, char* buffer) {
    return grid && grid->isAddress(col, row) && copyTo(buffer, grid->note(col, row));
}

bool SSSetFloat(SSHandle grid, int col, int row, double number) {
    return grid && grid->writeValue(col, row, number);
}

bool SSGetFloat(SSHandle grid, int col, int row, double& number) {
    if (!grid) return false;
    const formula::Value value = grid->shownValue(col, row);
    if (value.isNumber()) {
        number = value.number();
        return true;
    }
    if (!value.isText()) return false;
    std::string_view text = value.text();
    const std::optional<double> read = takeNumber(text);
    if (!read || !text.empty()) return false;
    number = *read;
    return true;
}

int SSGetCellType(SSHandle grid, int col, int row) {
    if (!grid || !grid->isAddress(col, row)) return 0;
    const control::CellType& type = grid->format(col, row).type;
    const bool isWhole = type.isNumber() && type.decimals == 0;
    return static_cast<int>(isWhole ? CellKind::wholeNumber : type.kind);
}

bool SSClearRange(SSHandle grid, int col, int row, int col2, int row2) {
    if (!grid || !grid->resolved({col, row, col2, row2})) return false;
    grid->clearCells({col, row, col2, row2});
    return true;
}

// --- formulas -----------------------------------------------------------------------------------

bool SSSetFormula(SSHandle grid, int col, int row, const char* text) {
    return grid && grid->setFormula(col, row, viewOf(text));
}
bool SSReCalcCell(SSHandle grid, int col, int row) {
    return grid && grid->recalculateCell(col, row);
}
bool SSReCalc(SSHandle grid) {
    if (grid) grid->recalculate();
    return grid != nullptr;
}
bool SSSetRefStyle(SSHandle grid, int style) {
    if (!grid || style < 0 || style > 2) return false;
    grid->setReferenceStyle(style);
    return true;
}
int SSGetRefStyle(SSHandle grid) {
    return grid ? grid->referenceStyle() : 0;
}

// --- files --------------------------------------------------------------------------------------

int SSLoadFromFile(SSHandle grid, const char* path) {
    return grid && grid->load(viewOf(path));
}
int SSSaveToFile(SSHandle grid, const char* path, bool dataOnly) {
    if (!grid) return 0;
    return dataOnly ? grid->saveTexts(viewOf(path)) : grid->save(viewOf(path));
}
const char* SSLastError(SSHandle grid) {
    return grid ? grid->lastError().c_str() : "";
}

// --- cell kinds ---------------------------------------------------------------------------------

bool SSSetTypeEdit(SSHandle, SSCellType& type, uint32_t style, int maxLength) {
    type = control::editType(maxLength, style);
    return maxLength >= 0;
}
bool SSSetTypeNumber(SSHandle, SSCellType& type, int decimals, double least, double most,
                     uint32_t style) {
    type = control::numberType(decimals, style, least, most);
    return decimals >= 0 && decimals <= 15;
}
bool SSSetTypeStaticText(SSHandle, SSCellType& type, uint32_t style) {
    startType(type, CellKind::staticText, style);
    return true;
}
bool SSSetTypeCheckBox(SSHandle, SSCellType& type, uint32_t style, int checkedPicture,
                       int uncheckedPicture) {
    startType(type, CellKind::checkBox, style).picture = checkedPicture;
    type.otherPicture = uncheckedPicture;
    return true;
}
bool SSSetTypeComboBox(SSHandle, SSCellType& type, const char* items, bool editable) {
    startType(type, CellKind::comboBox, 0).text = viewOf(items);
    type.editable = editable;
    return true;
}
bool SSSetTypeButton(SSHandle, SSCellType& type, const char* text, uint32_t style) {
    startType(type, CellKind::button, style).text = viewOf(text);
    return true;
}
bool SSSetTypePicture(SSHandle, SSCellType& type, const char* path, uint32_t style) {
    startType(type, CellKind::picture, style).text = viewOf(path);
    return true;
}
bool SSSetTypePictureHandle(SSHandle, SSCellType& type, int resource, bool isIcon) {
    startType(type, CellKind::pictureHandle, 0).picture = resource;
    type.isIcon = isIcon;
    return true;
}
bool SSSetCellType(SSHandle grid, int col, int row, const SSCellType& type) {
    return grid && grid->setType(col, row, type);
}
bool SSSetCellTypeRange(SSHandle grid, int col, int row, int col2, int row2,
                        const SSCellType& type) {
    return grid && grid->setType(Block{col, row, col2, row2}, type);
}

// --- spans and locks ----------------------------------------------------------------------------

bool SSAddCellSpan(SSHandle grid, int col, int row, int cols, int rows) {
    return grid && grid->addSpan({col, row, cols, rows});
}

int SSGetCellSpan(SSHandle grid, int col, int row, int& anchorCol, int& anchorRow, int& cols,
                  int& rows) {
    const control::Span* span = grid ? grid->spanAt(col, row) : nullptr;
    if (!span) return 0;
    anchorCol = span->col;
    anchorRow = span->row;
    cols = span->cols;
    rows = span->rows;
    return anchorCol == col && anchorRow == row ? 1 : 2;
}

bool SSRemoveCellSpan(SSHandle grid, int col, int row) {
    return grid && grid->removeSpan(col, row);
}
bool SSSetLock(SSHandle grid, int col, int row, bool locked) {
    return SSSetLockRange(grid, col, row, col, row, locked);
}
bool SSSetLockRange(SSHandle grid, int col, int row, int col2, int row2, bool locked) {
    return grid && grid->changeFormats({col, row, col2, row2}, [&](control::CellFormat& format) {
        format.locked = locked;
    });
}
bool SSGetLock(SSHandle grid, int col, int row) {
    return grid && grid->isAddress(col, row) && grid->format(col, row).locked;
}

// --- format
// ---------------------------------------------------------------------------------------

bool SSSetColWidth(SSHandle grid, int col, double units) {
    return SSSetColWidthInPixels(grid, col, static_cast<int>(std::lround(units * pixelsPerUnit)));
}
bool SSGetColWidth(SSHandle grid, int col, double& units) {
    int pixels = 0;
    if (!SSGetColWidthInPixels(grid, col, pixels)) return false;
    units = pixels / pixelsPerUnit;
    return true;
}
bool SSSetRowHeight(SSHandle grid, int row, double points) {
    return SSSetRowHeightInPixels(grid, row,
                                  static_cast<int>(std::lround(points * pixelsPerPoint)));
}
bool SSGetRowHeight(SSHandle grid, int row, double& points) {
    int pixels = 0;
    if (!SSGetRowHeightInPixels(grid, row, pixels)) return false;
    points = pixels / pixelsPerPoint;
    return true;
}
bool SSSetColWidthInPixels(SSHandle grid, int col, int pixels) {
    return grid && grid->setColWidth(col, pixels);
}
bool SSGetColWidthInPixels(SSHandle grid, int col, int& pixels) {
    if (!grid || !grid->isAddress(col, control::headerIndex)) return false;
    pixels = grid->colWidth(col);
    return true;
}
bool SSSetRowHeightInPixels(SSHandle grid, int row, int pixels) {
    return grid && grid->setRowHeight(row, pixels);
}
bool SSGetRowHeightInPixels(SSHandle grid, int row, int& pixels) {
    if (!grid || !grid->isAddress(control::headerIndex, row)) return false;
    pixels = grid->rowHeight(row);
    return true;
}
bool SSGetMaxTextColWidth(SSHandle grid, int col, int& pixels) {
    if (!grid || !grid->isAddress(col, control::headerIndex)) return false;
    pixels = grid->fitWidth(col);
    return true;
}
bool SSGetMaxTextRowHeight(SSHandle grid, int row, int& pixels) {
    if (!grid || !grid->isAddress(control::headerIndex, row)) return false;
    pixels = grid->fitHeight(row);
    return true;
}

bool SSSetFont(SSHandle grid, int col, int row, int col2, int row2, const char* name, int height,
               int weight) {
    if (!grid || height < 1) return false;
    return grid->changeFormats({col, row, col2, row2}, [&](control::CellFormat& format) {
        format.font.name = viewOf(name);
        format.font.height = height;
        format.font.weight = weight;
    });
}

bool SSSetColor(SSHandle grid, int col, int row, int col2, int row2, uint32_t background,
                uint32_t text) {
    return grid && grid->changeFormats({col, row, col2, row2}, [&](control::CellFormat& format) {
        format.background = background;
        format.textColour = text;
    });
}

bool SSSetBorder(SSHandle grid, int col, int row, int col2, int row2, int sides, int style,
                 uint32_t colour) {
    return grid && grid->setBorder({col, row, col2, row2}, sides, style, colour);
}

bool SSSetGridType(SSHandle grid, int type) {
    if (grid) grid->changeSides().gridType = type;
    return grid != nullptr;
}
bool SSSetGridColor(SSHandle grid, uint32_t colour) {
    if (grid) grid->changeSides().gridColour = colour;
    return grid != nullptr;
}
bool SSSetGrayAreaColor(SSHandle grid, uint32_t colour) {
    if (grid) grid->changeSides().greyArea = colour;
    return grid != nullptr;
}
bool SSSetLockColor(SSHandle grid, uint32_t colour) {
    if (grid) grid->changeSides().lockedColour = colour;
    return grid != nullptr;
}
bool SSSetSelColor(SSHandle grid, uint32_t background, uint32_t text) {
    if (!grid) return false;
    grid->changeSides().selectionBackground = background;
    grid->changeSides().selectionText = text;
    return true;
}
bool SSSetBool(SSHandle grid, int option, bool on) {
    if (!grid || option < 0 || option >= control::optionCount) return false;
    grid->setOption(option, on);
    return true;
}
bool SSGetBool(SSHandle grid, int option) {
    return grid && grid->option(option);
}

// --- selection, editing -------------------------------------------------------------------------

bool SSGetActiveCell(SSHandle grid, int& col, int& row) {
    if (!grid || grid->active().col == 0) return false;
    col = grid->active().col;
    row = grid->active().row;
    return true;
}
bool SSSetActiveCell(SSHandle grid, int col, int row) {
    return grid && grid->setActive(col, row);
}

bool SSGetSelBlock(SSHandle grid, int& col, int& row, int& col2, int& row2) {
    if (!grid || !grid->selection()) return false;
    const Block& block = *grid->selection();
    col = block.col1;
    row = block.row1;
    col2 = block.col2;
    row2 = block.row2;
    return true;
}
bool SSSetSelBlock(SSHandle grid, int col, int row, int col2, int row2) {
    return grid && grid->select({col, row, col2, row2});
}
bool SSClearSelection(SSHandle grid) {
    if (grid) grid->deselect();
    return grid != nullptr;
}

bool SSSetEditMode(SSHandle grid, bool on) {
    if (!grid) return false;
    return on ? grid->beginEdit() : !grid->isEditing() || grid->endEdit(true);
}
bool SSGetEditMode(SSHandle grid) {
    return grid && grid->isEditing();
}
bool SSSetEditSel(SSHandle grid, int start, int length) {
    return grid && grid->setEditSelection(start, length);
}
bool SSGetEditSel(SSHandle grid, int& start, int& length) {
    if (!grid || !grid->isEditing()) return false;
    std::tie(start, length) = grid->editSelection();
    return true;
}

bool SSClipboardCopy(SSHandle grid) {
    if (!grid) return false;
    const control::CellAddress active = grid->active();
    const Block cell{active.col, active.row, active.col, active.row};
    const Block block = grid->selection().value_or(cell);
    if (!grid->resolved(block)) return false;
    WindowSystem::current().setClipboardText(grid->copyText(block));
    return true;
}

bool SSClipboardPaste(SSHandle grid) {
    if (!grid) return false;
    control::CellAddress at = grid->active();
    if (grid->selection())
        if (const auto block = grid->resolved(*grid->selection())) at = {block->col1, block->row1};
    return grid->pasteText(at.col, at.row, WindowSystem::current().clipboardText());
}

bool SSSetActionKey(SSHandle grid, int action, bool shift, bool ctrl, int key) {
    if (!grid || action < 0 || action > 2) return false;
    grid->setActionKey(static_cast<control::KeyAction>(action), {key, shift, ctrl});
    return true;
}

// --- structure ----------------------------------------------------------------------------------

bool SSInsRow(SSHandle grid, int row, int count) {
    return grid && grid->insertRows(row, count);
}
bool SSInsCol(SSHandle grid, int col, int count) {
    return grid && grid->insertCols(col, count);
}
bool SSDelRow(SSHandle grid, int row, int count) {
    return grid && grid->deleteRows(row, count);
}
bool SSDelCol(SSHandle grid, int col, int count) {
    return grid && grid->deleteCols(col, count);
}
bool SSCopyRange(SSHandle grid, int col, int row, int col2, int row2, int toCol, int toRow) {
    return grid && grid->copyBlock({col, row, col2, row2}, toCol, toRow);
}
bool SSSwapRows(SSHandle grid, int row, int row2, int toRow) {
    return grid && row2 >= row && grid->swapRows(row, toRow, row2 - row + 1);
}
bool SSSwapCols(SSHandle grid, int col, int col2, int toCol) {
    return grid && col2 >= col && grid->swapCols(col, toCol, col2 - col + 1);
}
