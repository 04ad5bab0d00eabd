// The grid: a sheet that calculates, with formats, headers, sizes, spans, tags, options, a
// selection and an edit mode. Columns and rows count from 1; the header row and header column are
// addressed with -32767 (or 0). Nothing here draws: views read it.
//
// Cells are read in four ways. *Value* of a number cell is its number rounded to the cell's
// decimals, without trailing zeros; *data* the text a user sees, with fixed decimals; formula
// results stay in full precision in the sheet and are rounded in these readings only. The typed
// calls (writeValue, shownValue) allocate nothing for numbers; the text calls are made from them.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/export.h"
#include "spread/control/cell_format.h"
#include "spread/control/document.h"
#include "spread/control/sheet.h"
#include "spread/control/side_tables.h"

namespace control {

/// Addresses the header row (as row) or the header column (as column).
inline constexpr int headerIndex = -32767;
constexpr bool isHeader(int index) {
    return index == headerIndex || index == 0;
}

/// Options are numbered from 0 up to this.
inline constexpr int optionCount = 64;

enum class Reading { data = 0, formula = 1, tag = 2, value = 3 };

/// The switches of SSSetBool that mean something to the grid itself; others are kept as they are.
enum class Option {
    columnHeaders = 3,
    rowHeaders = 4,
    automaticRecalculation = 7,
    repaint = 8,        ///< off while a sheet is filled
    userFormulas = 12,  ///< what a user types after "=" is a formula
    changed = 30,       ///< set by every change, cleared by whoever saved
};

/// A block of cells, both corners included. -1 as the second end means the last column or row, as
/// the first end the first one.
struct Block {
    int col1 = 1, row1 = 1;
    int col2 = 1, row2 = 1;
    bool operator==(const Block&) const = default;
};

/// A key with its modifiers, as the three clipboard actions have one.
struct ActionKey {
    int key = 0;  ///< 0 is none
    bool shift = false;
    bool ctrl = false;
    bool operator==(const ActionKey&) const = default;
};
enum class KeyAction { copy = 0, cut = 1, paste = 2 };

/// What only views act on.
struct ViewSettings {
    int appearance = 0;
    int cursorType = 0;
    int cursorStyle = 0;
    /// Where Enter goes after typing: 0 stays, 2 to the cell below, 5 to the next cell that can be
    /// typed into.
    int editEnterAction = 0;
    bool textTips = false;       ///< a text that is cut off shows whole when the mouse rests on it
    bool noteIndicators = true;  ///< a mark in the corner of cells with a note
    int textTipDelay = 0;        ///< milliseconds
    int visibleCols = 0;         ///< how much a window should show at first; 0 leaves it open
    int visibleRows = 0;
};

class VORMANT_API Grid {
  public:
    Grid();
    ~Grid();
    Grid(const Grid&) = delete;
    Grid& operator=(const Grid&) = delete;

    // --- size -------------------------------------------------------------------------------
    int cols() const { return m_cols; }
    int rows() const { return m_rows; }
    /// Up to formula::maxCols and maxRows, else false. What lies beyond is dropped; formulas that
    /// referred to it read empty cells. 0 empties the sheet.
    bool setCols(int count);
    bool setRows(int count);
    bool isInside(int col, int row) const {
        return col >= 1 && col <= m_cols && row >= 1 && row <= m_rows;
    }
    /// The cell or a header cell.
    bool isAddress(int col, int row) const {
        return (isHeader(col) || (col >= 1 && col <= m_cols)) &&
               (isHeader(row) || (row >= 1 && row <= m_rows));
    }

