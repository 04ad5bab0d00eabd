// The cells of a sheet: 16 bytes each, column by column in blocks of rows, so that a column of
// 100,000 numbers is read from memory in order and an empty region costs nothing.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/export.h"
#include "spread/control/formula/value.h"

namespace control {

using formula::Area;
using formula::ErrorCode;
using formula::Value;
using formula::ValueType;

/// An immutable text shared by cells; counted by hand, since cells are moved as plain memory.
struct VORMANT_API TextBlock {
    uint32_t references;
    uint32_t size;
    const char* data() const { return reinterpret_cast<const char*>(this + 1); }
    std::string_view view() const { return {data(), size}; }

    static TextBlock* make(std::string_view text);
    static void release(TextBlock* block) {
        if (--block->references == 0) ::operator delete(block);
    }
};

struct CellAddress {
    int col = 0;
    int row = 0;
    bool operator==(const CellAddress&) const = default;
};

/// What one cell holds: a plain value (its own or its formula's result), the number of its formula
/// and of its format. Text is owned; copy and destroy through CellStore.
struct Cell {
    union {
        double number = 0;
        TextBlock* text;
        ErrorCode error;
        bool truth;
    };
    uint32_t formula = 0;  ///< index into the sheet's formulas; 0 is none
    uint16_t format = 0;   ///< index into the sheet's formats; 0 is the default
    ValueType type = ValueType::empty;
    bool dirty = false;  ///< the formula's result is older than what it reads

    Value value() const {
        switch (type) {
            case ValueType::number:
                return Value(number);
            case ValueType::text:
                return Value::borrowedText(text->view());
            case ValueType::boolean:
                return Value::boolean(truth);
            case ValueType::error:
                return Value(error);
            default:
                return Value();
        }
    }
    bool isBlank() const { return type == ValueType::empty && formula == 0 && format == 0; }
};
static_assert(sizeof(Cell) == 16);

class VORMANT_API CellStore {
  public:
    static constexpr int blockShift = 7;
    static constexpr int blockRows = 1 << blockShift;

    struct Block {
        std::array<Cell, blockRows> cells;
        uint32_t dirtyCount = 0;  ///< cells of this block whose formula is dirty
    };

    CellStore() = default;
    CellStore(const CellStore& other);
    CellStore& operator=(const CellStore& other);
    CellStore(CellStore&& other) noexcept { *this = std::move(other); }
    CellStore& operator=(CellStore&& other) noexcept;
    ~CellStore() { clear(); }

    /// The cell, or null when nothing was ever stored near it. Any col and row.
    const Cell* find(int col, int row) const {
        const auto c = static_cast<uint32_t>(col);
        if (c >= m_viewCount) return nullptr;
        const View& view = m_views[c];
        const auto r = static_cast<uint32_t>(row - 1);
        if (r >= view.rows) return nullptr;
        const Block* block = view.blocks[r >> blockShift].get();
        return block ? &block->cells[r & (blockRows - 1)] : nullptr;
    }
    Cell* find(int col, int row) { return const_cast<Cell*>(std::as_const(*this).find(col, row)); }
    /// The cell, made when it is not there. col and row within the limits of value.h.
    Cell& obtain(int col, int row) {
        Cell* cell = find(col, row);
        return cell ? *cell : obtainBlock(col, row).cells[rowInBlock(row)];
    }

    Value value(int col, int row) const {
        const Cell* cell = find(col, row);
        return cell ? cell->value() : Value();
    }

