// Which formulas read a cell. Single references hang in a list at their cell; areas lie in the
// blocks of rows they touch; areas over many blocks are kept once each, however many formulas
// read them. Links are only added: one left behind by a formula that is gone marks its successor
// in the slot dirty once too often, which is harmless, and rebuilding forgets it.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/export.h"
#include "spread/control/formula/program.h"

namespace control {

class VORMANT_API Dependents {
  public:
    void add(uint32_t formula, int col, int row, const formula::Program& program);
    void clear();
    bool isEmpty() const { return m_links.size() <= 1 && m_areaLinks == 0; }
    size_t linkCount() const { return m_links.size() + m_areaLinks; }
    size_t bytes() const;

    /// Starts a walk in which each big area is visited once.
    void beginWalk() { ++m_walk; }
    /// Calls visit(formula) for every formula that reads the cell.
    template <class Visit>
    void each(int col, int row, Visit&& visit) {
        if (const Block* block = find(col, row)) {
            if (block->heads)
                for (uint32_t link = block->heads[rowInBlock(row)]; link; link = m_links[link].next)
                    visit(m_links[link].formula);
            for (const AreaLink& link : block->areas)
                if (link.row1 <= row && row <= link.row2) visit(link.formula);
        }
        for (BigArea& big : m_bigAreas) {
            if (big.walk == m_walk || row < big.area.row1 || row > big.area.row2 ||
                col < big.area.col1 || col > big.area.col2)
                continue;
            big.walk = m_walk;
            for (const uint32_t formula : big.formulas) visit(formula);
        }
    }

  private:
    static constexpr int blockShift = CellStore::blockShift;
    static constexpr int maxBlocksOfSmallArea = 4;
    struct Link {
        uint32_t formula;
        uint32_t next;
    };
    struct AreaLink {
        uint32_t formula;
        int32_t row1, row2;
    };
    struct Block {
        std::unique_ptr<uint32_t[]> heads;
        std::vector<AreaLink> areas;
    };
    struct BigArea {
        Area area;
        uint64_t walk;
        std::vector<uint32_t> formulas;
    };
    struct AreaHash {
        size_t operator()(const Area& a) const;
    };

    static size_t rowInBlock(int row) {
        return static_cast<size_t>(row - 1) & (CellStore::blockRows - 1);
    }
    const Block* find(int col, int row) const {
        const auto c = static_cast<size_t>(col);
        if (c >= m_columns.size()) return nullptr;
        const auto b = static_cast<size_t>(row - 1) >> blockShift;
        return b < m_columns[c].size() ? m_columns[c][b].get() : nullptr;
    }
    Block& obtain(int col, int row);
    void addCell(uint32_t formula, int col, int row);
    void addArea(uint32_t formula, const Area& area);

    std::vector<std::vector<std::unique_ptr<Block>>> m_columns;
    std::vector<Link> m_links{Link{0, 0}};  // index 0 ends every list
    std::vector<BigArea> m_bigAreas;
    std::unordered_map<Area, size_t, AreaHash> m_bigIndex;
    size_t m_areaLinks = 0;
    uint64_t m_walk = 1;
};

}  // namespace control
