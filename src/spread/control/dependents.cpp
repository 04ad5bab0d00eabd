#include "spread/control/dependents.h"

#include "spread/control/formula/places.h"

namespace control {

size_t Dependents::AreaHash::operator()(const Area& a) const {
    const auto rows = static_cast<size_t>(a.row1) << 32 ^ static_cast<size_t>(a.row2);
    return rows * 0x9E3779B97F4A7C15ULL ^ (static_cast<size_t>(a.col1) << 16 ^ a.col2);
}

Dependents::Block& Dependents::obtain(int col, int row) {
    const auto c = static_cast<size_t>(col);
    if (c >= m_columns.size()) m_columns.resize(c + 1);
    const auto b = static_cast<size_t>(row - 1) >> blockShift;
    if (b >= m_columns[c].size()) m_columns[c].resize(b + 1);
    if (!m_columns[c][b]) m_columns[c][b] = std::make_unique<Block>();
    return *m_columns[c][b];
}

void Dependents::addCell(uint32_t formula, int col, int row) {
    Block& block = obtain(col, row);
    if (!block.heads) block.heads = std::make_unique<uint32_t[]>(CellStore::blockRows);
    uint32_t& head = block.heads[rowInBlock(row)];
    m_links.push_back({formula, head});
    head = static_cast<uint32_t>(m_links.size() - 1);
}

void Dependents::addArea(uint32_t formula, const Area& area) {
    const int firstBlock = (area.row1 - 1) >> blockShift;
    const int lastBlock = (area.row2 - 1) >> blockShift;
    if ((lastBlock - firstBlock + 1) * area.cols() > maxBlocksOfSmallArea) {
        const auto [place, isNew] = m_bigIndex.try_emplace(area, m_bigAreas.size());
        if (isNew) m_bigAreas.push_back({area, 0, {}});
        m_bigAreas[place->second].formulas.push_back(formula);
        ++m_areaLinks;
        return;
    }
    for (int col = area.col1; col <= area.col2; ++col)
        for (int b = firstBlock; b <= lastBlock; ++b) {
            obtain(col, (b << blockShift) + 1).areas.push_back({formula, area.row1, area.row2});
            ++m_areaLinks;
        }
}

void Dependents::add(uint32_t formula, int col, int row, const formula::Program& program) {
    formula::eachAreaRead(program, col, row, [&](const Area& area) {
        if (area.isOneCell())
            addCell(formula, area.col1, area.row1);
        else
            addArea(formula, area);
    });
}

void Dependents::clear() {
    if (isEmpty()) return;
    m_columns.clear();
    m_links.assign(1, Link{0, 0});
    m_bigAreas.clear();
    m_bigIndex.clear();
    m_areaLinks = 0;
}

size_t Dependents::bytes() const {
    size_t sum = m_links.capacity() * sizeof(Link) + m_areaLinks * sizeof(AreaLink);
    for (const auto& column : m_columns) {
        sum += column.capacity() * sizeof(void*);
        for (const auto& block : column)
            if (block) sum += sizeof(Block) + (block->heads ? CellStore::blockRows * 4 : 0);
    }
    return sum;
}

}  // namespace control
