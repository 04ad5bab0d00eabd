// Which formulas are out of date, and in which order they are calculated.
#include <algorithm>

#include "spread/control/formula/places.h"
#include "spread/control/sheet.h"
#include "spread/control/stop_calculation.h"

namespace control {

void Sheet::setAutomatic(bool on) {
    m_automatic = on;
    if (on) recalculateDirty();
}

void Sheet::touched(int col, int row) {
    if (m_liveFormulas == 0) return;
    touchedQuietly(col, row);
    follow();
}

void Sheet::follow() {
    if (m_automatic) {
        recalculateDirty();
    } else if (m_changed.size() > 4096) {
        // Notes are only worth taking while they are fewer than what they save.
        propagate();
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

// A volatile formula may read any cell.
void Sheet::touchVolatile() {
    for (const uint32_t id : m_volatile) {
        const FormulaSlot& slot = m_slots[id];
        if (!slot.live) continue;
        Cell& cell = *m_cells.find(slot.col, slot.row);
        if (cell.dirty) continue;
        m_cells.setDirty(slot.col, slot.row, cell, true);
        m_dirtied.push_back(id);
        touchedQuietly(slot.col, slot.row);
    }
}

// Directly or through other formulas.
void Sheet::propagate() {
    if (!m_changed.empty()) touchVolatile();
    m_calculation.m_hasPendingChanges = false;
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
    m_isStopped = false;
    m_cells.setDirty(col, row, *cell, true);
    calculateChanged(cell->formula);
    return true;
}

// Whether what a formula names is out of date. What reads a dirty formula is dirty itself:
// propagate() goes no further where it meets one.
bool Sheet::readsDirty(const FormulaSlot& slot) const {
    if (m_dirtied.empty()) return false;
    bool found = false;
    const auto isDirty = [](const Cell& cell) { return cell.dirty; };
    formula::eachAreaRead(*slot.program, slot.col, slot.row, [&](const Area& area) {
        if (!found)
            m_cells.eachRun(area, [&](const CellStore::Run& run) {
                found = found ||
                        (run.block->dirtyCount != 0 && std::any_of(run.first, run.end, isDirty));
            });
    });
    return found;
}

void Sheet::bringUpToDate(int col, int row) {
    propagate();
    m_isStopped = false;
    const Cell* cell = m_cells.find(col, row);
    if (cell && cell->dirty) calculate(cell->formula);
}

void Sheet::recalculateDirty() {
    touchVolatile();
    propagate();
    m_isStopped = false;
    // Calculating cannot dirty anything, so the list may be taken away.
    std::vector<uint32_t> dirtied;
    dirtied.swap(m_dirtied);
    for (const uint32_t id : dirtied) {
        calculate(id);
        if (m_isStopped) break;
    }
    if (m_isStopped) {
        m_dirtied.insert(m_dirtied.end(), dirtied.begin(), dirtied.end());
        return;
    }
    dirtied.clear();
    if (m_dirtied.empty()) m_dirtied.swap(dirtied);
}

void Sheet::recalculate() {
    m_changed.clear();
    m_dirtied.clear();
    m_calculation.m_hasPendingChanges = false;
    for (const uint32_t id : m_order) {
        const FormulaSlot& slot = m_slots[id];
        if (slot.live)
            m_cells.setDirty(slot.col, slot.row, *m_cells.find(slot.col, slot.row), true);
    }
    m_orderBroken = false;
    m_isStopped = false;
    m_recordsOrder = true;
    m_newOrder.clear();
    m_newOrder.reserve(m_order.size());
    for (const uint32_t id : m_order) {
        calculate(id);
        if (m_isStopped) break;
    }
    m_recordsOrder = false;
    if (m_isStopped) {
        m_dirtied = m_order;
    } else if (m_orderBroken) {
        // The order in which things came out this time is one that needs no waiting next time.
        m_order.swap(m_newOrder);
    }
    m_newOrder.clear();
}

// What a formula gives goes into its cell; a text only while there is room for it.
inline void Sheet::storeResult(Cell& cell, const Value& result) {
    if (cell.type == ValueType::text || result.isText()) [[unlikely]] {
        const size_t others = m_resultText - textSize(cell);
        const size_t size = result.isText() ? result.text().size() : 0;
        const bool hasRoom = size == 0 || others + size <= mostResultText;
        m_cells.setValue(cell, hasRoom ? result : Value(ErrorCode::num));
        m_resultText = others + textSize(cell);
        return;
    }
    m_cells.setValue(cell, result);
}

void Sheet::countResultText() {
    m_resultText = 0;
    for (const FormulaSlot& slot : m_slots)
        if (slot.live) m_resultText += textSize(*m_cells.find(slot.col, slot.row));
}

// Now and then, by the work that was done since.
[[gnu::noinline]] void Sheet::askToStop() {
    constexpr int64_t workBetween = 20'000'000;  // some hundredths of a second
    m_workBeforeAsk = workBetween;
    if (mustStopCalculation()) m_isStopped = true;
}

// Calculates a formula unless it is up to date already. False when it has to wait for others.
inline bool Sheet::tryCalculate(uint32_t id) {
    FormulaSlot& slot = m_slots[id];
    if (!slot.live) return true;
    CellStore::Block& block = *m_cells.blockOf(slot.col, slot.row);
    Cell& cell = block.cells[CellStore::rowInBlock(slot.row)];
    if (!cell.dirty) return true;
    const Value* result = m_evaluator.run(*slot.program, slot.col, slot.row);
    m_workBeforeAsk -= m_calculation.workDone();
    if (m_workBeforeAsk < 0) [[unlikely]]
        askToStop();
    if (result) {
        storeResult(cell, *result);
        CellStore::setDirty(block, cell, false);
        if (m_recordsOrder) m_newOrder.push_back(id);
    }
    m_calculation.endCalculation();
    return result != nullptr;
}

// Calculates `first`, and before it whatever dirty formula it reads. Those that wait are kept here,
// not on the C++ stack.
void Sheet::calculate(uint32_t first) {
    if (tryCalculate(first)) return;
    m_orderBroken = true;
    const size_t bottom = m_waiting.size();
    const size_t met = m_met.size();
    wait(bottom, beginWaiting(first, nobody));
    letGo(bottom);  // nothing is left unless the calculation was stopped
    m_met.resize(met);
    if (m_isStopped) m_dirtied.push_back(first);
}

// Calculates a formula that is new or may give something else now. What reads its cell is dirty
// before, not after: else a circle through the cell would read what the cell showed last.
void Sheet::calculateChanged(uint32_t id) {
    const FormulaSlot& slot = m_slots[id];
    touchedQuietly(slot.col, slot.row);
    if (m_automatic) propagate();
    calculate(id);
    follow();
}

// Goes through the formulas that wait as one goes through a graph for its circles: a formula is
// done when all it waits for are. Formulas that lead to each other stay in m_waiting until it is
// clear which of them is the first, and then are one circle, wherever calculating began. One that
// is blocked runs again as long as anything else that it waited for has been done since: it may not
// ask for the rest any more.
void Sheet::wait(size_t bottom, uint32_t top) {
    while (top != nobody && !m_isStopped) {
        if (m_met.size() > m_waiting[top].firstMet) {
            const uint32_t id = m_met.back();
            m_met.pop_back();
            if (m_slots[id].inProgress) {
                // One below waits for the call that this calculation came from.
                const auto lowest = static_cast<uint32_t>(bottom);
                const uint32_t low = m_waiting[m_places[id]].low;
                m_waiting[top].low = std::min(m_waiting[top].low, std::max(low, lowest));
                m_waiting[top].isBlocked = true;
            } else if (tryCalculate(id)) {
                m_waiting[top].hasProgress = true;
            } else {
                top = beginWaiting(id, top);
            }
        } else if (m_waiting[top].isBlocked && !m_waiting[top].hasProgress) {
            top = endWaiting(top);
        } else if (tryCalculate(m_waiting[top].id)) {
            const uint32_t parent = m_waiting[top].parent;
            letGo(top);
            if (parent != nobody) m_waiting[parent].hasProgress = true;
            top = parent;
        } else {
            Waiting& waiting = m_waiting[top];
            waiting.isRough = waiting.isRough || waiting.isBlocked;
            waiting.isBlocked = waiting.hasProgress = false;
            meetDirty(waiting);
        }
    }
}

uint32_t Sheet::beginWaiting(uint32_t id, uint32_t parent) {
    const auto place = static_cast<uint32_t>(m_waiting.size());
    const auto firstMet = static_cast<uint32_t>(m_met.size());
    m_waiting.push_back({id, parent, place, firstMet, false, false, false});
    if (m_places.size() < m_slots.size()) m_places.resize(m_slots.size());
    m_places[id] = place;
    m_slots[id].inProgress = true;
    meetDirty(m_waiting[place]);
    return place;
}

// Every dirty formula that the last run of `waiting` met. Of what was met before changes were
// followed, nobody knew whether it was dirty: a run that did not read what is up to date says
// nothing about circles.
void Sheet::meetDirty(Waiting& waiting) {
    if (m_calculation.m_hasPendingChanges) waiting.hasProgress = true;
    propagate();
    for (const Area& area : m_calculation.m_dirtyAreas)
        m_cells.each(area, [&](int, int, const Cell& cell) {
            if (cell.dirty) m_met.push_back(cell.formula);
        });
}

// Of one that is blocked: the first of a circle closes it, another one blocks its parent too. Is
// the way to the circle rough, the first one goes through it once more.
uint32_t Sheet::endWaiting(uint32_t top) {
    const Waiting blocked = m_waiting[top];
    const bool isFirst = blocked.low == top;
    if (isFirst && blocked.isRough) {
        letGo(top + 1);
        m_waiting[top].isRough = m_waiting[top].isBlocked = false;
        return top;
    }
    if (isFirst) markCircle(top);
    if (blocked.parent == nobody) return nobody;
    Waiting& parent = m_waiting[blocked.parent];
    if (isFirst) {
        parent.hasProgress = true;
    } else {
        parent.low = std::min(parent.low, blocked.low);
        parent.isBlocked = true;
        parent.isRough = parent.isRough || blocked.isRough;
    }
    return blocked.parent;
}

// Every formula from `root` on is part of the circle.
void Sheet::markCircle(uint32_t root) {
    for (size_t i = root; i < m_waiting.size(); ++i) {
        const FormulaSlot& slot = m_slots[m_waiting[i].id];
        if (!slot.live) continue;
        Cell& cell = *m_cells.find(slot.col, slot.row);
        storeResult(cell, ErrorCode::circ);
        m_cells.setDirty(slot.col, slot.row, cell, false);
        if (m_recordsOrder) m_newOrder.push_back(m_waiting[i].id);
    }
    letGo(root);
}

// Those from `first` on wait no longer: they are done, or are tried again when somebody needs them.
void Sheet::letGo(size_t first) {
    for (size_t i = first; i < m_waiting.size(); ++i) m_slots[m_waiting[i].id].inProgress = false;
    m_waiting.resize(first);
}

}  // namespace control
