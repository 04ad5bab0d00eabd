// Blocks of cells that are one cell. They never overlap, and lie by the column of their anchor
// (top left) and then its row: a table with a merged run every other row answers at once.
#pragma once

#include <map>
#include <vector>

#include "platform/export.h"

namespace control {

struct Span {
    int col = 0, row = 0;  ///< the anchor; 0 in the header row or column
    int cols = 1, rows = 1;

    bool operator==(const Span&) const = default;
    bool contains(int c, int r) const {
        return c >= col && c < col + cols && r >= row && r < row + rows;
    }
};

class VORMANT_API SpanTable {
  public:
    bool isEmpty() const { return m_columns.empty(); }
    /// The span that holds the cell, or null.
    const Span* at(int col, int row) const;
    /// Spans that overlap the new one are removed. A span of one cell only removes.
    void add(const Span& span);
    bool removeAt(int col, int row);
    /// Removes the spans anchored in a column.
    void removeColumn(int col) { m_columns.erase(col); }
    /// By column, then row.
    std::vector<Span> all() const;
    void assign(const std::vector<Span>& spans);

    bool operator==(const SpanTable&) const = default;

  private:
    using Column = std::map<int, Span>;
    std::map<int, Column> m_columns;
};

}  // namespace control
