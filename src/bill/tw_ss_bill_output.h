// A bill of materials as a spreadsheet: the rows that a bill is fed as go into the sheet of an
// editor window, pictures of the pieces below them, and the sheet is saved at the end.
//
// The output never stops a feed: rows without a sheet are dropped, and a picture that cannot be
// made leaves its row without one. A text that a column of numbers cannot take leaves its cell
// empty, but for a note with the text.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bill/vor_bill.h"
#include "bill/vor_list_output_callback.h"
#include "platform/host/ac_array.h"
#include "platform/host/transaction.h"
#include "spread/header_copies.h"
#include "spread/tw_sheet_editor_dlg.h"

class VORMANT_API TwSSBillOutput : public Vor_ListOutputCallback {
  public:
    TwSSBillOutput();
    /// Copies write into the same editor window.
    TwSSBillOutput(const TwSSBillOutput&) = default;
    TwSSBillOutput& operator=(const TwSSBillOutput&) = default;
    ~TwSSBillOutput() override = default;

    /// Opens the editor window with an empty sheet of these columns, made ready by the settings
    /// file. `file` is where the bill will be saved; `kinds` says of each column what it holds: 1
    /// whole numbers, 2 numbers with one decimal, 3 text, others what the sheet's cells are anyway.
    /// `names` and `values` are variables for page headers and footers. eFileAccessErr when there
    /// is no window.
    ErrorStatus init(Vor_String file, const Vor_StringArray& columns, const AcArray<int>& unused,
                     const AcArray<int>& kinds, const Vor_String& settings,
                     const Vor_StringArray& names, const Vor_StringArray& values);
    /// What pictures are made of; none are made unless both `bill` and `transaction` (borrowed) are
    /// given. The numbers and flags are those of createImage (core_api/bill/bill_pictures.h): row,
    /// height and width; sizes and name.
    void setVars(int row, int height, int width, bool withSizes, bool withName, Vor_Bill* bill,
                 AcTransaction* transaction);

    ErrorStatus onStartFeed() override;
    /// Trims the sheet, fits its columns, gives the page headers their variables and saves.
    /// eInvalidInput when there is no sheet. When it could not be saved wasSaved() tells, and the
    /// reason is printed. So are numbers that their columns could not take.
    ErrorStatus onEndFeed() override;
    void onAddRow(const Vor_StringArray& cells) override;
    void onAddSubTotals(const Vor_StringArray& cells, const Vor_StringArray& names, bool isTotal,
                        int rowCount) override;

    /// The sheet, for whoever shows or exports it afterwards; null without a window.
    Vor_Spread* sheet() const { return getSSPointer(); }
    /// The last feed ended with the sheet saved; else saveFailure() says why not.
    bool wasSaved() const { return m_wasSaved; }
    const std::string& saveFailure() const { return m_saveFailure; }

    /// For callers that tell the user themselves: why the sheet was not saved is not printed, nor
    /// is it saved without a picture that could be drawn, and `headers` says what of the page
    /// header and footer has to go with it.
    void leaveFailuresToCaller(HeaderFiles headers);
    /// What page headers call the bill and its file, where these are not its title and the file of
    /// init(): a title of its own, or an export of the sheet. Empty texts change nothing.
    void setNames(Vor_String title, Vor_String file);

  private:
    void addRow(const Vor_StringArray& cells, const Vor_String& imageFile);
    void setRowProperties(const int& row);
    Vor_Spread* getSSPointer() const;
    bool makesPictures() const { return m_bill && m_transaction; }
    void nextRow(Vor_Spread& spread);
    void keepRefusedNumbers(Vor_Spread& spread, const Vor_StringArray& cells);
    bool addPicture(Vor_Spread& spread, const Vor_String& imageFile);
    bool save(Vor_Spread& spread);
    void reportRefusedNumbers() const;
    void finishColumns(Vor_Spread& spread);
    void setSheetVariables(Vor_Spread& spread);

    int m_pictureRow = -1;
    int m_pictureHeight = 0;
    int m_pictureWidth = 0;
    bool m_withSizes = true;
    bool m_withName = true;
    Vor_Bill* m_bill = nullptr;
    AcTransaction* m_transaction = nullptr;
    std::shared_ptr<TwSheetEditorHolder> m_editor;
    int m_currentRow = 0;
    AcArray<int> m_columnKinds;
    Vor_String m_fileName;
    Vor_StringArray m_variableNames;
    Vor_StringArray m_variableValues;
    bool m_wasSaved = false;
    std::string m_saveFailure;
    int m_lostPictures = 0;
    std::vector<Vor_String> m_refused;  ///< the first texts that a column of numbers did not take
    int m_refusedCount = 0;
    bool m_printsFailures = true;
    HeaderFiles m_headers = HeaderFiles::whereUsable;
    Vor_String m_shownTitle;
    Vor_String m_shownFile;
};
