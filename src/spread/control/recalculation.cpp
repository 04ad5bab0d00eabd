// Which formulas are out of date, and in which order they are calculated.
#include "spread/control/sheet.h"

namespace control {

void Sheet::setAutomatic(bool on) {
    m_automatic = on;
    if (on) recalculateDirty();
}

void Sheet::touched(int col, int row) {
    if (m_liveFormulas == 0) return;
    touchedQuietly(col, row);
    if (m_automatic) {
        recalculateDirty();
    } else if (m_changed.size() > 4096) {
        // Notes are only worth taking while they are fewer than what they save.
        settle();
    }
}

void Sheet::linkNew() {
    for (const uint32_t id : m_unlinked) {
        FormulaSlot& slot = m_slots[id];
        if (!slot.live || slot.linked) continue;
        m_dependents.add(id, slot.col, slot.row, *slot.program);
        slot.linked = true;
    }
    m_unlinked.clear();
}

void Sheet::relinkAll() {
    m_dependents.clear();
    m_unlinked.clear();
    for (size_t id = 1; id < m_slots.size(); ++id) {
        m_slots[id].linked = false;
        if (m_slots[id].live) m_unlinked.push_back(static_cast<uint32_t>(id));
    }
}

// Makes everything dirty that reads a changed cell, directly or through other formulas.
void Sheet::settle() {
    m_calculation.m_unsettled = false;
    if (m_changed.empty()) return;
    linkNew();
    m_dependents.beginWalk();
    for (size_t i = 0; i < m_changed.size(); ++i) {
        const CellAddress changed = m_changed[i];
        m_dependents.each(changed.col, changed.row, [&](uint32_t id) {
            const FormulaSlot& slot = m_slots[id];
            if (!slot.live) return;
            CellStore::Block& block = *m_cells.blockOf(slot.col, slot.row);
            Cell& cell = block.cells[CellStore::rowInBlock(slot.row)];
            if (cell.dirty) return;
            CellStore::setDirty(block, cell, true);
            m_dirtied.push_back(id);
            m_changed.push_back({slot.col, slot.row});
        });
    }
    m_changed.clear();
    if (m_dirtied.size() > 1024 + 2 * static_cast<size_t>(m_liveFormulas))
        std::erase_if(m_dirtied, [this](uint32_t id) {
            const FormulaSlot& slot = m_slots[id];
            return !slot.live || !m_cells.find(slot.col, slot.row)->dirty;
        });
}

bool Sheet::recalculateCell(int col, int row) {
    Cell* cell = m_cells.find(col, row);
    if (!cell || !cell->formula) return false;
    settle();
    m_cells.setDirty(col, row, *cell, true);
    calculate(cell->formula);
    return true;
}

void Sheet::recalculateDirty() {
    settle();
    for (const uint32_t id : m_volatile) {
        const FormulaSlot& slot = m_slots[id];
        if (slot.live) m_changed.push_back({slot.col, slot.row});
    }
    if (!m_changed.empty()) {
        for (const CellAddress& place : m_changed) {
            Cell& cell = m_cells.obtain(place.col, place.row);
            if (cell.dirty) continue;
            m_cells.setDirty(place.col, place.row, cell, true);
            m_dirtied.push_back(cell.formula);
        }
        settle();
    }
    // Calculating cannot dirty anything, so the list may be taken away.
    std::vector<uint32_t> dirtied;
    dirtied.swap(m_dirtied);
    for (const uint32_t id : dirtied) calculate(id);
    dirtied.clear();
    if (m_dirtied.empty()) m_dirtied.swap(dirtied);
}

void Sheet::recalculate() {
    m_changed.clear();
    m_dirtied.clear();
    m_calculation.m_unsettled = false;
    for (const uint32_t id : m_order) {
        const FormulaSlot& slot = m_slots[id];
        if (slot.live)
            m_cells.setDirty(slot.col, slot.row, *m_cells.find(slot.col, slot.row), true);
    }
    m_orderBroken = false;
    m_recordsOrder = true;
    m_newOrder.clear();
    m_newOrder.reserve(m_order.size());
    for (const uint32_t id : m_order) calculate(id);
    // The order in which things came out this time is one that needs no waiting next time.
    if (m_orderBroken) m_order.swap(m_newOrder);
    m_newOrder.clear();
    m_recordsOrder = false;
}

// Calculates a formula unless it is up to date already. False when it has to wait for others.
inline bool Sheet::tryCalculate(uint32_t id) {
    FormulaSlot& slot = m_slots[id];
    if (!slot.live) return true;
    CellStore::Block& block = *m_cells.blockOf(slot.col, slot.row);
    Cell& cell = block.cells[CellStore::rowInBlock(slot.row)];
    if (!cell.dirty) return true;
    const Value* result = m_evaluator.run(*slot.program, slot.col, slot.row);
    if (result) {
        m_cells.setValue(cell, *result);
        CellStore::setDirty(block, cell, false);
        slot.inProgress = false;
        if (m_recordsOrder) m_newOrder.push_back(id);
    }
    m_calculation.endCalculation();
    return result != nullptr;
}

// Calculates `first`, and before it whatever dirty formula it reads. The path of formulas that
// wait for each other is kept here, not on the C++ stack.
void Sheet::calculate(uint32_t first) {
    if (tryCalculate(first)) return;
    const size_t bottom = m_path.size();
    m_orderBroken = true;
    m_path.push_back(first);
    m_slots[first].inProgress = true;
    waitForDirty(bottom);
    while (m_path.size() > bottom) {
        const uint32_t id = m_path.back();
        if (tryCalculate(id)) {
            m_path.pop_back();
        } else {
            m_slots[id].inProgress = true;
            waitForDirty(bottom);
        }
    }
}

// Puts every dirty formula that the last run met on the path; one that is waiting there itself
// closes a circle.
void Sheet::waitForDirty(size_t bottom) {
    settle();
    for (const Area& area : m_calculation.m_dirtyAreas) {
        m_met.clear();
        m_cells.each(area, [&](int, int, const Cell& cell) {
            if (cell.dirty) m_met.push_back(cell.formula);
        });
        for (const uint32_t id : m_met) {
            const FormulaSlot& slot = m_slots[id];
            if (slot.inProgress) {
                markCircle(id, bottom);
                return;
            }
            m_path.push_back(id);
        }
    }
}

// Every formula that waits, from `start` on, is part of the circle.
void Sheet::markCircle(uint32_t start, size_t bottom) {
    size_t first = m_path.size();
    while (first > bottom && m_path[first - 1] != start) --first;
    for (size_t i = first > bottom ? first - 1 : bottom; i < m_path.size(); ++i) {
        FormulaSlot& slot = m_slots[m_path[i]];
        if (!slot.inProgress) continue;
        Cell& cell = *m_cells.find(slot.col, slot.row);
        m_cells.setValue(cell, ErrorCode::circ);
        m_cells.setDirty(slot.col, slot.row, cell, false);
        slot.inProgress = false;
        if (m_recordsOrder) m_newOrder.push_back(m_path[i]);
    }
}

}  // namespace control