    // --- typed cells ------------------------------------------------------------------------
    /// Writes as the set-value call does, replacing a formula. Number cells round to their
    /// decimals (half away from zero, as written), take nothing (the cell becomes empty), texts
    /// that are a number or one of the error texts, booleans as 1 and 0, and refuse other texts
    /// and numbers outside their range. Text cells keep the text of a number. False, with the
    /// cell as it was, when refused or outside the sheet.
    bool writeValue(int col, int row, const formula::Value& value);
    /// setType and writeValue in one, for a number cell and a number that is rounded to its
    /// decimals already.
    bool writeNumber(int col, int row, const CellType& type, double number);
    /// As writeNumber, leaving the cell empty.
    bool writeEmpty(int col, int row, const CellType& type);
    /// The cell, for an engine that writes many numbers into it between two restores (setPlain);
    /// null when it is not of `type` or the sheet has formulas. Valid until cells are moved or
    /// another document is loaded.
    Cell* plainCell(int col, int row, const CellType& type);
    /// Writes a number that is rounded to the decimals of `type` into a cell that plainCell gave.
    /// False when it is out of range, or the cell holds a text, which takes writeNumber.
    static bool setPlain(Cell& cell, const CellType& type, double number) {
        if (cell.type == ValueType::text || !type.takes(number)) return false;
        cell.number = number;
        cell.type = ValueType::number;
        return true;
    }
    /// The value reading, typed. A text is borrowed until the cell changes. Empty outside.
    formula::Value shownValue(int col, int row) const;
    /// As shownValue for a value that stands in a cell of this type.
    static formula::Value shown(const CellType& type, const formula::Value& value);
    /// The value reading of such a cell as text; lies in `buffer` or in `value`.
    static std::string_view shownText(const CellType& type, const formula::Value& value,
                                      std::string& buffer);

    // --- texts ------------------------------------------------------------------------------
    /// `text` as data and as value differ only in their names: both follow writeValue. Header
    /// cells take any text.
    bool setData(int col, int row, std::string_view text);
    bool setValueText(int col, int row, std::string_view text) { return setData(col, row, text); }
    /// The text of a reading; lies in `buffer` or in the cell, until either changes. Empty for
    /// cells outside and for cells without such a text.
    std::string_view text(int col, int row, Reading reading, std::string& buffer) const;
    std::string text(int col, int row, Reading reading) const;
    bool setTag(int col, int row, std::string_view text);
    bool setNote(int col, int row, std::string_view text);
    std::string_view note(int col, int row) const;
    /// Empties value, formula, tag and note; the format stays.
    void clearCells(const Block& block);

    /// Makes a cell what it was, past what its type takes: value and format of `content` and,
    /// unless null, a formula in A1 notation whose result the value is; without a value it is
    /// calculated.
    void putCell(int col, int row, const Cell& content, const TextBlock* formula, bool isArray);

    // --- formulas ---------------------------------------------------------------------------
    /// Text without "=", in the sheet's reference style. False with the reason, and the cell as it
    /// was, when refused. The empty text removes the formula and keeps the value.
    bool setFormula(int col, int row, std::string_view text, formula::ParseError* error = nullptr);
    /// As above with a program compiled before for this very cell, inside the sheet; shares `text`.
    void setFormula(int col, int row, const formula::ProgramRef& program, TextBlock* text);
    /// What a formula of the cell would give, without putting it there (Sheet::evaluate).
    const formula::Value* evaluate(const formula::Program& program, int col, int row) {
        return m_sheet->evaluate(program, col, row);
    }
    bool recalculateCell(int col, int row) { return m_sheet->recalculateCell(col, row); }
    void recalculate() { m_sheet->recalculate(); }
    void bringUpToDate(int col, int row) { m_sheet->bringUpToDate(col, row); }
    /// Lets Cell::dirty tell of every result whether it is out of date (Sheet::propagate).
    void propagate() const { m_sheet->propagate(); }
    /// 0 and 1 are A1, 2 is R1C1.
    void setReferenceStyle(int style);
    int referenceStyle() const { return m_sides->referenceStyle; }
    /// Registered for formulas set from now on, in this grid and through every load.
    /// One of the same name that was registered before is replaced.
    void addCustomFunction(const formula::CustomFunction* function);
    const Sheet& sheet() const { return *m_sheet; }

    // --- formats ------------------------------------------------------------------------------
    const FormatTable& formats() const { return m_formats; }
    /// The format that a cell or header cell shows.
    const CellFormat& format(int col, int row) const { return m_formats[formatIndex(col, row)]; }
    FormatIndex formatIndex(int col, int row) const;
    /// Gives a block a type and leaves font, colours, border and lock. A block that covers all
    /// rows becomes the format of its columns, for rows that come later too.
    bool setType(const Block& block, const CellType& type);
    /// One cell: allocates nothing when the type was used before.
    bool setType(int col, int row, const CellType& type);
    /// Changes any part of the formats of a block.
    template <class Change>
    bool changeFormats(const Block& block, Change&& change) {
        return eachFormat(block, [&](const CellFormat& format) {
            CellFormat changed = format;
            change(changed);
            return changed;
        });
    }
    /// `sides` of BorderSide round or in the block; style 0 removes.
    bool setBorder(const Block& block, int sides, int style, Colour colour);

