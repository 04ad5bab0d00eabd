// The control's call interface: every call passes the grid's handle first; cells are (column, row)
// from 1, -32767 addresses the header row (as row) or the header column (as column), and -1 for
// both ends of a direction all of it. Calls are false (or 0) for a null handle, an address outside
// the sheet, or a refused value, with nothing changed. Reading a text asks its length first and
// then fills a buffer of length + 1 bytes. Colours are 0x00BBGGRR.
#pragma once

#include <cstdint>

#include "core_api/text/vor_string.h"
#include "platform/export.h"

namespace control {
class Grid;
struct CellType;
}  // namespace control

using SSHandle = control::Grid*;

inline constexpr int ssHeader = -32767;
inline constexpr int ssAll = -1;

// --- values of custom functions ---------------------------------------------------------------

/// A text in a movable block, as custom functions pass it.
struct SSTextBlock;

enum SSStatus : short { ssValid = 0, ssFailed = 1, ssEmpty = 2 };
enum SSKind : short { ssWhole = 0, ssDouble = 1, ssText = 2, ssCell = 3, ssRange = 4 };

struct SSValue {
    short status = ssEmpty;
    short kind = ssWhole;
    union {
        int32_t whole;
        double number = 0;
        SSTextBlock* text;  ///< owned; see getGlobalStr
        struct {
            int32_t col, row;
        } cell;
        struct {
            int32_t col1, row1, col2, row2;
        } range;
    };
};

/// Computes `result` (empty at first) from `count` arguments; non-zero when done. 0 gives #VALUE!
/// in the formula; a result that stays empty gives the empty text.
using SSCustomFunction = int (*)(SSValue* result, SSValue* arguments, short count);

/// Takes the text out of its block and frees it; `block` is null afterwards. False, with `text`
/// empty, when there is no block.
VORMANT_API bool getGlobalStr(SSTextBlock*& block, Vor_String& text);
/// A new block holding `text`. Owned by the value it is put into.
VORMANT_API SSTextBlock* setGlobalStr(const Vor_String& text);

/// Registers a function for formulas set from now on. Flags 1: cell arguments arrive as cells and
/// ranges; flags 0: as values. Text argument blocks that the callback did not take are freed.
VORMANT_API bool SSAddCustomFunctionExt(SSHandle grid, const char* name, int least, int most,
                                        SSCustomFunction callback, int flags);

// --- size -------------------------------------------------------------------------------------
VORMANT_API int SSGetMaxRows(SSHandle grid);
VORMANT_API int SSGetMaxCols(SSHandle grid);
VORMANT_API bool SSSetMaxRows(SSHandle grid, int count);
VORMANT_API bool SSSetMaxCols(SSHandle grid, int count);

// --- cell text --------------------------------------------------------------------------------
VORMANT_API bool SSSetData(SSHandle grid, int col, int row, const char* text);
VORMANT_API int SSGetDataLen(SSHandle grid, int col, int row);
VORMANT_API bool SSGetData(SSHandle grid, int col, int row, char* buffer);
VORMANT_API bool SSSetValue(SSHandle grid, int col, int row, const char* text);
VORMANT_API int SSGetValueLen(SSHandle grid, int col, int row);
VORMANT_API bool SSGetValue(SSHandle grid, int col, int row, char* buffer);
VORMANT_API int SSGetFormulaLen(SSHandle grid, int col, int row);
VORMANT_API bool SSGetFormula(SSHandle grid, int col, int row, char* buffer);
VORMANT_API bool SSSetCellTag(SSHandle grid, int col, int row, const char* text);
VORMANT_API int SSGetCellTagLen(SSHandle grid, int col, int row);
VORMANT_API bool SSGetCellTag(SSHandle grid, int col, int row, char* buffer);
VORMANT_API bool SSSetCellNote(SSHandle grid, int col, int row, const char* text);
VORMANT_API int SSGetCellNoteLen(SSHandle grid, int col, int row);
VORMANT_API bool SSGetCellNote(SSHandle grid, int col, int row, char* buffer);
VORMANT_API bool SSSetFloat(SSHandle grid, int col, int row, double number);
/// False, with `number` untouched, when the cell's value is neither a number nor reads as one.
VORMANT_API bool SSGetFloat(SSHandle grid, int col, int row, double& number);
/// A control::CellKind; number cells without decimals report wholeNumber.
VORMANT_API int SSGetCellType(SSHandle grid, int col, int row);
VORMANT_API bool SSClearRange(SSHandle grid, int col, int row, int col2, int row2);

