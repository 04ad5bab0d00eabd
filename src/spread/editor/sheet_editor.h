// Editing a sheet as a user does, with every operation one step that can be undone and redone. A
// step keeps what it changed, not whole sheets. Operations are all or nothing: false leaves the
// sheet as it was, with lastError() telling the user what, where and what to do.
//
// Blocks may have -1 ends as in Grid. Texts are Windows-1252. The grid is borrowed; what changes it
// past the editor makes the history worthless: call clearHistory() after loading.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"
#include "spread/cell_changes.h"
#include "spread/control/grid.h"
#include "spread/editor/changes.h"
#include "spread/editor/clip.h"

namespace editor {

struct SortKey {
    int col = 1;
    bool ascending = true;
};

class VORMANT_API SheetEditor : public CellChangeObserver {
  public:
    explicit SheetEditor(control::Grid& grid);
    ~SheetEditor() override;

    control::Grid& grid() { return m_grid; }
    const std::string& lastError() const { return m_error; }

    // --- history ----------------------------------------------------------------------------
    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }
    /// "Undo typing", in the working language; "Undo" alone when there is nothing.
    std::string undoTitle() const;
    std::string redoTitle() const;
    bool undo();
    bool redo();
    void clearHistory();
    /// The cells of the step that was done, undone or redone last, to be shown to the user.
    const control::Block& place() const { return m_place; }
    /// The sheet is as it was at the last markSaved(), or at the start.
    bool isSaved() const { return m_undo.size() == m_savedDepth; }
    void markSaved() { m_savedDepth = m_undo.size(); }

    /// The steps taken during its scope become one, whose name is the text `title`.
    class VORMANT_API OneStep {
      public:
        OneStep(SheetEditor& editor, int title);
        ~OneStep();
        OneStep(const OneStep&) = delete;
        OneStep& operator=(const OneStep&) = delete;

      private:
        SheetEditor& m_editor;
        int m_title;
        size_t m_first;
    };

    // --- contents ---------------------------------------------------------------------------
    /// As typed: "=" begins a formula, what the cell does not take is refused.
    bool type(int col, int row, std::string_view text);
    /// The same text into every cell; references of a formula go along.
    bool typeInto(const control::Block& block, std::string_view text);
    bool clearContents(const control::Block& block);
    bool clearFormats(const control::Block& block);
    bool setNote(int col, int row, std::string_view note);
    bool setTag(int col, int row, std::string_view tag);
    bool setHeader(bool isRow, int index, std::string_view text);

    // --- clipboard --------------------------------------------------------------------------
    /// Nothing when the block lies outside.
    std::optional<Clip> copy(const control::Block& block) const;
    /// Puts a clip where `target` begins, again and again when it holds the clip several times. The
    /// sheet grows as needed.
    bool paste(const Clip& clip, const control::Block& target, PasteWhat what = PasteWhat::all);
    /// Lines of fields separated by tabs, as typed.
    bool pasteText(std::string_view text, const control::Block& target);
    /// Moves a block; formulas that read it follow.
    bool moveBlock(const control::Block& from, int col, int row);
    /// The same after cutting: `clip` was copied from this sheet and nothing changed since.
    bool pasteCut(const Clip& clip, int col, int row) { return moveBlock(clip.source(), col, row); }

    // --- filling ----------------------------------------------------------------------------
    bool fillDown(const control::Block& block);
    bool fillRight(const control::Block& block);
    /// Goes on with what stands in `source` up to the edge of `target`, which holds `source` and
    /// reaches beyond it on one side: numbers and dates in their steps, texts by the number at
    /// their end, formulas moved, all else again.
    bool fillSeries(const control::Block& source, const control::Block& target);

    // --- rows and columns -------------------------------------------------------------------
    /// New ones look like those before them.
    bool insertRows(int at, int count);
    bool insertCols(int at, int count);
    /// A sheet keeps at least one row and column.
    bool deleteRows(int at, int count);
    bool deleteCols(int at, int count);
    /// To before the row `before` (from 1 to one past the last).
    bool moveRows(int at, int count, int before);
    bool moveCols(int at, int count, int before);
    bool setRowsHidden(int first, int last, bool hidden);
    bool setColsHidden(int first, int last, bool hidden);
    /// Pixels; -1 fits the texts.
    bool setRowHeights(int first, int last, int pixels);
    bool setColWidths(int first, int last, int pixels);