    // --- pictures ---------------------------------------------------------------------------
    /// Keeps the bytes of a picture file in the sheet and its documents. The name that picture
    /// cells show it by.
    std::string keepPicture(std::string bytes) {
        return control::keepPicture(changeSides().pictures, std::move(bytes));
    }
    /// The bytes; null for what is not kept here, a file's path say.
    const std::string* embeddedImage(std::string_view name) const {
        const auto found = m_sides->pictures.find(name);
        return found == m_sides->pictures.end() ? nullptr : found->second.bytes.get();
    }

    // --- sizes, spans, options --------------------------------------------------------------
    /// Pixels. The header index addresses the header column or row.
    int colWidth(int col) const;
    int rowHeight(int row) const;
    bool setColWidth(int col, int pixels);
    bool setRowHeight(int row, int pixels);
    bool setColHidden(int col, bool hidden);
    bool setRowHidden(int row, bool hidden);
    /// Pixels that the widest text of a column or the tallest of a row needs, header included.
    int fitWidth(int col) const;
    int fitHeight(int row) const;
    bool addSpan(const Span& span);
    bool removeSpan(int col, int row);
    /// The span that holds the cell, or null.
    const Span* spanAt(int col, int row) const { return m_sides->spans.at(col, row); }
    bool option(int number) const;
    bool option(Option option) const { return this->option(static_cast<int>(option)); }
    void setOption(int number, bool on);
    void setOption(Option option, bool on) { setOption(static_cast<int>(option), on); }
    const SideTables& sides() const { return *m_sides; }
    /// For colours and the like that nothing else depends on.
    SideTables& changeSides();
    /// Another number whenever the side tables may have changed, so that views follow them only
    /// then.
    uint64_t sidesRevision() const { return m_sidesRevision; }

    // --- structure --------------------------------------------------------------------------
    /// The counts stay: what is pushed over the edge is dropped, and deleting leaves blank rows at
    /// the end. References in formulas, sizes, spans, tags and headers move.
    bool insertRows(int at, int count);
    bool deleteRows(int at, int count);
    bool insertCols(int at, int count);
    bool deleteCols(int at, int count);
    /// Both groups lie inside the sheet and do not overlap, else false.
    bool swapRows(int first, int other, int count);
    bool swapCols(int first, int other, int count);
    /// Rows from..from+count-1 go where the first of them gets the number `to`, those in between
    /// move up or down; references follow. False when either place lies outside.
    bool moveRows(int from, int count, int to);
    bool moveCols(int from, int count, int to);
    /// Contents, formats and tags of a block to the place whose top left is (col, row).
    bool copyBlock(const Block& from, int col, int row);
    bool copyRowFormats(int from, int to);
    bool copyColFormats(int from, int to);

    // --- selection, editing, clipboard ------------------------------------------------------
    /// (0, 0) when no cell is active.
    CellAddress active() const { return m_active; }
    /// Takes a selection away.
    bool setActive(int col, int row);
    /// The selected block; nothing when only a cell is active.
    const std::optional<Block>& selection() const { return m_selection; }
    /// Makes its first corner active.
    bool select(const Block& block);
    void deselect() { m_selection.reset(); }
    /// Edit mode: the active cell's text being typed. False when the cell is locked or static.
    bool beginEdit();
    bool isEditing() const { return m_edit.has_value(); }
    bool setEditText(std::string_view text);
    std::string_view editText() const { return m_edit ? std::string_view(m_edit->text) : ""; }
    /// Characters selected in the text being typed, from 0.
    bool setEditSelection(int start, int length);
    std::pair<int, int> editSelection() const;
    /// Leaves edit mode. With `keep` the text is written as a user enters it; false, with edit
    /// mode on, when the cell refuses it.
    bool endEdit(bool keep);
    /// Writes what a user typed into a cell: "=" begins a formula when the option allows it,
    /// numbers become numbers in general cells too, locks and lengths are kept.
    bool enter(int col, int row, std::string_view typed);
    /// The block as tab-separated lines, and such lines written from a cell on as typed.
    std::string copyText(const Block& block) const;
    /// False when a cell refused its text; the others are written, and `entered` hears of each.
    using CellCall = std::function<void(int col, int row)>;
    bool pasteText(int col, int row, std::string_view text, const CellCall& entered = nullptr);
    void setActionKey(KeyAction action, const ActionKey& key);
    /// The action of a key, or nothing.
    std::optional<KeyAction> keyAction(const ActionKey& key) const;
    /// A block with its -1 ends filled in and cut to the sheet; nothing when it lies outside.
    std::optional<Block> resolved(const Block& block) const;

