// Rows and columns that come, go and change places, and what that does to formulas.
#include <algorithm>

#include "spread/control/reference_moves.h"
#include "spread/control/sheet.h"

namespace control {

using formula::ParseError;

namespace {

/// Whole columns and rows keep their text whatever comes into them or goes.
bool readsWholeLines(const formula::Program& program) {
    constexpr uint8_t whole = formula::Instruction::wholeCol | formula::Instruction::wholeRow;
    const auto code = program.code();
    return std::any_of(code.begin(), code.end(), [](const formula::Instruction& i) {
        return (i.op == formula::Op::area || i.op == formula::Op::place) && (i.flags & whole) != 0;
    });
}

}  // namespace

// Moves the cells, then gives every formula its new place and its rewritten text. Dirty are those
// that moved (ROW() needs no reference to change) and those whose text changed: the program, which
// holds distances, may well stay the same while a cell between them is gone.
template <class Move>
void Sheet::restructure(Move&& moveCells, const formula::MoveReference& moveReference) {
    propagate();  // what is noted are places
    const formula::ReferenceStyle style = m_style;
    writeFormulasIn(formula::ReferenceStyle::a1);
    moveCells();
    std::vector<bool> isSeen(m_slots.size(), false);
    std::vector<bool> isMoved(m_slots.size(), false);
    const Area everything{1, formula::maxRows, 1, formula::maxCols};
    m_cells.each(everything, [&](int row, int col, const Cell& cell) {
        if (!cell.formula) return;
        isSeen[cell.formula] = true;
        FormulaSlot& slot = m_slots[cell.formula];
        isMoved[cell.formula] = slot.row != row || slot.col != col;
        slot.row = row;
        slot.col = static_cast<uint16_t>(col);
    });
    for (size_t id = 1; id < m_slots.size(); ++id) {
        FormulaSlot& slot = m_slots[id];
        if (!slot.live) continue;
        if (!isSeen[id]) {
            dropSlot(static_cast<uint32_t>(id));
            continue;
        }
        const auto text = formula::rewriteReferences(slot.text->view(), moveReference);
        if (isMoved[id] || (text && *text != slot.text->view()) || readsWholeLines(*slot.program))
            replaceText(slot, text ? *text : std::string(slot.text->view()));
    }
    countResultText();  // some may be gone
    relinkAll();
    writeFormulasIn(style);
    if (m_automatic) recalculateDirty();
}

// New text and program for a formula that stays in its slot; it is calculated when next needed.
void Sheet::replaceText(FormulaSlot& slot, std::string_view text) {
    if (slot.text->view() != text) {
        TextBlock* const made = TextBlock::make(text);
        TextBlock::release(slot.text);
        slot.text = made;
    }
    auto settings = parseSettings(slot.col, slot.row);
    settings.arrayFormula = slot.isArray;
    ParseError error;
    formula::ProgramRef program = formula::parse(text, settings, error);
    if (!program) program = formula::parse("#NAME?", settings, error);
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
    restructure([&] { m_cells.insertRows(at, count); }, rowsInserted(at, count));
}

void Sheet::deleteRows(int at, int count) {
    restructure([&] { m_cells.deleteRows(at, count); }, rowsDeleted(at, count));
}

void Sheet::insertCols(int at, int count) {
    restructure([&] { m_cells.insertCols(at, count); }, colsInserted(at, count));
}

void Sheet::deleteCols(int at, int count) {
    restructure([&] { m_cells.deleteCols(at, count); }, colsDeleted(at, count));
}

namespace {

// Moves a run of lines by reversing its two parts and then the whole.
template <class Swap>
void relocateLines(int from, int count, int to, Swap&& swapLines) {
    const auto reverse = [&](int first, int last) {
        while (first < last) swapLines(first++, last--);
    };
    const int low = std::min(from, to);
    const int high = std::max(from, to) + count - 1;
    reverse(low, high);
    reverse(to, to + count - 1);
    if (to > from)
        reverse(low, to - 1);
    else
        reverse(to + count, high);
}

}  // namespace

void Sheet::moveRows(int from, int count, int to) {
    const auto moveCells = [&] {
        const int lastCol = m_cells.lastCol();
        relocateLines(from, count, to, [&](int a, int b) {
            for (int col = 1; col <= lastCol; ++col) m_cells.swapCells({col, a}, {col, b});
        });
    };
    restructure(moveCells, rowsMoved(from, count, to));
    touchAll({std::min(from, to), std::max(from, to) + count - 1, 1, formula::maxCols});
}

void Sheet::moveCols(int from, int count, int to) {
    const auto moveCells = [&] {
        const int lastRow = m_cells.lastRow();
        relocateLines(from, count, to, [&](int a, int b) {
            for (int row = 1; row <= lastRow; ++row) m_cells.swapCells({a, row}, {b, row});
        });
    };
    restructure(moveCells, colsMoved(from, count, to));
    touchAll({1, formula::maxRows, static_cast<uint16_t>(std::min(from, to)),
              static_cast<uint16_t>(std::max(from, to) + count - 1)});
}

// An area keeps its text when lines change places inside it, while its cells come in another order.
void Sheet::touchAll(const Area& area) {
    m_cells.each(area, [&](int row, int col, const Cell&) { touchedQuietly(col, row); });
    if (m_automatic) recalculateDirty();
}

void Sheet::carryFormula(int col, int row, int cols, int rows) {
    Cell* cell = m_cells.find(col, row);
    if (!cell || !cell->formula) return;
    FormulaSlot& slot = m_slots[cell->formula];
    slot.col = static_cast<uint16_t>(col);
    slot.row = row;
    replaceText(slot, carriedFormula(slot.text->view(), cols, rows));
}

void Sheet::swapRows(int first, int other, int count) {
    if (first == other) return;
    propagate();
    const formula::ReferenceStyle style = m_style;
    writeFormulasIn(formula::ReferenceStyle::a1);
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
    writeFormulasIn(style);
    if (m_automatic) recalculateDirty();
}

void Sheet::swapCols(int first, int other, int count) {
    if (first == other) return;
    propagate();
    const formula::ReferenceStyle style = m_style;
    writeFormulasIn(formula::ReferenceStyle::a1);
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
    writeFormulasIn(style);
    if (m_automatic) recalculateDirty();
}

// In the notation of the sheet.
std::string Sheet::carriedText(std::string_view text, CellAddress from, CellAddress to) const {
    using formula::convertStyle;
    constexpr formula::ReferenceStyle a1 = formula::ReferenceStyle::a1;
    const auto plain = convertStyle(text, m_style, a1, from.col, from.row);
    const std::string carried =
        carriedFormula(plain ? *plain : text, to.col - from.col, to.row - from.row);
    return convertStyle(carried, a1, m_style, to.col, to.row).value_or(carried);
}

void Sheet::copyCell(CellAddress from, CellAddress to) {
    const Cell* source = m_cells.find(from.col, from.row);
    if (!source || source->isBlank()) {
        clearCell(to.col, to.row);
        return;
    }
    const uint16_t format = source->format;
    if (source->formula) {
        // Nothing else changes its notation meanwhile: the copy is calculated at once, and
        // FORMULATEXT reads it.
        const FormulaSlot& slot = m_slots[source->formula];
        const bool isArray = slot.isArray;
        const std::string text = carriedText(slot.text->view(), from, to);
        ParseError error;
        if (isArray ? !setArrayFormula(to.col, to.row, text, error)
                    : !setFormula(to.col, to.row, text, error))
            putFormula(to.col, to.row, text, Value(), isArray);
    } else {
        setValue(to.col, to.row, source->value());
    }
    setFormat(to.col, to.row, format);
}

}  // namespace control
