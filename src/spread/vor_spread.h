// One spreadsheet: the table in many dialogs, and the calculation engine of the connection
// standards. Columns and rows count from 1; headerIndex addresses the header row or column.
//
// Nothing throws or prints: an operation gives false, and changes nothing, while the spread is not
// attached, for an index outside the sheet, or when the control refuses.
#pragma once

#include <memory>

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"
#include "core_api/text/vor_string_array.h"
#include "spread/cell_changes.h"
#include "spread/t_spread.h"

class TwFindReplaceDlg;

class VORMANT_API Vor_Spread : public TSpread {
  public:
    static constexpr int headerIndex = control::headerIndex;

    Vor_Spread();
    ~Vor_Spread() override;

    /// What getCellText reads: entered data (0), formula (1), tag (2) or value (3).
    using Reading = control::Reading;

    // --- creation and layout ----------------------------------------------------------------
    /// Takes the place of item `ctrlId` of `parent`, which is destroyed. Unless `exactRect` the
    /// grid lies 5 to the left of and 20 above the item. Starts with 0 rows and columns.
    bool attach(CWnd* parent, int ctrlId, bool exactRect);
    /// A window of its own that is never shown, for engines that only calculate.
    bool attachHidden();
    bool isAttached() const { return isCreated(); }
    /// 0: a table that is read and picked from; 1: one that is typed into.
    bool setStandardLook(int mode);
    void setFontName(const Vor_String& name);
    void setFontHeight(int height);
    const Vor_String& fontName() const { return m_fontName; }
    int fontHeight() const { return m_fontHeight; }
    /// Header cells bold, body cells plain, both in the font of this object.
    bool setFonts();
    /// What autoSize() does. 0: nothing. 1: all columns alike. 2: as wide and tall as the texts.
    /// 3: the first `count` columns (the last for a negative count) share `value` percent. 4:
    /// column `count` (or headerIndex) gets `value` pixels. In 3 and 4 the others share the rest.
    bool setAutoSize(int mode, int count = 0, int value = 0);
    /// Mode 5: each listed column has its width, the others share the rest.
    bool setFixedWidths(int mode, const Vor_Array<int>& columns, const Vor_Array<int>& widths);
    bool autoSize();
    /// Width of the grid's window without its scroll bar and frame, in pixels.
    int clientWidth() const;
    static constexpr int scrollBarWidth = 17;

    // --- size -------------------------------------------------------------------------------
    int nrRows() const;
    int nrCols() const;
    /// New rows look like the last row before.
    bool setNrRows(int count);
    bool setNrCols(int count, bool copyFormat);

    // --- cells ------------------------------------------------------------------------------
    /// `text` is emptied first. False only when not attached or beyond the last column or row; an
    /// unreadable cell gives the empty text and true.
    bool getCellText(int col, int row, Vor_String& text, Reading kind) const;
    bool getCellInt(int col, int row, int& number) const;
    bool setCellInt(int col, int row, int number);
    bool getCellDouble(int col, int row, double& number) const;
    /// Written with 2 decimals.
    bool setCellDouble(int col, int row, double number);
    /// False, with `checked` untouched, when the text is neither "1" nor "0".
    bool getCheck(int col, int row, bool& checked) const;
    bool setCheck(int col, int row, bool checked);

    // --- columns and rows -------------------------------------------------------------------
    // Written from 1 to the shorter of the array and the sheet; false when a cell refuses its text,
    // with the others written. `asValue` writes through the value call instead of the data call.
    bool setColumn(int col, const Vor_StringArray& texts, bool asValue = false);
    bool getColumn(int col, Vor_StringArray& texts, Reading kind = Reading::data) const;
    bool setColumn(int col, const Vor_Array<int>& numbers);
    bool getColumn(int col, Vor_Array<int>& numbers) const;
    bool setColumn(int col, const Vor_Array<double>& numbers);
    bool getColumn(int col, Vor_Array<double>& numbers) const;
    bool setColumn(int col, const Vor_Array<bool>& checks);
    bool getColumn(int col, Vor_Array<bool>& checks) const;
    bool setRow(int row, const Vor_StringArray& texts, bool asValue = false);
    bool getRow(int row, Vor_StringArray& texts, Reading kind = Reading::data) const;
    bool setRow(int row, const Vor_Array<int>& numbers);
    bool getRow(int row, Vor_Array<int>& numbers) const;
    bool setRow(int row, const Vor_Array<double>& numbers);
    bool getRow(int row, Vor_Array<double>& numbers) const;
    bool setRow(int row, const Vor_Array<bool>& checks);
    bool getRow(int row, Vor_Array<bool>& checks) const;
    bool clearRow(int row);
    bool clearRows(int from, int to);
    bool getAllRows(Vor_Array<Vor_StringArray>& rows) const;

    // --- cell kinds -------------------------------------------------------------------------
    static constexpr int defaultTextLength = 200;
    /// Number cells take numbers from its negative to this.
    static constexpr double largestNumber = 99999999999999.0;
    bool setTextCell(const control::Block& block, int maxLength = defaultTextLength,
                     unsigned style = 0);
    bool setTextCell(int col, int row, int maxLength, unsigned style);
    bool setNumberCell(const control::Block& block, int decimals, unsigned style = 0);
    bool setNumberCell(int col, int row, int decimals, unsigned style = 0);
    bool setStaticCell(const control::Block& block);
    bool setCheckBoxCell(const control::Block& block);
    bool setComboCell(const control::Block& block, const Vor_StringArray& items, bool editable);
    bool setButtonCell(const control::Block& block, const Vor_String& text);
    /// Fails when the file does not exist. The row becomes as high as the picture, which spans to
    /// the last column. The sheet keeps a bitmap or PNG itself: the file may go afterwards.
    bool setPictureCell(int col, int row, const Vor_String& file);
    bool setIconCell(int col, int row, int resourceId, bool isIcon);
    bool setCheckBoxColumn(int col, bool border, bool spanHeader);
    bool setButtonColumn(int col, const Vor_String& text, bool spanHeader);
    bool setLock(int col, int row, bool locked);
    bool setLockRange(const control::Block& block, bool locked);
    bool isLocked(int col, int row) const;

