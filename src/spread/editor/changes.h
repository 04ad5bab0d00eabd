// The kinds of changes that a step of the undo history is made of. Each holds what the sheet had
// before and exchanges it with what the sheet has now: undoing once and again is redoing.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/export.h"
#include "spread/control/grid.h"
#include "spread/editor/cell_snapshot.h"

namespace editor {

enum class Direction { undo, redo };

class Change {
  public:
    virtual ~Change() = default;
    virtual void exchange(control::Grid& grid, Direction direction) = 0;
    /// Nothing differs from before.
    virtual bool isNothing(const control::Grid& /*grid*/) const { return false; }
    /// References moved, so that every formula has to be looked at again.
    virtual bool isStructural() const { return false; }
    /// Adds the cells that hold another formula than before, or one that was never calculated.
    virtual void addNewFormulas(const control::Grid& /*grid*/,
                                std::vector<control::CellAddress>& /*cells*/) const {}
};

struct PlacedCell {
    int col, row;
    CellSnapshot cell;
};

class VORMANT_API CellsChange : public Change {
  public:
    void keep(const control::Grid& grid, int col, int row) {
        m_cells.push_back({col, row, CellSnapshot::of(grid.sheet(), col, row)});
    }
    void exchange(control::Grid& grid, Direction direction) override;
    bool isNothing(const control::Grid& grid) const override;
    void addNewFormulas(const control::Grid& grid,
                        std::vector<control::CellAddress>& cells) const override;

  private:
    std::vector<PlacedCell> m_cells;
};

/// Tag and note of a cell, also of a header cell (0).
class VORMANT_API TextsChange : public Change {
  public:
    TextsChange(const control::Grid& grid, int col, int row);
    void exchange(control::Grid& grid, Direction direction) override;
    bool isNothing(const control::Grid& grid) const override;

  private:
    int m_col, m_row;
    std::string m_tag, m_note;
};

/// The format that a column's cells have when they have none of their own.
class VORMANT_API ColumnFormatChange : public Change {
  public:
    ColumnFormatChange(const control::Grid& grid, int col);
    void exchange(control::Grid& grid, Direction direction) override;
    bool isNothing(const control::Grid& grid) const override;

  private:
    int m_col;
    control::FormatIndex m_format;
};

/// Size, hiding and header text of a column or row.
class VORMANT_API LineChange : public Change {
  public:
    LineChange(const control::Grid& grid, bool isRow, int index);
    void exchange(control::Grid& grid, Direction direction) override;
    bool isNothing(const control::Grid& grid) const override;

  private:
    struct State {
        std::optional<int> size;
        std::optional<std::string> text;
        bool hidden = false;
        bool operator==(const State&) const = default;
    };
    State stateOf(const control::Band& band) const;

    bool m_isRow;
    int m_index;
    State m_state;
};

/// Merged cells: what is undone by removing some spans and adding others.
class VORMANT_API SpansChange : public Change {
  public:
    SpansChange(const std::vector<control::Span>& before, const std::vector<control::Span>& after);
    void exchange(control::Grid& grid, Direction direction) override;
    bool isNothing(const control::Grid&) const override { return m_other.empty() && m_now.empty(); }

  private:
    std::vector<control::Span> m_other;  // to be there after the next exchange
    std::vector<control::Span> m_now;    // to be gone then
};

/// The sheet grew; what lies beyond is empty again when this is undone.
class VORMANT_API GrowthChange : public Change {
  public:
    explicit GrowthChange(const control::Grid& grid) : m_cols(grid.cols()), m_rows(grid.rows()) {}
    void exchange(control::Grid& grid, Direction direction) override;
    bool isNothing(const control::Grid& grid) const override {
        return grid.cols() == m_cols && grid.rows() == m_rows;
    }

  private:
    int m_cols, m_rows;
};

}  // namespace editor