    ViewSettings& view() { return m_view; }
    const ViewSettings& view() const { return m_view; }

    // --- documents --------------------------------------------------------------------------
    /// Host-style paths. False with lastError() as "file:line: what: what to do"; after a failed
    /// load the grid is as it was, after a failed save the file.
    bool load(std::string_view path);
    bool save(std::string_view path);
    /// The data texts as tab-separated lines in Windows-1252.
    bool saveTexts(std::string_view path);
    const std::string& lastError() const { return m_lastError; }
    /// Starts a fresh copy. When the grid started from this same document before, only what was
    /// touched since is put back. Registered functions stay.
    void restore(std::shared_ptr<const Document> document);
    /// Takes a document over that nobody else needs, without copying.
    void adopt(std::shared_ptr<Document> document);
    /// What restore or adopt was given last, or null.
    const std::shared_ptr<const Document>& document() const { return m_document; }
    /// No cell was changed since document() was restored.
    bool isAsLoaded() const { return m_isAsLoaded; }
    /// How many cells were, some counted more than once; nothing when nobody has kept count, so
    /// that a restore starts from a copy of the whole document.
    std::optional<size_t> changedCells() const {
        return m_canUndo ? std::optional(m_touched.size()) : std::nullopt;
    }
    /// No cell in `firstRow` or below was. False also when nobody has kept count.
    bool isAsLoadedFrom(int firstRow) const;

  private:
    struct Edit {
        std::string text;
        int start = 0;
        int length = 0;
    };
    using ChangeFormat = std::function<CellFormat(const CellFormat&)>;
    bool eachFormat(const Block& block, const ChangeFormat& change);
    void changeHeaderFormats(Band& band, int from, int to, int count, const ChangeFormat& change);
    void changeColumnFormats(int col, const ChangeFormat& change);
    void changeCellFormats(const Block& block, const ChangeFormat& change);
    // Of a cell in column `col`; null is one that is not stored.
    FormatIndex shownFormat(const Cell* cell, int col) const {
        return cell && cell->format != inheritedFormat ? cell->format : m_sides->columnFormat(col);
    }
    FormatIndex ownFormat(const Cell* cell, int col, const CellType& type);
    void markTouched(int col, int row);
    void noteStructure();
    void dropBeyond(int lastCol, int lastRow);
    void dropCells(int lastCol, int lastRow);
    void restoreTouched();
    void addKnownFunctions();
    void startFrom(const Document& document);

    int m_cols = 0;
    int m_rows = 0;
    std::unique_ptr<Sheet> m_sheet;
    FormatTable m_formats;
    SharedSides m_sides;
    uint64_t m_sidesRevision = 0;
    std::vector<const formula::CustomFunction*> m_custom;
    std::bitset<optionCount> m_options;  // but for those that lie in m_sides
    bool m_changed = false;

    std::shared_ptr<const Document> m_document;
    std::vector<CellAddress> m_touched;  // cells changed since m_document was restored
    bool m_isAsLoaded = false;           // no cell was touched since then
    bool m_canUndo = false;              // the cells differ from m_document in m_touched alone

    CellAddress m_active;
    std::optional<Block> m_selection;
    std::optional<Edit> m_edit;
    std::array<ActionKey, 3> m_actionKeys;
    ViewSettings m_view;
    std::string m_lastError;
};

}  // namespace control
