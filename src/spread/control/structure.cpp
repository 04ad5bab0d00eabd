// Rows and columns that come, go and change places, and what that does to formulas.
#include <cstdlib>

#include "spread/control/sheet.h"

namespace control {

using formula::MovedReference;
using formula::ParseError;

namespace {

// One end of a span under an insertion: what lies at or behind `at` moves.
void shift(int& first, int& last, int at, int count, int limit, bool& isGood) {
    if (first >= at) first += count;
    if (last >= at) last += count;
    if (first > limit) isGood = false;
    if (last > limit) last = limit;
}

// A span under a deletion: it shrinks, and is gone when nothing is left.
void shrink(int& first, int& last, int at, int count, bool& isGood) {
    const int end = at + count;  // the first one that stays
    if (first >= at && last < end) {
        isGood = false;
        return;
    }
    if (first >= end)
        first -= count;
    else if (first >= at)
        first = at;
    if (last >= end)
        last -= count;
    else if (last >= at)
        last = at - 1;
}

template <class Change>
bool changeRows(MovedReference& r, Change&& change) {
    if (r.wholeCols) return true;
    int first = r.area.row1, last = r.area.row2;
    bool isGood = true;
    change(first, last, isGood);
    r.area.row1 = first;
    r.area.row2 = last;
    return isGood;
}

template <class Change>
bool changeCols(MovedReference& r, Change&& change) {
    if (r.wholeRows) return true;
    int first = r.area.col1, last = r.area.col2;
    bool isGood = true;
    change(first, last, isGood);
    r.area.col1 = static_cast<uint16_t>(first);
    r.area.col2 = static_cast<uint16_t>(last);
    return isGood;
}

}  // namespace

// Moves the cells, then gives every formula its new place and its rewritten text.
template <class Move>
void Sheet::restructure(Move&& moveCells, const formula::MoveReference& moveReference) {
    const formula::ReferenceStyle style = m_style;
    setReferenceStyle(formula::ReferenceStyle::a1);
    moveCells();
    std::vector<bool> isSeen(m_slots.size(), false);
    const Area everything{1, formula::maxRows, 1, formula::maxCols};
    m_cells.each(everything, [&](int row, int col, const Cell& cell) {
        if (!cell.formula) return;
        isSeen[cell.formula] = true;
        m_slots[cell.formula].row = row;
        m_slots[cell.formula].col = static_cast<uint16_t>(col);
    });
    for (size_t id = 1; id < m_slots.size(); ++id) {
        FormulaSlot& slot = m_slots[id];
        if (!slot.live) continue;
        if (!isSeen[id]) {
            dropSlot(static_cast<uint32_t>(id));
            continue;
        }
        if (const auto text = formula::rewriteReferences(slot.text->view(), moveReference))
            replaceText(slot, *text);
    }
    relinkAll();
    setReferenceStyle(style);
    if (m_automatic) recalculateDirty();
}

// New text and program for a formula that stays in its slot; it is calculated when next needed.
void Sheet::replaceText(FormulaSlot& slot, std::string_view text) {
    if (slot.text->view() != text) {
        TextBlock::release(slot.text);
        slot.text = TextBlock::make(text);
    }
    auto settings = parseSettings(slot.col, slot.row);
    settings.arrayFormula = slot.isArray;
    ParseError error;
    formula::ProgramRef program = formula::parse(text, settings, error);
    if (!program) program = formula::parse("#NAME?", settings, error);
    if (program.get() == slot.program.get()) return;
    slot.program = std::move(program);
    Cell& cell = *m_cells.find(slot.col, slot.row);
    if (cell.dirty) return;
    m_cells.setDirty(slot.col, slot.row, cell, true);
    m_dirtied.push_back(static_cast<uint32_t>(&slot - m_slots.data()));
    m_changed.push_back({slot.col, slot.row});
}

void Sheet::dropSlot(uint32_t id) {
    FormulaSlot& slot = m_slots[id];
    TextBlock::release(slot.text);
    slot.text = nullptr;
    slot.program = {};
    slot.live = false;
    m_deadSlots.push_back(id);
    --m_liveFormulas;
}

void Sheet::insertRows(int at, int count) {
    restructure([&] { m_cells.insertRows(at, count); },
                [=](MovedReference& r) {
                    return changeRows(r, [=](int& first, int& last, bool& isGood) {
                        shift(first, last, at, count, formula::maxRows, isGood);
                    });
                });
}

void Sheet::deleteRows(int at, int count) {
    restructure([&] { m_cells.deleteRows(at, count); },
                [=](MovedReference& r) {
                    return changeRows(r, [=](int& first, int& last, bool& isGood) {
                        shrink(first, last, at, count, isGood);
                    });
                });
}

void Sheet::insertCols(int at, int count) {
    restructure([&] { m_cells.insertCols(at, count); },
                [=](MovedReference& r) {
                    return changeCols(r, [=](int& first, int& last, bool& isGood) {
                        shift(first, last, at, count, formula::maxCols, isGood);
                    });
                });
}

void Sheet::deleteCols(int at, int count) {
    restructure([&] { m_cells.deleteCols(at, count); },
                [=](MovedReference& r) {
                    return changeCols(r, [=](int& first, int& last, bool& isGood) {
                        shrink(first, last, at, count, isGood);
                    });
                });
}

// The text of a formula carried by (cols, rows): relative references go along.
std::string Sheet::carried(std::string_view text, int cols, int rows) const {
    const auto moved = formula::rewriteReferences(text, [=](MovedReference& r) {
        if (!r.wholeCols) {
            if (!r.rowsAbsolute[0]) r.area.row1 += rows;
            if (!r.rowsAbsolute[1]) r.area.row2 += rows;
        }
        int col1 = r.area.col1, col2 = r.area.col2;
        if (!r.wholeRows) {
            if (!r.colsAbsolute[0]) col1 += cols;
            if (!r.colsAbsolute[1]) col2 += cols;
        }
        if (col1 < 1 || col2 < 1 || col1 > formula::maxCols || col2 > formula::maxCols ||
            r.area.row1 < 1 || r.area.row2 < 1 || r.area.row1 > formula::maxRows ||
            r.area.row2 > formula::maxRows)
            return false;
        r.area.col1 = static_cast<uint16_t>(col1);
        r.area.col2 = static_cast<uint16_t>(col2);
        return true;
    });
    return moved ? *moved : std::string(text);
}

void Sheet::carryFormula(int col, int row, int cols, int rows) {
    Cell* cell = m_cells.find(col, row);
    if (!cell || !cell->formula) return;
    FormulaSlot& slot = m_slots[cell->formula];
    slot.col = static_cast<uint16_t>(col);
    slot.row = row;
    replaceText(slot, carried(slot.text->view(), cols, rows));
}

void Sheet::swapRows(int first, int other, int count) {
    if (first == other) return;
    const formula::ReferenceStyle style = m_style;
    setReferenceStyle(formula::ReferenceStyle::a1);
    const int lastCol = m_cells.lastCol();
    for (int col = 1; col <= lastCol; ++col)
        for (int i = 0; i < count; ++i) {
            m_cells.swapCells({col, first + i}, {col, other + i});
            carryFormula(col, first + i, 0, first - other);
            carryFormula(col, other + i, 0, other - first);
            touchedQuietly(col, first + i);
            touchedQuietly(col, other + i);
        }
    relinkAll();
    setReferenceStyle(style);
    if (m_automatic) recalculateDirty();
}

void Sheet::swapCols(int first, int other, int count) {
    if (first == other) return;
    const formula::ReferenceStyle style = m_style;
    setReferenceStyle(formula::ReferenceStyle::a1);
    const int lastRow = m_cells.lastRow();
    for (int row = 1; row <= lastRow; ++row)
        for (int i = 0; i < count; ++i) {
            m_cells.swapCells({first + i, row}, {other + i, row});
            carryFormula(first + i, row, first - other, 0);
            carryFormula(other + i, row, other - first, 0);
            touchedQuietly(first + i, row);
            touchedQuietly(other + i, row);
        }
    relinkAll();
    setReferenceStyle(style);
    if (m_automatic) recalculateDirty();
}

void Sheet::copyCell(CellAddress from, CellAddress to) {
    const Cell* source = m_cells.find(from.col, from.row);
    if (!source || source->isBlank()) {
        clearCell(to.col, to.row);
        return;
    }
    const uint16_t look = source->look;
    if (source->formula) {
        const formula::ReferenceStyle style = m_style;
        setReferenceStyle(formula::ReferenceStyle::a1);
        const FormulaSlot& slot = m_slots[source->formula];
        const bool isArray = slot.isArray;
        const std::string text = carried(slot.text->view(), to.col - from.col, to.row - from.row);
        ParseError error;
        if (isArray ? !setArrayFormula(to.col, to.row, text, error)
                    : !setFormula(to.col, to.row, text, error))
            loadFormula(to.col, to.row, text, Value());
        setReferenceStyle(style);
    } else {
        setValue(to.col, to.row, source->value());
    }
    setLook(to.col, to.row, look);
}

}  // namespace control
