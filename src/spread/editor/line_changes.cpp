#include "spread/editor/line_changes.h"

#include <algorithm>

#include "spread/control/reference_moves.h"

namespace editor {

using control::Area;
using control::Band;
using control::Grid;
using control::SideTables;

namespace {

constexpr Area everything{1, formula::maxRows, 1, formula::maxCols};

void grow(Grid& grid, const Lines& lines) {
    if (lines.isRows) {
        grid.setRows(grid.rows() + lines.count);
        grid.insertRows(lines.at, lines.count);
    } else {
        grid.setCols(grid.cols() + lines.count);
        grid.insertCols(lines.at, lines.count);
    }
}

void shrink(Grid& grid, const Lines& lines) {
    if (lines.isRows) {
        grid.deleteRows(lines.at, lines.count);
        grid.setRows(grid.rows() - lines.count);
    } else {
        grid.deleteCols(lines.at, lines.count);
        grid.setCols(grid.cols() - lines.count);
    }
}

int afterInsertion(int index, const LossOfMove::Move& move) {
    return index < move.lines.at ? index : index + move.lines.count;
}

int afterDeletion(int index, const LossOfMove::Move& move) {
    if (index < move.lines.at) return index;
    return index < move.lines.at + move.lines.count ? 0 : index - move.lines.count;
}

int afterMove(int index, const LossOfMove::Move& move) {
    return control::movedLine(index, move.lines.at, move.lines.count, move.to);
}

void takeOut(SideTables& sides, const LossOfMove::Move& move) {
    const auto& [isRows, at, count] = move.lines;
    isRows ? sides.deleteRows(at, count) : sides.deleteCols(at, count);
}

void putIn(SideTables& sides, const LossOfMove::Move& move) {
    const auto& [isRows, at, count] = move.lines;
    isRows ? sides.insertRows(at, count) : sides.insertCols(at, count);
}

void moveBack(SideTables& sides, const LossOfMove::Move& move) {
    const auto& [isRows, at, count] = move.lines;
    isRows ? sides.moveRows(move.to, count, at) : sides.moveCols(move.to, count, at);
}

/// The entries of `from` whose line is deleted.
template <class Map>
Map partOf(const Map& from, const Lines& lines) {
    return {from.lower_bound(lines.at), from.lower_bound(lines.at + lines.count)};
}

control::CellTexts textsIn(const control::CellTexts& texts, const Lines& lines) {
    control::CellTexts part;
    for (const auto& [key, text] : texts) {
        const int index = lines.isRows ? control::keyRow(key) : control::keyCol(key);
        if (index >= lines.at && index < lines.at + lines.count) part.emplace(key, text);
    }
    return part;
}

}  // namespace

void LossOfMove::recordBefore(const Grid& grid) {
    m_formulas.clear();
    grid.sheet().cells().each(everything, [&](int row, int col, const control::Cell& cell) {
        if (cell.formula)
            m_formulas.push_back({col, row, CellSnapshot::of(grid.sheet(), col, row)});
    });
    m_spans = grid.sides().spans.all();
}

void LossOfMove::recordAfter(const Grid& grid, const Move& move) {
    std::erase_if(m_formulas, [&](const PlacedCell& before) {
        const int index = move.newIndex(move.lines.isRows ? before.row : before.col, move);
        if (index == 0) return true;  // it is kept with the deleted cells
        const int col = move.lines.isRows ? before.col : index;
        const int row = move.lines.isRows ? index : before.row;
        const auto now = grid.sheet().formula(col, row);
        const auto again = now ? formula::rewriteReferences(*now, move.back) : std::nullopt;
        return again && *again == before.cell.formula();
    });
    m_formulas.shrink_to_fit();
    SideTables sides;
    sides.spans = grid.sides().spans;
    move.spansBack(sides, move);
    m_spanChange.emplace(m_spans, sides.spans.all());
    m_spans.clear();
    m_spans.shrink_to_fit();
}

void LossOfMove::restore(Grid& grid) {
    for (const PlacedCell& formula : m_formulas) formula.cell.put(grid, formula.col, formula.row);
    m_formulas.clear();
    if (m_spanChange) m_spanChange->exchange(grid, Direction::undo);
    m_spanChange.reset();
}

void InsertedLines::exchange(Grid& grid, Direction direction) {
    if (direction == Direction::undo) {
        shrink(grid, m_lines);
        m_loss.restore(grid);
        return;
    }
    m_loss.recordBefore(grid);
    grow(grid, m_lines);
    const auto& [isRows, at, count] = m_lines;
    m_loss.recordAfter(
        grid,
        {afterInsertion, m_lines, 0,
         isRows ? control::rowsDeleted(at, count) : control::colsDeleted(at, count), takeOut});
}

void DeletedLines::exchange(Grid& grid, Direction direction) {
    if (direction == Direction::undo) {
        grow(grid, m_lines);
        putBack(grid);
        m_loss.restore(grid);
        return;
    }
    keep(grid);
    m_loss.recordBefore(grid);
    shrink(grid, m_lines);
    const auto& [isRows, at, count] = m_lines;
    m_loss.recordAfter(
        grid,
        {afterDeletion, m_lines, 0,
         isRows ? control::rowsInserted(at, count) : control::colsInserted(at, count), putIn});
}

void DeletedLines::keep(const Grid& grid) {
    const auto& [isRows, at, count] = m_lines;
    const int end = at + count - 1;
    const Area area =
        isRows ? Area{at, end, 1, formula::maxCols}
               : Area{1, formula::maxRows, static_cast<uint16_t>(at), static_cast<uint16_t>(end)};
    m_cells.clear();
    grid.sheet().cells().each(area, [&](int row, int col, const control::Cell&) {
        m_cells.push_back({col, row, CellSnapshot::of(grid.sheet(), col, row)});
    });
    const SideTables& sides = grid.sides();
    const Band& band = isRows ? sides.rows : sides.cols;
    m_band = {};
    m_band.texts = partOf(band.texts, m_lines);
    m_band.formats = partOf(band.formats, m_lines);
    m_band.sizes = partOf(band.sizes, m_lines);
    m_band.hidden = partOf(band.hidden, m_lines);
    m_texts = {textsIn(sides.tags, m_lines), textsIn(sides.notes, m_lines)};
    m_columnFormats.clear();
    if (!isRows)
        for (int col = at; col <= end; ++col) m_columnFormats.push_back(sides.columnFormat(col));
}

void DeletedLines::putBack(Grid& grid) {
    for (const PlacedCell& placed : m_cells) placed.cell.put(grid, placed.col, placed.row);
    m_cells.clear();
    SideTables& sides = grid.changeSides();
    Band& band = m_lines.isRows ? sides.rows : sides.cols;
    band.texts.merge(m_band.texts);
    band.formats.merge(m_band.formats);
    band.sizes.merge(m_band.sizes);
    band.hidden.merge(m_band.hidden);
    sides.tags.merge(m_texts.tags);
    sides.notes.merge(m_texts.notes);
    if (m_lines.isRows) return;
    const auto first = static_cast<size_t>(m_lines.at);
    if (sides.columnFormats.size() < first + m_columnFormats.size())
        sides.columnFormats.resize(first + m_columnFormats.size(), control::inheritedFormat);
    std::copy(m_columnFormats.begin(), m_columnFormats.end(),
              sides.columnFormats.begin() + m_lines.at);
}

void MovedLines::exchange(Grid& grid, Direction direction) {
    const auto& [isRows, at, count] = m_lines;
    if (direction == Direction::undo) {
        isRows ? grid.moveRows(m_to, count, at) : grid.moveCols(m_to, count, at);
        m_loss.restore(grid);
        return;
    }
    m_loss.recordBefore(grid);
    isRows ? grid.moveRows(at, count, m_to) : grid.moveCols(at, count, m_to);
    m_loss.recordAfter(
        grid, {afterMove, m_lines, m_to,
               isRows ? control::rowsMoved(m_to, count, at) : control::colsMoved(m_to, count, at),
               moveBack});
}

}  // namespace editor
