// Rows or columns that come, go or move, as changes that can be undone. What a deletion took away
// is kept, and of the other formulas those whose old text the way back does not give again.
#pragma once

#include <map>

#include "spread/editor/changes.h"

namespace editor {

/// Rows or columns next to each other.
struct Lines {
    bool isRows = true;
    int at = 1;
    int count = 1;
};

/// What such a change may lose for good: texts of formulas, and spans.
class LossOfMove {
  public:
    struct Move {
        /// The new number of a row or column; 0 when it is gone.
        int (*newIndex)(int index, const Move& move);
        Lines lines;
        int to = 0;
        formula::MoveReference back;
        /// Moves the spans of a table the way back.
        void (*spansBack)(control::SideTables& sides, const Move& move);
    };
    void recordBefore(const control::Grid& grid);
    /// Keeps what the way back would not give again.
    void recordAfter(const control::Grid& grid, const Move& move);
    /// After the way back.
    void restore(control::Grid& grid);

  private:
    std::vector<PlacedCell> m_formulas;
    std::vector<control::Span> m_spans;
    std::optional<SpansChange> m_spanChange;
};

class InsertedLines : public Change {
  public:
    explicit InsertedLines(Lines lines) : m_lines(lines) {}
    void exchange(control::Grid& grid, Direction direction) override;
    bool isStructural() const override { return true; }

  private:
    Lines m_lines;
    LossOfMove m_loss;
};

class DeletedLines : public Change {
  public:
    explicit DeletedLines(Lines lines) : m_lines(lines) {}
    void exchange(control::Grid& grid, Direction direction) override;
    bool isStructural() const override { return true; }

  private:
    struct DeletedTexts {
        control::CellTexts tags, notes;
    };
    void keep(const control::Grid& grid);
    void putBack(control::Grid& grid);

    Lines m_lines;
    LossOfMove m_loss;
    std::vector<PlacedCell> m_cells;
    control::Band m_band;  // of the deleted lines alone
    std::vector<control::FormatIndex> m_columnFormats;
    DeletedTexts m_texts;
};

class MovedLines : public Change {
  public:
    MovedLines(Lines lines, int to) : m_lines(lines), m_to(to) {}
    void exchange(control::Grid& grid, Direction direction) override;
    bool isStructural() const override { return true; }

  private:
    Lines m_lines;
    int m_to;
    LossOfMove m_loss;
};

}  // namespace editor