// --- formulas ---------------------------------------------------------------------------------
/// False, with the cell as it was, when the text does not compile. The empty text removes the
/// formula and keeps its value.
VORMANT_API bool SSSetFormula(SSHandle grid, int col, int row, const char* text);
VORMANT_API bool SSReCalcCell(SSHandle grid, int col, int row);
VORMANT_API bool SSReCalc(SSHandle grid);
/// 0 default and 1: A1; 2: R1C1. False for others.
VORMANT_API bool SSSetRefStyle(SSHandle grid, int style);
VORMANT_API int SSGetRefStyle(SSHandle grid);

// --- files ------------------------------------------------------------------------------------
/// 1 is success. On failure the sheet is as it was, and SSLastError says why.
VORMANT_API int SSLoadFromFile(SSHandle grid, const char* path);
/// `dataOnly`: the texts that a user sees, tab-separated, instead of the document.
VORMANT_API int SSSaveToFile(SSHandle grid, const char* path, bool dataOnly);
/// "file:line: what: what to do" of this grid's last failed load or save; empty after a good one.
VORMANT_API const char* SSLastError(SSHandle grid);

// --- cell kinds: a type is made, then given to cells ---------------------------------------------
using SSCellType = control::CellType;
VORMANT_API bool SSSetTypeEdit(SSHandle grid, SSCellType& type, uint32_t style, int maxLength);
VORMANT_API bool SSSetTypeNumber(SSHandle grid, SSCellType& type, int decimals, double least,
                                 double most, uint32_t style);
VORMANT_API bool SSSetTypeStaticText(SSHandle grid, SSCellType& type, uint32_t style);
VORMANT_API bool SSSetTypeCheckBox(SSHandle grid, SSCellType& type, uint32_t style,
                                   int checkedPicture, int uncheckedPicture);
/// `items` are separated by tabs.
VORMANT_API bool SSSetTypeComboBox(SSHandle grid, SSCellType& type, const char* items,
                                   bool editable);
VORMANT_API bool SSSetTypeButton(SSHandle grid, SSCellType& type, const char* text, uint32_t style);
VORMANT_API bool SSSetTypePicture(SSHandle grid, SSCellType& type, const char* path,
                                  uint32_t style);
VORMANT_API bool SSSetTypePictureHandle(SSHandle grid, SSCellType& type, int resource, bool isIcon);
VORMANT_API bool SSSetCellType(SSHandle grid, int col, int row, const SSCellType& type);
VORMANT_API bool SSSetCellTypeRange(SSHandle grid, int col, int row, int col2, int row2,
                                    const SSCellType& type);

// --- spans and locks --------------------------------------------------------------------------
VORMANT_API bool SSAddCellSpan(SSHandle grid, int col, int row, int cols, int rows);
/// 0 no span, 1 the anchor of one, 2 inside one; the outputs are set for 1 and 2.
VORMANT_API int SSGetCellSpan(SSHandle grid, int col, int row, int& anchorCol, int& anchorRow,
                              int& cols, int& rows);
VORMANT_API bool SSRemoveCellSpan(SSHandle grid, int col, int row);
VORMANT_API bool SSSetLock(SSHandle grid, int col, int row, bool locked);
VORMANT_API bool SSSetLockRange(SSHandle grid, int col, int row, int col2, int row2, bool locked);
VORMANT_API bool SSGetLock(SSHandle grid, int col, int row);

