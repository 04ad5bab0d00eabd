#include "sections/dialogs/table_sheet.h"

#include <algorithm>

#include "core_api/text/delimited_text.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "core_api/texts/texts.h"
#include "platform/window/message_box.h"
#include "platform/window/window_system.h"
#include "sections/dialogs/section_dialog_words.h"

using OneStep = editor::SheetEditor::OneStep;

namespace {

constexpr int changed = static_cast<int>(control::Option::changed);
constexpr int corner = 0;

/// The most fields in a line.
int fieldsOf(std::string_view text) {
    size_t most = 0;
    DelimitedText lines(text, '\t');
    for (std::vector<std::string> fields; lines.next(fields);) most = std::max(most, fields.size());
    return static_cast<int>(most);
}

}  // namespace

void TableSheet::showTable(const Vor_ProfValuesTable& table, const Vor_String& drawnAs) {
    table.setToSS(*this);
    keepTexts();
    grid().setTag(corner, corner, drawnAs);
    editor().clearHistory();
    setSaved();
    if (nrRows() > 0) setActiveCell(1, 1);
}

// What is typed stays as it is typed ("050"); new rows and columns are like the others.
void TableSheet::keepTexts() {
    constexpr int longest = 32767;
    setTextCell({1, -1, -1, -1}, longest);
    setCheckBoxCell({activeSheetColumn, -1, activeSheetColumn, -1});
}

void TableSheet::setUnsaved() {
    m_isUnsaved = true;
    setBool(changed, true);
}

void TableSheet::setSaved() {
    m_isUnsaved = false;
    editor().markSaved();
    setBool(changed, false);
}

bool TableSheet::isChanged() const {
    return getBool(changed);
}

// --- undo ---------------------------------------------------------------------------------------

// Back at what was saved last, there is nothing to save.
void TableSheet::followHistory() {
    setBool(changed, m_isUnsaved || !editor().isSaved());
    const control::Block& place = editor().place();
    if (nrRows() > 0 && nrCols() > 0)
        setActiveCell(std::clamp(place.col1, 1, nrCols()), std::clamp(place.row1, 1, nrRows()));
}

void TableSheet::end() {
    editor().end();
    notifyListener(GridNotice::What::changed, currentCol(), currentRow());
}

bool TableSheet::undo() {
    if (!editor().undo()) return false;
    followHistory();
    return true;
}

bool TableSheet::redo() {
    if (!editor().redo()) return false;
    followHistory();
    return true;
}

// --- rows ---------------------------------------------------------------------------------------

/// Rows that are new are sizes in use, called as the others are.
void TableSheet::prepareRows(int first, int last) {
    Vor_String name;
    getCellText(headerIndex, first > 1 ? 1 : last + 1, name, Reading::data);
    for (int row = first; row <= last; ++row) {
        if (grid().text(activeSheetColumn, row, control::Reading::value).empty())
            editor().type(activeSheetColumn, row, "1");
        editor().setHeader(true, row, name);
    }
}

bool TableSheet::addRow(int before) {
    const OneStep step(editor(), texts::stepInsertRows);
    if (!editor().insertRows(before, 1)) return false;
    prepareRows(before, before);
    return setActiveCell(1, before);
}

bool TableSheet::removeRows() {
    const control::Block rows = chosen();
    if (!editor().deleteRows(rows.row1, rows.row2 - rows.row1 + 1)) return false;
    setActiveCell(std::max(currentCol(), 1), std::min(rows.row1, nrRows()));
    return true;
}

bool TableSheet::moveRow(int by) {
    const int row = currentRow(), to = row + by, col = std::max(currentCol(), 1);
    if (to < 1 || to > nrRows()) return false;
    if (!editor().moveRows(row, 1, by > 0 ? to + 1 : to)) return false;
    setActiveCell(col, to);
    return true;
}

bool TableSheet::nameRows(const Vor_String& table) {
    const OneStep step(editor(), texts::stepHeader);
    for (int row = 1; row <= nrRows(); ++row)
        if (!editor().setHeader(true, row, table)) return false;
    return true;
}

// --- columns ------------------------------------------------------------------------------------

Vor_StringArray TableSheet::header() const {
    Vor_StringArray names;
    getRow(headerIndex, names);
    return names;
}

Vor_StringArray TableSheet::languageHeader() const {
    Vor_ProfValuesTable table;
    table.columnNames = header();
    const int count = std::min(table.firstValueColumn(), table.columnNames.length());
    table.columnNames.setLength(count);
    return table.columnNames;
}

bool TableSheet::setTemplate(const Vor_String& drawnAs, const Vor_StringArray& header,
                             bool narrows) {
    const OneStep step(editor(), wordSectionType);
    editor().setTag(corner, corner, drawnAs);
    const int missing = header.length() - nrCols();
    if (missing > 0 && !editor().insertCols(nrCols() + 1, missing)) return false;
    for (int i = 0; i < header.length(); ++i) editor().setHeader(false, i + 1, header[i]);
    return missing >= 0 || !narrows || editor().deleteCols(header.length() + 1, -missing);
}

Vor_String TableSheet::drawnAs() const {
    Vor_String text;
    getCellTag(corner, corner, text);
    return text;
}

bool TableSheet::goToSize(const Vor_String& table, std::string_view fullName) {
    for (int row = 1; row <= nrRows(); ++row) {
        const Vor_String name = grid().text(1, row, control::Reading::data);
        if ((table + "-" + name).equal(fullName)) return setActiveCell(1, row);
    }
    return false;
}

// --- what a user does ---------------------------------------------------------------------------

bool TableSheet::paste() {
    const control::Block block = chosen();
    return userPastes(block.col1, block.row1, WindowSystem::current().clipboardText());
}

bool TableSheet::userPastes(int col, int row, std::string_view text) {
    if (fieldsOf(text) > nrCols() - col + 1) {
        showWarning(dialString(wordPasteCells).str(), dialString(wordTooManyFields).str());
        return true;  // the user was told
    }
    const int before = nrRows();
    const OneStep step(editor(), texts::stepPaste);
    if (!EditedSpread::userPastes(col, row, text)) return false;
    prepareRows(before + 1, nrRows());
    return true;
}

bool TableSheet::userSizesCol(int col, int pixels) {
    const bool before = isChanged();
    const bool isDone = Vor_Spread::userSizesCol(col, pixels);
    setBool(changed, before);
    return isDone;
}

bool TableSheet::userSizesRow(int row, int pixels) {
    const bool before = isChanged();
    const bool isDone = Vor_Spread::userSizesRow(row, pixels);
    setBool(changed, before);
    return isDone;
}
