// What a function sees while a formula is being calculated: the cells, the formula's own place,
// the clock, and an arena for texts and arrays that live until the calculation ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "platform/export.h"
#include "spread/control/formula/cells.h"
#include "spread/control/formula/value.h"

namespace control {
class Sheet;
}

namespace formula {

/// What knows the text of a cell's formula: the sheet.
class FormulaTexts {
  public:
    /// Nothing when the cell has no formula.
    virtual std::optional<std::string_view> formula(int col, int row) const = 0;

  protected:
    ~FormulaTexts() = default;
};

class VORMANT_API Calculation {
  public:
    explicit Calculation(const control::CellStore& cells) : m_cells(&cells) {}
    Calculation(const Calculation&) = delete;
    Calculation& operator=(const Calculation&) = delete;

    /// The formula's own cell.
    int hostCol() const { return m_hostCol; }
    int hostRow() const { return m_hostRow; }

    /// The value of a cell; empty outside what is stored.
    Value cell(int col, int row) const {
        const control::Cell* cell = m_cells->find(col, row);
        return cell ? valueOf(*cell, col, row) : Value();
    }

    /// Calls visit(Value) for every single value of `argument`: of an area the cells that are not
    /// empty (column by column), of an array every element, else the value itself. Elements that
    /// are not stored come as one visit(Value, int64_t times) if `visit` takes that.
    template <class Visit>
    void each(const Value& argument, Visit&& visit) const {
        if (argument.isArea()) {
            const Area area = argument.area();
            if (area.isOneCell()) {
                const Value value = cell(area.col1, area.row1);
                if (!value.isEmpty()) visit(value);
                return;
            }
            m_cells->eachRun(area, [&](const control::CellStore::Run& run) {
                if (!spend(run.end - run.first)) [[unlikely]]
                    return;
                if (checkDirty(run)) return;
                for (const control::Cell* cell = run.first; cell != run.end; ++cell)
                    if (cell->type == ValueType::number) [[likely]]
                        visit(Value(cell->number));
                    else if (cell->type != ValueType::empty)
                        visit(cell->value());
            });
        } else if (argument.isArray()) {
            const Array& a = argument.array();
            const int count = a.stored();
            if (!spend(count)) return;
            for (int i = 0; i < count; ++i) visit(a.cells[i]);
            if (a.unstored() > 0) visitRest(a, visit);
        } else {
            visit(argument);
        }
    }
    /// As each, with visit(row, col, Value); row and col count from 0 inside the argument.
    template <class Visit>
    void eachAt(const Value& argument, Visit&& visit) const {
        if (argument.isArea()) {
            const Area area = argument.area();
            m_cells->eachRun(area, [&](const control::CellStore::Run& run) {
                if (!spend(2 * (run.end - run.first))) [[unlikely]]
                    return;
                if (checkDirty(run)) return;
                int row = run.row - area.row1;
                for (const control::Cell* cell = run.first; cell != run.end; ++cell, ++row)
                    if (cell->type != ValueType::empty)
                        visit(row, run.col - area.col1, cell->value());
            });
        } else if (argument.isArray()) {
            const Array& a = argument.array();
            if (!spend(2LL * a.rows * a.cols)) return;
            for (int r = 0; r < a.rows; ++r)
                for (int c = 0; c < a.cols; ++c) visit(r, c, a.valueAt(r, c));
        } else {
            visit(0, 0, argument);
        }
    }

    /// The rows and columns of an argument beyond which every value is rest(): what is stored.
    struct Extent {
        int rows = 0;
        int cols = 0;
    };
    Extent extent(const Value& argument) const;
    /// Of a single value itself; empty for an area.
    static Value rest(const Value& argument) {
        return argument.isArray() ? argument.array().rest : argument.isArea() ? Value() : argument;
    }

    /// Shape of an area or array; 1 by 1 for a single value.
    static int rows(const Value& argument);
    static int cols(const Value& argument);
    /// The element at (row, col) from 0; a single value for any place. Outside: #N/A.
    Value element(const Value& argument, int row, int col) const;
    /// `argument` cut to the rows and columns that hold anything, so that a whole column can be
    /// walked by index. Areas only; others come back as they are.
    Value clipped(const Value& argument) const;

