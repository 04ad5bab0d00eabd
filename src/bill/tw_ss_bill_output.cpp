#include "bill/tw_ss_bill_output.h"

#include <algorithm>

#include "bill/bill_pictures.h"
#include "bill/bill_title.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/bill_text_numbers.h"
#include "core_api/texts/date_text.h"
#include "core_api/texts/texts.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/host/host.h"
#include "spread/control/formula/lexer.h"
#include "spread/sheet_preparation.h"
#include "spread/tw_sheet_settings.h"

namespace {

enum ColumnKind { wholeNumbers = 1, oneDecimal = 2, anyText = 3 };

constexpr int linesOfBills = 7;  // grid type
constexpr control::Colour lineColour = control::rgb(50, 50, 50);
constexpr int rowsToGrow = 100;
constexpr int initHeadroom = 20;  // pixels round a picture
constexpr unsigned secondNumberStyle = 1;
constexpr int textLength = 200;
constexpr int pictureColumn = 2;  // unless there is only one
constexpr size_t mostReported = 3;
constexpr int pictureMark = 251;  // bitmap resource
constexpr int subtotalSides = 31, subtotalStyle = 1;
constexpr control::Colour subtotalColour = control::rgb(164, 208, 255);

void putInFront(Vor_StringArray& texts, const Vor_StringArray& front) {
    Vor_StringArray all = front;
    all.appendAll(texts);
    texts = std::move(all);
}

}  // namespace

TwSSBillOutput::TwSSBillOutput() : m_editor(std::make_shared<TwSheetEditorHolder>()) {}

Vor_Spread* TwSSBillOutput::getSSPointer() const {
    return m_editor ? m_editor->spread() : nullptr;
}

ErrorStatus TwSSBillOutput::init(Vor_String file, const Vor_StringArray& columns,
                                 const AcArray<int>& /*unused*/, const AcArray<int>& kinds,
                                 const Vor_String& settings, const Vor_StringArray& names,
                                 const Vor_StringArray& values) {
    if (!m_editor || !m_editor->open()) return Acad::eFileAccessErr;
    Vor_Spread* spread = getSSPointer();
    if (!spread) return Acad::eFileAccessErr;
    m_fileName = std::move(file);
    spread->setNrRows(0);  // the window may show an earlier bill
    spread->grid().changeSides().pictures.clear();
    m_currentRow = 0;
    m_wasSaved = false;
    m_saveFailure.clear();
    m_lostPictures = m_refusedCount = 0;
    m_refused.clear();
    prepareSheet(*spread, settings, true);
    TwSheetSettings read;
    read.readFromFile(settings);
    spread->setFontName(read.defaultFont);
    spread->setFontHeight(read.defaultTextHeight);
    spread->setFonts();
    spread->setGridType(linesOfBills);
    spread->setGridColour(lineColour);
    m_variableNames = names;
    m_variableValues = values;
    spread->setNrCols(columns.length(), true);
    for (int i = 0; i < columns.length(); ++i)
        spread->setData(i + 1, Vor_Spread::headerIndex, columns[i]);
    m_columnKinds = kinds;
    return Acad::eOk;
}

void TwSSBillOutput::setVars(int row, int height, int width, bool withSizes, bool withName,
                             Vor_Bill* bill, AcTransaction* transaction) {
    m_pictureRow = row;
    m_pictureHeight = height;
    m_pictureWidth = width;
    m_withSizes = withSizes;
    m_withName = withName;
    m_bill = bill;
    m_transaction = transaction;
}

void TwSSBillOutput::leaveFailuresToCaller(HeaderFiles headers) {
    m_printsFailures = false;
    m_headers = headers;
}

void TwSSBillOutput::setNames(Vor_String title, Vor_String file) {
    m_shownTitle = std::move(title);
    m_shownFile = std::move(file);
}

ErrorStatus TwSSBillOutput::onStartFeed() {
    if (makesPictures() && initBMPDialog(m_pictureHeight + initHeadroom) != Acad::eOk)
        ++m_lostPictures;
    return Acad::eOk;
}

// --- rows ---------------------------------------------------------------------------------------

// The sheet grows by many rows at a time and is trimmed at the end. The new rows are empty: they do
// not take the look of the row before, which may be a subtotal or a picture.
void TwSSBillOutput::nextRow(Vor_Spread& spread) {
    ++m_currentRow;
    if (m_currentRow > spread.nrRows()) spread.setMaxRows(m_currentRow + rowsToGrow);
}

void TwSSBillOutput::setRowProperties(const int& row) {
    Vor_Spread& spread = *getSSPointer();
    const int count = std::min(spread.nrCols(), m_columnKinds.length());
    for (int col = 1; col <= count; ++col) {
        switch (m_columnKinds[col - 1]) {
            case wholeNumbers:
                spread.setNumberCell(col, row, 0, secondNumberStyle);
                break;
            case oneDecimal:
                spread.setNumberCell(col, row, 1, secondNumberStyle);
                break;
            case anyText:
                spread.setTextCell(col, row, textLength, 0);
                break;
            default:
                break;
        }
    }
    for (int col = 1; col <= count; ++col) {
        if (spread.grid().format(col, row).borderSides != 0)
            spread.setBorder({col, row, col, row}, subtotalSides, 0);
        spread.removeCellSpan(col, row);
    }
    const int height = spread.grid().fitHeight(row);
    if (height != spread.rowHeightInPixels(row)) spread.setRowHeightInPixels(row, height);
}

