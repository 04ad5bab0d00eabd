// What a sheet has beside its cells: header texts, sizes, spans, tags, notes, settings. One value,
// shared until it is changed (see SharedSides), so that a fresh copy of a document costs a pointer.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/export.h"
#include "spread/control/cell_format.h"
#include "spread/control/embedded_images.h"
#include "spread/control/formula/cells.h"
#include "spread/control/span_table.h"

namespace control {

/// A cell's address as one number, ordered by row and then column. Header cells have 0.
constexpr int64_t cellKey(int col, int row) {
    return static_cast<int64_t>(row) << 32 | col;
}
constexpr int keyCol(int64_t key) {
    return static_cast<int>(key & 0xFFFFFFFF);
}
constexpr int keyRow(int64_t key) {
    return static_cast<int>(key >> 32);
}

using CellTexts = std::map<int64_t, std::string>;

/// One header band: the row of column headers, or the column of row headers.
struct Band {
    std::map<int, std::string> texts;    ///< by column or row; others show their letters or number
    std::map<int, FormatIndex> formats;  ///< those that differ from `format`
    FormatIndex format = inheritedFormat;
    std::map<int, int> sizes;  ///< pixels: column widths or row heights that differ
    std::set<int> hidden;
    int defaultSize = 0;
    int headerSize = 0;  ///< pixels: height of the header row, or width of the header column
    bool operator==(const Band&) const = default;
};

struct VORMANT_API SideTables {
    Band cols;
    Band rows;
    std::vector<FormatIndex> columnFormats;  ///< by column, from 1; short when the rest inherits
    SpanTable spans;
    CellTexts tags;
    CellTexts notes;
    std::string cornerText;
    EmbeddedImages pictures;
    bool columnHeaders = true;  ///< shown
    bool rowHeaders = true;
    int referenceStyle = 0;  ///< 0 and 1: A1; 2: R1C1
    int gridType = 0;        ///< lines: 0 both ways, 1 none, 2 between rows, 3 between columns
    Colour gridColour = automatic;
    Colour greyArea = automatic;
    Colour lockedColour = automatic;
    Colour selectionBackground = automatic;
    Colour selectionText = automatic;

    SideTables();
    bool operator==(const SideTables&) const = default;

    FormatIndex columnFormat(int col) const {
        const auto c = static_cast<size_t>(col);
        return c < columnFormats.size() ? columnFormats[c] : inheritedFormat;
    }

    /// What belongs to rows or columns moves with them; what belonged to deleted ones goes.
    void insertRows(int at, int count);
    void deleteRows(int at, int count);
    void insertCols(int at, int count);
    void deleteCols(int at, int count);
    void swapRows(int first, int other, int count);
    void swapCols(int first, int other, int count);
    void moveRows(int from, int count, int to);
    void moveCols(int from, int count, int to);
    /// Drops what lies beyond the last column and row.
    void cut(int cols, int rows);
};

/// Side tables shared between a document and the sheets made from it, copied on the first change.
class SharedSides {
  public:
    SharedSides() : m_tables(std::make_shared<SideTables>()) {}
    const SideTables* operator->() const { return m_tables.get(); }
    const SideTables& operator*() const { return *m_tables; }
    SideTables& change() {
        if (m_tables.use_count() > 1) m_tables = std::make_shared<SideTables>(*m_tables);
        return *m_tables;
    }
    bool isSameAs(const SharedSides& other) const { return m_tables == other.m_tables; }

  private:
    std::shared_ptr<SideTables> m_tables;
};

}  // namespace control