    /// Notes work of the running formula, in units of about a nanosecond. False when it has taken
    /// more than any formula may: then its result will be #NUM!, so loops may end where they are.
    /// Walks over cells and the texts and arrays made here are noted already; a function notes
    /// what it does beside, where that can be more than a glance at each of its arguments.
    bool spend(int64_t work) const {
        m_workLeft -= work;
        return m_workLeft >= 0;
    }

    /// What any formula may take from now on, in the units of spend(): for those who try millions
    /// of formulas that nobody waits for.
    static void setMostWork(int64_t work) { mostWork = work; }

    /// A text value holding its own copy of `text`; #NUM! when there is no room for a long one.
    Value text(std::string_view text);
    /// Two texts joined.
    Value text(std::string_view first, std::string_view second);
    /// A fresh array of empty values. Null beyond rows * cols of 4,000,000, or when the calculation
    /// holds some 256 MB already.
    Array* newArray(int rows, int cols) { return newArray(rows, cols, {rows, cols}); }
    /// One of which only `stored` is there; the rest is empty until it is set.
    Array* newArray(int rows, int cols, const Extent& stored);

    /// The formula text of a cell without "=", nothing when it has none (ISFORMULA, FORMULATEXT).
    std::optional<std::string_view> formulaText(int col, int row) const;
    /// A reference text as INDIRECT takes it: "B7", "$A$1:C3", "R2C3" when `a1` is false. Nothing
    /// when it is none.
    static std::optional<Area> parseReference(std::string_view text, bool a1, int hostCol,
                                              int hostRow);

    /// Day number of now, in local time.
    double now() const;
    /// 0 <= x < 1.
    double random();

  private:
    friend class Evaluator;
    friend class control::Sheet;

    /// Of the formula that ran last, as spend() counts; each takes some for its own sake.
    int64_t workDone() const { return mostWork - m_workLeft + 32; }

    // A second or two.
    static inline int64_t mostWork = 1'000'000'000;

    const control::CellStore* m_cells;
    const FormulaTexts* m_formulas = nullptr;
    mutable int64_t m_workLeft = mostWork;
    int m_hostCol = 1;
    int m_hostRow = 1;

    /// Whether the cell's formula, if it has one, may have to be calculated first.
    bool mayBeOld(const control::Cell& cell) const {
        return cell.formula && (cell.dirty || m_hasPendingChanges);
    }
    bool isPlainNumber(const control::Cell& cell) const {
        return cell.type == ValueType::number && !mayBeOld(cell);
    }
    Value valueOf(const control::Cell& cell, int col, int row) const {
        if (mayBeOld(cell)) [[unlikely]] {
            noteDirty(col, row);
            return Value();
        }
        return cell.value();
    }

    // Cells met that are not calculated yet: the running calculation is given up and started again
    // after them. Their old values are not read, so that the way a formula takes until then does
    // not depend on what was calculated before.
    void noteDirty(int col, int row) const;
    bool checkDirty(const control::CellStore::Run& run) const {
        if (m_hasPendingChanges || run.block->dirtyCount != 0) [[unlikely]]
            return noteDirtyIn(run);
        return false;
    }
    bool noteDirtyIn(const control::CellStore::Run& run) const;
    mutable std::vector<Area> m_dirtyAreas;
    /// Cells have changed and nobody has followed yet whom that concerns: any formula may be old.
    bool m_hasPendingChanges = false;

    template <class Visit>
    void visitRest(const Array& a, Visit& visit) const {
        if constexpr (std::is_invocable_v<Visit&, const Value&, int64_t>) {
            visit(a.rest, int64_t{a.unstored()});
        } else if (spend(a.unstored())) {
            for (int i = a.unstored(); i > 0; --i) visit(a.rest);
        }
    }

    // The arena: chunks are kept from one calculation to the next.
    bool hasRoom(size_t size) const;
    char* allocate(size_t size);
    void endCalculation() {
        if (m_used != 0 || m_chunk != 0) releaseArena();
    }
    void releaseArena();
    struct Chunk {
        std::unique_ptr<char[]> bytes;
        size_t size = 0;
    };
    std::vector<Chunk> m_chunks;
    size_t m_chunk = 0;
    size_t m_used = 0;
};

}  // namespace formula