// --- format -------------------------------------------------------------------------------------
/// Widths in units of an average character (8 pixels), heights in points (3/4 pixel).
VORMANT_API bool SSSetColWidth(SSHandle grid, int col, double units);
VORMANT_API bool SSGetColWidth(SSHandle grid, int col, double& units);
VORMANT_API bool SSSetRowHeight(SSHandle grid, int row, double points);
VORMANT_API bool SSGetRowHeight(SSHandle grid, int row, double& points);
VORMANT_API bool SSSetColWidthInPixels(SSHandle grid, int col, int pixels);
VORMANT_API bool SSGetColWidthInPixels(SSHandle grid, int col, int& pixels);
VORMANT_API bool SSSetRowHeightInPixels(SSHandle grid, int row, int pixels);
VORMANT_API bool SSGetRowHeightInPixels(SSHandle grid, int row, int& pixels);
/// Pixels that the widest text of a column, or the tallest of a row, needs.
VORMANT_API bool SSGetMaxTextColWidth(SSHandle grid, int col, int& pixels);
VORMANT_API bool SSGetMaxTextRowHeight(SSHandle grid, int row, int& pixels);
VORMANT_API bool SSSetFont(SSHandle grid, int col, int row, int col2, int row2, const char* name,
                           int height, int weight);
VORMANT_API bool SSSetColor(SSHandle grid, int col, int row, int col2, int row2,
                            uint32_t background, uint32_t text);
/// Sides: 1 left, 2 right, 4 top, 8 bottom, 16 outline of the block, added up.
VORMANT_API bool SSSetBorder(SSHandle grid, int col, int row, int col2, int row2, int sides,
                             int style, uint32_t colour);
VORMANT_API bool SSSetGridType(SSHandle grid, int type);
VORMANT_API bool SSSetGridColor(SSHandle grid, uint32_t colour);
VORMANT_API bool SSSetGrayAreaColor(SSHandle grid, uint32_t colour);
VORMANT_API bool SSSetLockColor(SSHandle grid, uint32_t colour);
VORMANT_API bool SSSetSelColor(SSHandle grid, uint32_t background, uint32_t text);
VORMANT_API bool SSSetBool(SSHandle grid, int option, bool on);
VORMANT_API bool SSGetBool(SSHandle grid, int option);

// --- selection, editing -----------------------------------------------------------------------
VORMANT_API bool SSGetActiveCell(SSHandle grid, int& col, int& row);
VORMANT_API bool SSSetActiveCell(SSHandle grid, int col, int row);
VORMANT_API bool SSGetSelBlock(SSHandle grid, int& col, int& row, int& col2, int& row2);
VORMANT_API bool SSSetSelBlock(SSHandle grid, int col, int row, int col2, int row2);
VORMANT_API bool SSClearSelection(SSHandle grid);
VORMANT_API bool SSSetEditMode(SSHandle grid, bool on);
VORMANT_API bool SSGetEditMode(SSHandle grid);
VORMANT_API bool SSSetEditSel(SSHandle grid, int start, int length);
VORMANT_API bool SSGetEditSel(SSHandle grid, int& start, int& length);
VORMANT_API bool SSClipboardCopy(SSHandle grid);
VORMANT_API bool SSClipboardPaste(SSHandle grid);
/// `action`: 0 copy, 1 cut, 2 paste; key 0 clears it.
VORMANT_API bool SSSetActionKey(SSHandle grid, int action, bool shift, bool ctrl, int key);

// --- structure --------------------------------------------------------------------------------
VORMANT_API bool SSInsRow(SSHandle grid, int row, int count = 1);
VORMANT_API bool SSInsCol(SSHandle grid, int col, int count = 1);
VORMANT_API bool SSDelRow(SSHandle grid, int row, int count = 1);
VORMANT_API bool SSDelCol(SSHandle grid, int col, int count = 1);
VORMANT_API bool SSCopyRange(SSHandle grid, int col, int row, int col2, int row2, int toCol,
                             int toRow);
VORMANT_API bool SSSwapRows(SSHandle grid, int row, int row2, int toRow);
VORMANT_API bool SSSwapCols(SSHandle grid, int col, int col2, int toCol);
