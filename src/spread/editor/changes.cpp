#include "spread/editor/changes.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace editor {

using control::Band;
using control::CellAddress;
using control::FormatIndex;
using control::Grid;
using control::Reading;
using control::Span;

void CellsChange::exchange(Grid& grid, Direction direction) {
    // A cell may have been kept twice; the way back passes its states in the other order.
    const auto exchangeOne = [&](PlacedCell& placed) {
        CellSnapshot now = CellSnapshot::of(grid.sheet(), placed.col, placed.row);
        placed.cell.put(grid, placed.col, placed.row);
        placed.cell = std::move(now);
    };
    if (direction == Direction::redo)
        std::for_each(m_cells.begin(), m_cells.end(), exchangeOne);
    else
        std::for_each(m_cells.rbegin(), m_cells.rend(), exchangeOne);
}

bool CellsChange::isNothing(const Grid& grid) const {
    return std::all_of(m_cells.begin(), m_cells.end(), [&](const PlacedCell& placed) {
        return placed.cell == CellSnapshot::of(grid.sheet(), placed.col, placed.row);
    });
}

void CellsChange::addNewFormulas(const Grid& grid, std::vector<CellAddress>& cells) const {
    for (const PlacedCell& before : m_cells) {
        const auto now = CellSnapshot::of(grid.sheet(), before.col, before.row);
        const bool isNew = now.hasFormula() && now.formula() != before.cell.formula();
        if (isNew || now.hasNewFormula()) cells.push_back({before.col, before.row});
    }
}

TextsChange::TextsChange(const Grid& grid, int col, int row)
    : m_col(col),
      m_row(row),
      m_tag(grid.text(col, row, Reading::tag)),
      m_note(grid.note(col, row)) {}

void TextsChange::exchange(Grid& grid, Direction) {
    TextsChange now(grid, m_col, m_row);
    grid.setTag(m_col, m_row, m_tag);
    grid.setNote(m_col, m_row, m_note);
    *this = std::move(now);
}

bool TextsChange::isNothing(const Grid& grid) const {
    return grid.text(m_col, m_row, Reading::tag) == m_tag && grid.note(m_col, m_row) == m_note;
}

ColumnFormatChange::ColumnFormatChange(const Grid& grid, int col)
    : m_col(col), m_format(grid.sides().columnFormat(col)) {}

void ColumnFormatChange::exchange(Grid& grid, Direction) {
    const auto col = static_cast<size_t>(m_col);
    std::vector<FormatIndex>& formats = grid.changeSides().columnFormats;
    if (formats.size() <= col) formats.resize(col + 1, control::inheritedFormat);
    std::swap(formats[col], m_format);
}

bool ColumnFormatChange::isNothing(const Grid& grid) const {
    return grid.sides().columnFormat(m_col) == m_format;
}

LineChange::LineChange(const Grid& grid, bool isRow, int index)
    : m_isRow(isRow),
      m_index(index),
      m_state(stateOf(isRow ? grid.sides().rows : grid.sides().cols)) {}

LineChange::State LineChange::stateOf(const Band& band) const {
    State state;
    if (const auto size = band.sizes.find(m_index); size != band.sizes.end())
        state.size = size->second;
    if (const auto text = band.texts.find(m_index); text != band.texts.end())
        state.text = text->second;
    state.hidden = band.hidden.contains(m_index);
    return state;
}

void LineChange::exchange(Grid& grid, Direction) {
    Band& band = m_isRow ? grid.changeSides().rows : grid.changeSides().cols;
    const State now = stateOf(band);
    const auto put = [&](auto& map, const auto& value) {
        if (value)
            map[m_index] = *value;
        else
            map.erase(m_index);
    };
    put(band.sizes, m_state.size);
    put(band.texts, m_state.text);
    if (m_state.hidden)
        band.hidden.insert(m_index);
    else
        band.hidden.erase(m_index);
    m_state = now;
}

bool LineChange::isNothing(const Grid& grid) const {
    return m_state == stateOf(m_isRow ? grid.sides().rows : grid.sides().cols);
}

SpansChange::SpansChange(const std::vector<Span>& before, const std::vector<Span>& after) {
    const auto isBefore = [](const Span& a, const Span& b) {
        return std::tie(a.col, a.row, a.cols, a.rows) < std::tie(b.col, b.row, b.cols, b.rows);
    };
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(),
                        std::back_inserter(m_other), isBefore);
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                        std::back_inserter(m_now), isBefore);
}

void SpansChange::exchange(Grid& grid, Direction) {
    if (isNothing(grid)) return;
    control::SpanTable& spans = grid.changeSides().spans;
    for (const Span& span : m_now) spans.removeAt(span.col, span.row);
    for (const Span& span : m_other) spans.add(span);
    std::swap(m_now, m_other);
}

void GrowthChange::exchange(Grid& grid, Direction) {
    const int cols = grid.cols(), rows = grid.rows();
    grid.setCols(m_cols);
    grid.setRows(m_rows);
    m_cols = cols;
    m_rows = rows;
}

}  // namespace editor