void TwSSBillOutput::addRow(const Vor_StringArray& cells, const Vor_String& imageFile) {
    Vor_Spread* spread = getSSPointer();
    if (!spread) return;
    if (cells.length() > spread->nrCols()) spread->setNrCols(cells.length(), true);
    nextRow(*spread);
    setRowProperties(m_currentRow);
    spread->setRow(m_currentRow, cells, true);
    keepRefusedNumbers(*spread, cells);
    if (!imageFile.isEmpty() && !addPicture(*spread, imageFile)) ++m_lostPictures;
}

void TwSSBillOutput::keepRefusedNumbers(Vor_Spread& spread, const Vor_StringArray& cells) {
    std::string buffer;
    const int count = std::min(cells.length(), m_columnKinds.length());
    for (int col = 1; col <= count; ++col) {
        const int kind = m_columnKinds[col - 1];
        const bool isNumber = kind == wholeNumbers || kind == oneDecimal;
        if (!isNumber || trimmed(cells[col - 1]).empty() ||
            !spread.grid().text(col, m_currentRow, control::Reading::value, buffer).empty())
            continue;
        spread.grid().setNote(col, m_currentRow, cells[col - 1]);
        if (++m_refusedCount > static_cast<int>(mostReported)) continue;
        Vor_String line = dialString(texts::billRefusedNumber);
        line.replaceSubString("%1", std::to_string(m_currentRow));
        line.replaceSubString("%2", formula::columnLetters(col));
        line.replaceSubString("%3", cells[col - 1]);
        m_refused.push_back(line);
    }
}

void TwSSBillOutput::reportRefusedNumbers() const {
    for (const Vor_String& line : m_refused) acutPrint(line + "\n");
    const int others = m_refusedCount - static_cast<int>(m_refused.size());
    if (others == 0) return;
    Vor_String line = dialString(texts::billMoreRefused);
    line.replaceSubString("%1", std::to_string(others));
    acutPrint(line + "\n");
}

bool TwSSBillOutput::addPicture(Vor_Spread& spread, const Vor_String& imageFile) {
    if (!files::exists(imageFile)) return false;
    nextRow(spread);
    const int col = std::min(pictureColumn, spread.nrCols());
    const bool isSet = spread.setPictureCell(col, m_currentRow, imageFile);
    if (col > 1) spread.setIconCell(1, m_currentRow, pictureMark, false);
    // Its file goes: what the sheet does not keep is lost.
    const control::Grid& grid = spread.grid();
    return isSet && grid.embeddedImage(grid.format(col, m_currentRow).type.text);
}

void TwSSBillOutput::onAddRow(const Vor_StringArray& cells) {
    if (!makesPictures()) return addRow(cells, {});
    Vor_String file = nextPictureFile();
    const ErrorStatus made = createImage(m_pictureRow, m_pictureHeight, m_pictureWidth, m_withSizes,
                                         m_withName, m_bill, m_transaction, file);
    if (made == Acad::eFileAccessErr) ++m_lostPictures;
    if (made != Acad::eOk) file.clear();
    addRow(cells, file);
    std::string ignored;
    if (!file.isEmpty()) files::removeFile(file, ignored);
}

void TwSSBillOutput::onAddSubTotals(const Vor_StringArray& cells, const Vor_StringArray& /*names*/,
                                    bool /*isTotal*/, int /*rowCount*/) {
    addRow(cells, {});
    Vor_Spread* spread = getSSPointer();
    if (!spread) return;
    std::string buffer;
    for (int col = 1; col <= spread->nrCols(); ++col) {
        if (spread->grid().text(col, m_currentRow, control::Reading::value, buffer).empty())
            continue;
        const control::Block cell{col, m_currentRow, col, m_currentRow};
        spread->setBorder(cell, subtotalSides, subtotalStyle);
        spread->setColour(cell, subtotalColour);
    }
}

// --- the end ------------------------------------------------------------------------------------

void TwSSBillOutput::finishColumns(Vor_Spread& spread) {
    constexpr int header = Vor_Spread::headerIndex;
    spread.setStaticCell({-1, header, -1, header});
    for (int col = 1; col <= spread.nrCols(); ++col)
        spread.setColWidthInPixels(col, spread.grid().fitWidth(col));
    // Its pictures have no other column to reach into.
    if (spread.nrCols() < pictureColumn && m_pictureWidth > spread.colWidthInPixels(1))
        spread.setColWidthInPixels(1, m_pictureWidth);
}

void TwSSBillOutput::setSheetVariables(Vor_Spread& spread) {
    putInFront(m_variableNames, {"Date", "Title", "BillFilename"});
    const Vor_String title = m_shownTitle.isEmpty() ? billTitle(m_fileName) : m_shownTitle;
    const Vor_String file = m_shownFile.isEmpty() ? m_fileName : m_shownFile;
    putInFront(m_variableValues, {dateText(platform::calendarTime()), title, file});
    setVariables(spread, m_variableNames, m_variableValues);
}

bool TwSSBillOutput::save(Vor_Spread& spread) {
    if (m_lostPictures > 0 && !m_printsFailures) {
        m_saveFailure = dialString(texts::billLostPictures).str();
        return false;
    }
    return saveSheet(spread, m_fileName, m_headers, m_saveFailure);
}

ErrorStatus TwSSBillOutput::onEndFeed() {
    if (makesPictures()) closeBMPDialog();
    Vor_Spread* spread = getSSPointer();
    if (!spread) return Acad::eInvalidInput;
    if (m_currentRow < spread->nrRows()) spread->setMaxRows(m_currentRow);
    finishColumns(*spread);
    setSheetVariables(*spread);
    m_wasSaved = save(*spread);
    if (!m_wasSaved && m_printsFailures) acutPrint(m_saveFailure + "\n");
    reportRefusedNumbers();
    return Acad::eOk;
}