    // --- sorting ----------------------------------------------------------------------------
    /// Numbers before texts, truth values and errors; empty cells last. Rows that are equal stay
    /// in order. `hasTitles`: the first row stays.
    bool sort(const control::Block& block, const std::vector<SortKey>& keys, bool hasTitles);

    // --- formats ------------------------------------------------------------------------------
    using ChangeFormat = std::function<void(control::CellFormat&)>;
    /// Any part of the formats; `title` is the number of the step's name.
    bool changeFormats(const control::Block& block, int title, const ChangeFormat& change);
    /// What stands in the cells is taken over as if it were typed into the new kind.
    bool setKind(const control::Block& block, const control::CellType& type);
    bool setDecimals(const control::Block& block, int decimals);
    bool setFontName(const control::Block& block, std::string_view name);
    bool setFontHeight(const control::Block& block, int pixels);
    bool setBold(const control::Block& block, bool on);
    bool setItalic(const control::Block& block, bool on);
    bool setUnderlined(const control::Block& block, bool on);
    /// As CellFormat::alignment.
    bool setAlignment(const control::Block& block, int alignment);
    bool setTextColour(const control::Block& block, control::Colour colour);
    bool setBackground(const control::Block& block, control::Colour colour);
    bool setLocked(const control::Block& block, bool locked);
    /// As Grid::setBorder.
    bool setBorder(const control::Block& block, int sides, int style, control::Colour colour);
    /// One cell of many; what the others hold stays there, unseen.
    bool mergeCells(const control::Block& block);
    bool unmergeCells(const control::Block& block);

    // --- changes made elsewhere, as one step --------------------------------------------------
    void begin(int titleText) override;
    void beforeChange(int col, int row) override;
    void end() override;

  private:
    struct Step {
        int title = 0;
        control::Block place;
        std::vector<std::unique_ptr<Change>> changes;
    };
    class StepScope;
    class InA1;
    class BatchGuard;

    bool refuse(std::string message);
    bool refuseCell(int text, int col, int row, std::string_view what = {});
    std::optional<control::Block> inside(const control::Block& block);
    bool isChangeable(const control::Block& block);
    template <class Kind, class... Arguments>
    Kind& add(Arguments&&... arguments);
    void keepCell(int col, int row);
    void keepBlock(const control::Block& block);
    void keepTexts(int col, int row);
    void keepTextsIn(const control::Block& block);
    void keepFormats(const control::Block& block);
    void growTo(int col, int row);
    bool enter(int col, int row, std::string_view text);
    void pushStep();
    void joinSteps(size_t first, int title);
    void exchange(Step& step, Direction direction);
    void rollBack();
    bool step(std::vector<Step>& from, std::vector<Step>& to, Direction direction);
    std::string title(int verb, const std::vector<Step>& steps) const;
    bool pasteAs(int title, const Clip& clip, const control::Block& target, PasteWhat what);
    void putClip(const Clip& clip, int col, int row, PasteWhat what);
    void followMove(const control::Block& from, int cols, int rows);
    bool changeLines(bool isRow, int first, int last, int title,
                     const std::function<bool(int index)>& change);
    bool insertLines(bool isRows, int at, int count);
    bool deleteLines(bool isRows, int at, int count);
    bool moveLines(bool isRows, int at, int count, int before);
    void lookLikeBefore(bool isRows, int at, int count);
    void fillLine(const control::Block& source, const control::Block& target, int line,
                  bool isVertical);
    bool checkSort(const control::Block& block, const std::vector<SortKey>& keys);

    control::Grid& m_grid;
    std::vector<Step> m_undo;
    std::vector<Step> m_redo;
    std::optional<Step> m_step;           // being recorded
    std::unique_ptr<BatchGuard> m_batch;  // during a step made elsewhere
    control::Block m_place;
    size_t m_savedDepth = 0;
    int m_userStyle = 0;  // Grid::referenceStyle() outside of steps
    std::string m_error;
};

}  // namespace editor
