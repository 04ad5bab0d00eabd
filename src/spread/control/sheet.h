// A sheet of cells that calculates: values, formulas, and who depends on whom. It knows nothing of
// formats, files or windows; grid.h adds those.
//
// Changes are noted, not followed, until somebody needs to know (settle): with automatic
// recalculation off, a thousand written cells cost a thousand notes. A formula that meets a dirty
// formula while being calculated stops, lets that one go first and starts again, so that chains of
// any length are calculated without recursion and a good order, once found, is kept.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core_api/text/text_index.h"
#include "platform/export.h"
#include "spread/control/dependents.h"
#include "spread/control/formula/calculation.h"
#include "spread/control/formula/cells.h"
#include "spread/control/formula/evaluator.h"
#include "spread/control/formula/parser.h"
#include "spread/control/formula/program.h"

namespace control {

/// A registered function, interned for the whole process: registering the same one again, in any
/// sheet, gives the same pointer, so programs that call it can be shared.
VORMANT_API const formula::CustomFunction* internCustomFunction(formula::CustomFunction function,
                                                                const void* identity);

class VORMANT_API Sheet final : public formula::FormulaTexts {
  public:
    Sheet();
    Sheet(const Sheet& other);
    Sheet& operator=(const Sheet& other);
    ~Sheet();

    const CellStore& cells() const { return m_cells; }
    Value value(int col, int row) const { return m_cells.value(col, row); }
    const Cell* find(int col, int row) const { return m_cells.find(col, row); }
    uint16_t format(int col, int row) const;

    /// Writes a plain value; a formula in the cell is removed. Texts are copied.
    void setValue(int col, int row, const Value& value);
    /// The cell, for writing numbers into it past all bookkeeping; null when it is not there or
    /// the sheet has formulas, which would not hear of it. Valid until cells are moved or cleared.
    Cell* plainCell(int col, int row) {
        return m_liveFormulas == 0 ? m_cells.find(col, row) : nullptr;
    }
    /// setValue and setFormat in one.
    void put(int col, int row, const Value& value, uint16_t format);
    void setFormat(int col, int row, uint16_t format) { m_cells.obtain(col, row).format = format; }
    /// Makes the cell what `from` is, a cell of any sheet that has no formula: value (its text is
    /// shared, not copied) and format. A formula in the cell is removed.
    void putBack(int col, int row, const Cell& from);
    /// Empties the cell: value, formula and format.
    void clearCell(int col, int row);
    void clear();

    /// Compiles `text` (without "=", letter case and blanks kept for reading back), puts it into
    /// the cell and calculates it. False with the reason, and nothing changed, when refused.
    bool setFormula(int col, int row, std::string_view text, formula::ParseError& error);
    /// As above with a program compiled before for this very cell.
    void setFormula(int col, int row, const formula::ProgramRef& program, TextBlock* text);
    /// What `program` gives as a formula of the cell, without putting it there; it lives until the
    /// next calculation. Null when it reads formulas that have to be calculated first.
    const Value* evaluate(const formula::Program& program, int col, int row) {
        m_calculation.endCalculation();
        return m_evaluator.run(program, col, row);
    }
    /// As setFormula for a document that is being loaded: calculated later, or `cached` kept as its
    /// value. A text that does not compile (its function may be registered later) is kept too; the
    /// cell shows #NAME?.
    void loadFormula(int col, int row, std::string_view text, const Value& cached,
                     bool isArray = false);
    /// As loadFormula in a sheet that is in use: what reads the cell is calculated anew, and the
    /// formula too when what it shows is out of date.
    void putFormula(int col, int row, std::string_view text, const Value& shown, bool isArray,
                    bool isOutOfDate = false);
    /// The text of the cell's formula without "=", or nothing. Lives until the cell changes.
    std::optional<std::string_view> formula(int col, int row) const override;
    bool isArrayFormula(int col, int row) const;
    bool setArrayFormula(int col, int row, std::string_view text, formula::ParseError& error);
    int formulaCount() const { return m_liveFormulas; }
    /// Calls visit(program, col, row) for every formula, in no particular order.
    template <class Visit>
    void eachFormula(Visit&& visit) const {
        if (m_liveFormulas == 0) return;
        for (const FormulaSlot& slot : m_slots)
            if (slot.live) visit(*slot.program, int{slot.col}, int{slot.row});
    }
    /// Every formula; the cells keep what they show.
    void removeFormulas();

    formula::ReferenceStyle referenceStyle() const { return m_style; }
    void setReferenceStyle(formula::ReferenceStyle style);

    /// Registers a function for formulas set from now on, and for loaded ones that lacked it:
    /// those become dirty.
    void addCustomFunction(const formula::CustomFunction* function);
    const formula::CustomFunction* customFunction(std::string_view name) const;
    formula::ParseSettings parseSettings(int col, int row) const;

    /// Follows every change at once when on; going on brings everything up to date.
    void setAutomatic(bool on);
    bool isAutomatic() const { return m_automatic; }
    /// Calculates the cell's formula, after the dirty ones that it reads; what reads the cell
    /// becomes dirty. False without a formula.
    bool recalculateCell(int col, int row);
    /// Calculates the cell's formula, after the dirty ones that it reads, unless it is up to date.
    void bringUpToDate(int col, int row);
    /// Makes dirty what reads a changed cell. Changes are only noted until then, and Cell::dirty
    /// says nothing yet about results that are kept for later.
    void propagate();
    /// Every formula.
    void recalculate();
    /// The dirty and the volatile ones.
    void recalculateDirty();
    /// Somebody stopped the last recalculation (stop_calculation.h): formulas that were not reached
    /// show what they showed before, and are calculated the next time.
    bool isStopped() const { return m_isStopped; }