    /// Replaces the cell's value; formula, format and dirty state stay.
    void setValue(Cell& cell, const Value& value) {
        if (value.isNumber()) [[likely]] {
            dropText(cell);
            cell.number = value.number();
            cell.type = ValueType::number;
        } else {
            setOtherValue(cell, value);
        }
    }
    /// As setValue with the value of a cell of any sheet; its text is shared, not copied.
    static void shareValue(Cell& cell, const Cell& from) {
        if (from.type == ValueType::text) ++from.text->references;
        dropText(cell);
        if (from.type == ValueType::text)
            cell.text = from.text;
        else
            cell.number = from.number;
        cell.type = from.type;
    }
    void setDirty(int col, int row, Cell& cell, bool dirty) {
        if (cell.dirty != dirty) setDirty(*blockOf(col, row), cell, dirty);
    }
    /// The same when the cell's block is at hand.
    static void setDirty(Block& block, Cell& cell, bool dirty) {
        block.dirtyCount += static_cast<uint32_t>(dirty) - static_cast<uint32_t>(cell.dirty);
        cell.dirty = dirty;
    }
    /// The block of a cell that is stored.
    Block* blockOf(int col, int row) {
        return m_columns[static_cast<size_t>(col)][static_cast<size_t>(row - 1) >> blockShift]
            .get();
    }
    static size_t rowInBlock(int row) { return static_cast<size_t>(row - 1) & (blockRows - 1); }
    /// Cells of one column in a row: `row` is that of the first.
    struct Run {
        const Block* block;
        const Cell* first;
        const Cell* end;
        int row, col;
    };
    /// Calls visit(Run) for everything of `area` that is stored, blank cells among it, column by
    /// column and downwards. Costs what is stored, not what the area spans.
    template <class Visit>
    void eachRun(const Area& area, Visit&& visit) const {
        const int lastCol = std::min<int>(area.col2, static_cast<int>(m_columns.size()) - 1);
        for (int col = area.col1; col <= lastCol; ++col) {
            const auto& blocks = m_columns[static_cast<size_t>(col)];
            const int lastRow =
                std::min<int>(area.row2, static_cast<int>(blocks.size()) << blockShift);
            for (int row = area.row1; row <= lastRow;) {
                const int end = std::min(lastRow, ((row - 1) | (blockRows - 1)) + 1);
                if (const Block* block = blocks[static_cast<size_t>(row - 1) >> blockShift].get()) {
                    const Cell* first = &block->cells[rowInBlock(row)];
                    visit(Run{block, first, first + (end - row + 1), row, col});
                }
                row = end + 1;
            }
        }
    }
    /// Calls visit(row, col, cell) for every cell of `area` that is not blank, in that order.
    template <class Visit>
    void each(const Area& area, Visit&& visit) const {
        eachRun(area, [&](const Run& run) {
            int row = run.row;
            for (const Cell* cell = run.first; cell != run.end; ++cell, ++row)
                if (!cell->isBlank()) visit(row, run.col, *cell);
        });
    }

    /// The last column and row that hold anything; 0 when nothing does.
    int lastCol() const;
    int lastRow() const;

    /// Rows or columns inserted blank or taken out; what lay behind moves. Formula numbers and
    /// formats move with their cells. Cells pushed over the edge are destroyed.
    void insertRows(int at, int count);
    void deleteRows(int at, int count);
    void insertCols(int at, int count);
    void deleteCols(int at, int count);
    void swapCells(CellAddress a, CellAddress b);
    void clearCell(int col, int row);
    void clear();

  private:
    static void dropText(Cell& cell) {
        if (cell.type == ValueType::text) TextBlock::release(cell.text);
    }
    void setOtherValue(Cell& cell, const Value& value);
    Block& obtainBlock(int col, int row);
    static std::unique_ptr<Block> copyOf(const Block& block);
    static void destroy(Block& block);

    using Column = std::vector<std::unique_ptr<Block>>;
    std::vector<Column> m_columns;  // index 0 stays empty

    // The columns again as find() wants them: it is called for every reference of every formula.
    struct View {
        const std::unique_ptr<Block>* blocks;
        uint32_t rows;
    };
    void refreshViews();
    std::unique_ptr<View[]> m_views;
    uint32_t m_viewCount = 0;
};

}  // namespace control