    // --- spans ------------------------------------------------------------------------------
    /// Runs of equal, non-empty value texts in a column become one cell each.
    bool mergeEqualCells(int col);
    bool removeSpans(int col);

    // --- structure --------------------------------------------------------------------------
    bool insertRow(int row, bool askName, bool copyFormat);
    bool insertCol(int col, bool askName, bool copyFormat);
    /// The number of the new row, or 0.
    int appendRow(bool copyFormat);
    bool deleteRow(int row);
    bool deleteCol(int col);
    /// Swaps rows from..to with those at dest and makes (current column, dest) active.
    bool swapRows(int from, int to, int dest);
    bool moveRowUp();
    bool moveRowDown();
    bool copyRowFormat(int from, int to);
    bool copyColFormat(int from, int to);

    // --- selection --------------------------------------------------------------------------
    /// (1, 1), made active, when the control has no active cell.
    bool getActiveCell(int& col, int& row);
    bool setActiveCell(int col, int row);
    int currentRow();
    int currentCol();
    /// The selected block's corners, -1 for an open end; without a block the active cell as the
    /// first corner (col2 and row2 are the same cell).
    bool getSelection(int& col, int& row, int& col2, int& row2);
    bool selectBlock(int col, int row, int col2, int row2);

    // --- search -----------------------------------------------------------------------------
    bool findInRow(const Vor_String& text, bool substring, int row, int fromCol,
                   int& foundCol) const;
    bool findNext(const Vor_String& text, bool substring, int fromCol, int fromRow, int& foundCol,
                  int& foundRow) const;
    bool replaceInCell(int col, int row, const Vor_String& from, const Vor_String& to);
    /// Opens the find-and-replace window, or brings the open one to the front.
    bool showFindReplace();
    /// Null unless that window is open.
    TwFindReplaceDlg* findDialog() const;
    /// Hears of cells that are replaced (borrowed; null for none).
    void setChangeObserver(CellChangeObserver* observer) { m_changeObserver = observer; }
    CellChangeObserver* changeObserver() const { return m_changeObserver; }

    // --- menu and keys ----------------------------------------------------------------------
    enum MenuCommand {
        menuSeparator = 1,
        menuCopy,
        menuPaste,
        menuInsertRow,
        menuDeleteRow,
        menuInsertCol,
        menuDeleteCol,
        menuCheckAll,
        menuUncheckAll,
    };
    bool setMenuCommands(const Vor_Array<int>& codes);
    bool showContextMenu() override;
    /// `index` counts the entries that are no separators, from 0.
    bool runMenuCommand(int index);
    enum TabAction { tabMoves = 0, tabNotHandled = 1, tabLeavesForwards = 2, tabLeavesBackwards };
    /// What the grid does with a key; only Tab is ever handled.
    void handleTabKey(int key, int& action);
    static constexpr int tabKey = 9;
    void onCommand(int id, int code) override;

    // --- linked cells -----------------------------------------------------------------------
    /// Cells of `dependentCol` are locked where the check box in `checkCol` is off.
    bool linkCheckColumn(int checkCol, int dependentCol);
    void onCellCommand(int code, int col, int row) override;

    // --- files and formulas -----------------------------------------------------------------
    bool loadFromFile(const Vor_String& path);
    bool saveToFile(const Vor_String& path);
    /// The file that was loaded or saved last; empty before.
    const Vor_String& file() const { return m_file; }
    /// Why the last load or save failed: "file:line: what: what to do".
    const std::string& lastError() const { return grid().lastError(); }
    /// The document that was loaded last, unchanged and shared; null when it was too large to
    /// share.
    const std::shared_ptr<const control::Document>& document() const { return grid().document(); }
    bool setFormula(int col, int row, const Vor_String& text);
    bool reCalcCell(int col, int row);
    bool reCalcAll();
    bool addCustomFunction(const char* name, int minArgs, int maxArgs, SSCustomFunction callback,
                           int flags);

  protected:
    void onDestroy() override;

  private:
    bool changeRowCount(int count);
    int columnsToShare() const;
    template <class Width>
    void shareWidths(int total, int columns, Width&& ownWidth);
    void fitToTexts();
    bool askName(bool isRow, Vor_String& name);
    bool isEditable(int col, int row) const;
    control::CellAddress firstEditable() const;
    control::CellAddress lastEditable() const;
    bool checkSelection(bool checked);
    void applyLink(int row);

    Vor_String m_file;
    Vor_String m_fontName = "Tahoma";
    int m_fontHeight = 15;
    int m_autoSizeMode = 0;
    int m_autoSizeCount = 0;
    int m_autoSizeValue = 0;
    Vor_Array<int> m_fixedColumns;
    Vor_Array<int> m_fixedWidths;
    Vor_Array<int> m_menuCommands;
    int m_checkColumn = -1;
    int m_dependentColumn = -1;
    std::unique_ptr<TwFindReplaceDlg> m_findDialog;
    CellChangeObserver* m_changeObserver = nullptr;
};
