#include "spread/control/formula/cells.h"

#include <new>
#include <utility>

#include "spread/control/formula/text_room.h"

namespace control {

TextBlock* TextBlock::make(std::string_view text) {
    auto* block = static_cast<TextBlock*>(::operator new(sizeof(TextBlock) + roomFor(text.size())));
    block->references = 1;
    block->size = static_cast<uint32_t>(text.size());
    if (!text.empty()) std::memcpy(block + 1, text.data(), text.size());
    return block;
}

CellStore::CellStore(const CellStore& other) {
    *this = other;
}

CellStore& CellStore::operator=(const CellStore& other) {
    if (this == &other) return *this;
    clear();
    m_columns.resize(other.m_columns.size());
    for (size_t c = 0; c < m_columns.size(); ++c) {
        m_columns[c].resize(other.m_columns[c].size());
        for (size_t b = 0; b < m_columns[c].size(); ++b)
            if (other.m_columns[c][b]) m_columns[c][b] = copyOf(*other.m_columns[c][b]);
    }
    refreshViews();
    return *this;
}

CellStore& CellStore::operator=(CellStore&& other) noexcept {
    if (this != &other) {
        clear();
        m_columns = std::move(other.m_columns);
        other.m_columns.clear();
        m_views = std::move(other.m_views);
        m_viewCount = std::exchange(other.m_viewCount, 0);
    }
    return *this;
}

std::unique_ptr<CellStore::Block> CellStore::copyOf(const Block& block) {
    auto copy = std::make_unique<Block>(block);
    for (Cell& cell : copy->cells)
        if (cell.type == ValueType::text) ++cell.text->references;
    return copy;
}

void CellStore::destroy(Block& block) {
    for (Cell& cell : block.cells) dropText(cell);
}

void CellStore::clear() {
    for (Column& column : m_columns)
        for (auto& block : column)
            if (block) destroy(*block);
    m_columns.clear();
    refreshViews();
}

void CellStore::setOtherValue(Cell& cell, const Value& value) {
    switch (value.type()) {
        case ValueType::text: {
            // The new text may borrow the old one: make it before dropping that.
            TextBlock* block = TextBlock::make(value.text());
            dropText(cell);
            cell.text = block;
            cell.type = ValueType::text;
            return;
        }
        case ValueType::boolean:
            dropText(cell);
            cell.number = 0;
            cell.truth = value.truth();
            break;
        case ValueType::error:
            dropText(cell);
            cell.number = 0;
            cell.error = value.error();
            break;
        default:
            dropText(cell);
            cell.number = 0;
            cell.type = ValueType::empty;
            return;
    }
    cell.type = value.type();
}

CellStore::Block& CellStore::obtainBlock(int col, int row) {
    const auto c = static_cast<size_t>(col);
    const auto b = static_cast<size_t>(row - 1) >> blockShift;
    if (c >= m_columns.size()) m_columns.resize(c + 1);
    // Before a column moves, as this may find no memory and the views would lead to where it was.
    if (m_viewCount != m_columns.size()) refreshViews();
    Column& column = m_columns[c];
    if (b >= column.size()) column.resize(b + 1);
    if (m_views[c].rows != column.size() << blockShift || m_views[c].blocks != column.data())
        refreshViews();
    if (!column[b]) column[b] = std::make_unique<Block>();
    return *column[b];
}

void CellStore::refreshViews() {
    // Fewer columns take no memory: they come about where it has run out, too.
    if (m_columns.size() > m_viewCount) m_views = std::make_unique<View[]>(m_columns.size());
    m_viewCount = static_cast<uint32_t>(m_columns.size());
    for (size_t c = 0; c < m_columns.size(); ++c)
        m_views[c] = {m_columns[c].data(),
                      static_cast<uint32_t>(m_columns[c].size() << blockShift)};
}

int CellStore::lastCol() const {
    for (size_t c = m_columns.size(); c-- > 1;)
        for (const auto& block : m_columns[c])
            if (block && !std::all_of(block->cells.begin(), block->cells.end(),
                                      [](const Cell& cell) { return cell.isBlank(); }))
                return static_cast<int>(c);
    return 0;
}

int CellStore::lastRow() const {
    int last = 0;
    for (const Column& column : m_columns) {
        for (size_t b = column.size(); b-- > 0;) {
            const int base = static_cast<int>(b << blockShift);
            if (base + blockRows <= last) break;
            if (!column[b]) continue;
            int i = blockRows;
            while (i > 0 && column[b]->cells[static_cast<size_t>(i - 1)].isBlank()) --i;
            last = std::max(last, i == 0 ? 0 : base + i);
            if (i != 0) break;
        }
    }
    return last;
}

void CellStore::swapCells(CellAddress a, CellAddress b) {
    Cell* first = find(a.col, a.row);
    Cell* second = find(b.col, b.row);
    if (!first && !second) return;
    first = &obtain(a.col, a.row);
    second = &obtain(b.col, b.row);
    const bool firstDirty = first->dirty;
    const bool secondDirty = second->dirty;
    setDirty(a.col, a.row, *first, false);
    setDirty(b.col, b.row, *second, false);
    std::swap(*first, *second);
    setDirty(a.col, a.row, *first, secondDirty);
    setDirty(b.col, b.row, *second, firstDirty);
}

void CellStore::clearCell(int col, int row) {
    Cell* cell = find(col, row);
    if (!cell) return;
    setDirty(col, row, *cell, false);
    dropText(*cell);
    *cell = Cell();
}

void CellStore::insertRows(int at, int count) {
    for (size_t c = 1; c < m_columns.size(); ++c) {
        const int col = static_cast<int>(c);
        const int last = static_cast<int>(m_columns[c].size()) << blockShift;
        for (int row = last; row >= at; --row) {
            const Cell* cell = find(col, row);
            if (!cell || cell->isBlank()) continue;
            if (row + count > formula::maxRows)
                clearCell(col, row);
            else
                swapCells({col, row}, {col, row + count});
        }
    }
}

void CellStore::deleteRows(int at, int count) {
    for (size_t c = 1; c < m_columns.size(); ++c) {
        const int col = static_cast<int>(c);
        const int last = static_cast<int>(m_columns[c].size()) << blockShift;
        for (int row = at; row < at + count && row <= last; ++row) clearCell(col, row);
        for (int row = at + count; row <= last; ++row) {
            const Cell* cell = find(col, row);
            if (cell && !cell->isBlank()) swapCells({col, row}, {col, row - count});
        }
    }
}

void CellStore::insertCols(int at, int count) {
    if (at >= static_cast<int>(m_columns.size())) return;
    const auto columns =
        std::min<size_t>(m_columns.size() + static_cast<size_t>(count), formula::maxCols + 1);
    std::vector<Column> moved(columns);
    auto views = std::make_unique<View[]>(columns);
    for (size_t c = 1; c < m_columns.size(); ++c) {
        const size_t target = static_cast<int>(c) < at ? c : c + static_cast<size_t>(count);
        if (target < columns) {
            moved[target] = std::move(m_columns[c]);
        } else {
            for (auto& block : m_columns[c])
                if (block) destroy(*block);
        }
    }
    m_columns = std::move(moved);
    m_views = std::move(views);
    m_viewCount = static_cast<uint32_t>(columns);
    refreshViews();
}

void CellStore::deleteCols(int at, int count) {
    for (size_t c = static_cast<size_t>(at);
         c < static_cast<size_t>(at + count) && c < m_columns.size(); ++c) {
        for (auto& block : m_columns[c])
            if (block) destroy(*block);
    }
    const auto from = m_columns.begin() + std::min<long>(at, static_cast<long>(m_columns.size()));
    const auto to =
        m_columns.begin() + std::min<long>(at + count, static_cast<long>(m_columns.size()));
    m_columns.erase(from, to);
    refreshViews();
}

}  // namespace control