    /// What the texts that formulas of a sheet give may take together, in bytes. One that would
    /// need more gives #NUM!.
    static constexpr size_t mostResultText = size_t{64} << 20;

    /// Rows and columns: references in formulas move as in every spreadsheet.
    void insertRows(int at, int count);
    void deleteRows(int at, int count);
    void insertCols(int at, int count);
    void deleteCols(int at, int count);
    /// Swaps whole rows `first`..`first+count-1` with those from `other`; formulas elsewhere keep
    /// pointing at the places, formulas that travel keep their relative references.
    void swapRows(int first, int other, int count);
    void swapCols(int first, int other, int count);
    /// Rows from..from+count-1 go where the first of them gets the number `to`; references follow.
    void moveRows(int from, int count, int to);
    void moveCols(int from, int count, int to);
    /// Copies value, formula (relative references shifted) and format.
    void copyCell(CellAddress from, CellAddress to);

    /// Memory held by links and formulas, for measurements, in bytes.
    size_t formulaBytes() const;

  private:
    friend class formula::Calculation;

    struct FormulaSlot {
        formula::ProgramRef program;
        TextBlock* text = nullptr;
        int32_t row = 0;
        uint16_t col = 0;
        bool live = false;
        bool inProgress : 1 = false;
        bool linked : 1 = false;
        bool isArray : 1 = false;
    };

    void writeFormulasIn(formula::ReferenceStyle style);
    // A formula that waits for others.
    struct Waiting {
        uint32_t id;
        uint32_t parent;    // the one that waits for it, an index into m_waiting
        uint32_t low;       // the lowest index that it leads to
        uint32_t firstMet;  // where those that it waits for begin in m_met
        bool isBlocked;     // one that it waits for waits itself
        bool hasProgress;   // one that it waited for is done, or was so before
        bool isRough;       // it was run again in between: `low` may be lower than it need be
    };
    static constexpr uint32_t nobody = static_cast<uint32_t>(-1);

    uint32_t newSlot(int col, int row, const formula::ProgramRef& program, TextBlock* text);
    void removeFormula(int col, int row, Cell& cell);
    void forgetFormulas();
    void dropSlot(uint32_t id);
    void forgetDead();
    void compileUnknown();
    void place(int col, int row, const formula::ProgramRef& program, TextBlock* text, bool isArray);

    // Following changes (recalculation.cpp).
    void touched(int col, int row);
    void follow();
    void touchedQuietly(int col, int row) {
        if (m_liveFormulas == 0) return;
        m_changed.push_back({col, row});
        m_calculation.m_hasPendingChanges = true;
    }
    void touchVolatile();
    void linkNew();
    void relinkAll();
    bool readsDirty(const FormulaSlot& slot) const;
    bool tryCalculate(uint32_t id);
    void storeResult(Cell& cell, const Value& result);
    void countResultText();
    static size_t textSize(const Cell& cell) {
        return cell.type == ValueType::text ? cell.text->size : 0;
    }
    void calculate(uint32_t first);
    void calculateChanged(uint32_t id);
    uint32_t beginWaiting(uint32_t id, uint32_t parent);
    void meetDirty(Waiting& waiting);
    void wait(size_t bottom, uint32_t top);
    uint32_t endWaiting(uint32_t top);
    void markCircle(uint32_t root);
    void letGo(size_t first);
    void askToStop();

    // Moving (structure.cpp).
    template <class Move>
    void restructure(Move&& moveCells, const formula::MoveReference& moveReference);
    void replaceText(FormulaSlot& slot, std::string_view text);
    void touchAll(const Area& area);
    void carryFormula(int col, int row, int cols, int rows);
    std::string carriedText(std::string_view text, CellAddress from, CellAddress to) const;

    CellStore m_cells;
    std::vector<FormulaSlot> m_slots;  // index 0 stays unused
    std::vector<uint32_t> m_freeSlots;
    std::vector<uint32_t> m_deadSlots;  // formulas removed, but still named in the lists below
    std::vector<uint32_t> m_order;      // formulas in an order that calculated well last time
    std::vector<uint32_t> m_newOrder;
    std::vector<uint32_t> m_unlinked;
    std::vector<uint32_t> m_volatile;
    std::vector<uint32_t> m_unknown;  // formulas that did not compile when they were loaded
    std::vector<CellAddress> m_changed;
    std::vector<uint32_t> m_dirtied;  // formulas that propagate() made dirty
    std::vector<Waiting> m_waiting;   // those on the way to the running formula, and circles so far
    std::vector<uint32_t> m_met;      // formulas that they wait for and that are still to be tried
    std::vector<uint32_t> m_places;   // by formula: where it stands in m_waiting
    Dependents m_dependents;
    std::vector<const formula::CustomFunction*> m_custom;
    TextIndex m_customNames;  // into m_custom; functions are never destroyed
    formula::Calculation m_calculation;
    formula::Evaluator m_evaluator;
    formula::ReferenceStyle m_style = formula::ReferenceStyle::a1;
    int m_liveFormulas = 0;
    bool m_automatic = false;
    bool m_orderBroken = false;
    bool m_recordsOrder = false;
    bool m_customReplaces = false;  // a registered function has the name of one of ours
    bool m_isStopped = false;
    size_t m_resultText = 0;      // bytes of the texts in cells with formulas
    int64_t m_workBeforeAsk = 0;  // left until somebody is asked whether to go on
};

}  // namespace control
