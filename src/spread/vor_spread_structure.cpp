// Rows and columns that come, go and change places; the selection.
#include <algorithm>

#include "core_api/texts/texts.h"
#include "platform/window/text_question.h"
#include "spread/vor_spread.h"

bool Vor_Spread::askName(bool isRow, Vor_String& name) {
    constexpr int titleText = 171, labelText = 1150, promptText = 1151, rowText = 1152,
                  columnText = 1153;
    TextQuestion question;
    question.title = dialString(titleText);
    question.label = dialString(labelText);
    question.prompt = dialString(promptText) + " " + dialString(isRow ? rowText : columnText) + ":";
    question.ok = "Ok";
    std::string answer;
    if (!askText(question, CWnd::parent(), answer)) return false;
    name = answer;
    return true;
}

// What the user formatted stays: only the new row gets the font of the grid.
bool Vor_Spread::insertRow(int row, bool ask, bool copyFormat) {
    if (!isAttached() || row < 1 || row > nrRows() + 1 || !changeRowCount(nrRows() + 1))
        return false;
    if (row < nrRows()) grid().insertRows(row, 1);
    setFont({1, row, nrCols(), row}, m_fontName, m_fontHeight, 400);
    if (copyFormat) copyRowFormat(row + 1, row);
    Vor_String name;
    if (ask && askName(true, name)) setData(headerIndex, row, name);
    return true;
}

bool Vor_Spread::insertCol(int col, bool ask, bool copyFormat) {
    if (!isAttached() || col < 1 || col > nrCols() + 1 || !setMaxCols(nrCols() + 1)) return false;
    grid().insertCols(col, 1);
    setFont({col, -1, col, -1}, m_fontName, m_fontHeight, 400);
    if (copyFormat) copyColFormat(col + 1, col);
    Vor_String name;
    if (ask && askName(false, name)) setData(col, headerIndex, name);
    return true;
}

int Vor_Spread::appendRow(bool copyFormat) {
    const int row = nrRows() + 1;
    if (!isAttached() || !changeRowCount(row)) return 0;
    clearRow(row);
    setFont({1, row, nrCols(), row}, m_fontName, m_fontHeight, 400);
    if (copyFormat) copyRowFormat(row - 1, row);
    return row;
}

bool Vor_Spread::deleteRow(int row) {
    return isAttached() && grid().deleteRows(row, 1) && setMaxRows(nrRows() - 1);
}

bool Vor_Spread::deleteCol(int col) {
    return isAttached() && grid().deleteCols(col, 1) && setMaxCols(nrCols() - 1);
}

bool Vor_Spread::swapRows(int from, int to, int dest) {
    if (!isAttached() || dest < 1 || dest > nrRows()) return false;
    const int col = currentCol();
    if (!SSSwapRows(handle(), from, to, dest)) return false;
    setActiveCell(std::max(col, 1), dest);
    return true;
}

bool Vor_Spread::moveRowUp() {
    const int row = currentRow();
    return swapRows(row, row, row - 1);
}

bool Vor_Spread::moveRowDown() {
    const int row = currentRow();
    return swapRows(row, row, row + 1);
}

bool Vor_Spread::copyRowFormat(int from, int to) {
    return isAttached() && grid().copyRowFormats(from, to);
}

bool Vor_Spread::copyColFormat(int from, int to) {
    return isAttached() && grid().copyColFormats(from, to);
}

bool Vor_Spread::getActiveCell(int& col, int& row) {
    if (!isAttached()) return false;
    if (SSGetActiveCell(handle(), col, row)) return true;
    col = row = 1;
    setActiveCell(col, row);
    return true;
}

bool Vor_Spread::setActiveCell(int col, int row) {
    return isAttached() && SSSetActiveCell(handle(), col, row);
}

int Vor_Spread::currentRow() {
    int col = 0, row = 0, col2 = 0, row2 = 0;
    return getSelection(col, row, col2, row2) ? row : 0;
}

int Vor_Spread::currentCol() {
    int col = 0, row = 0, col2 = 0, row2 = 0;
    return getSelection(col, row, col2, row2) ? col : 0;
}

bool Vor_Spread::getSelection(int& col, int& row, int& col2, int& row2) {
    if (!isAttached()) return false;
    if (SSGetSelBlock(handle(), col, row, col2, row2)) return true;
    getActiveCell(col, row);
    col2 = col;
    row2 = row;
    return true;
}

bool Vor_Spread::selectBlock(int col, int row, int col2, int row2) {
    return isAttached() && SSSetSelBlock(handle(), col, row, col2, row2);
}
