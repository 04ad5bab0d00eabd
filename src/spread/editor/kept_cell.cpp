#include "spread/editor/kept_cell.h"

#include <utility>

namespace editor {

using control::Cell;
using control::TextBlock;
using control::ValueType;

KeptCell KeptCell::of(const control::Sheet& sheet, int col, int row) {
    KeptCell kept;
    const Cell* cell = sheet.find(col, row);
    if (!cell) return kept;
    kept.m_cell.look = cell->look;
    if (!cell->dirty) control::CellStore::shareValue(kept.m_cell, *cell);
    if (const auto formula = sheet.formula(col, row)) {
        kept.m_formula = TextBlock::make(*formula);
        kept.m_cell.formula = sheet.isArrayFormula(col, row) ? 1 : 0;
    }
    return kept;
}

KeptCell::KeptCell(const KeptCell& other) : m_cell(other.m_cell), m_formula(other.m_formula) {
    if (m_cell.type == ValueType::text) ++m_cell.text->references;
    if (m_formula) ++m_formula->references;
}

KeptCell::KeptCell(KeptCell&& other) noexcept
    : m_cell(std::exchange(other.m_cell, {})), m_formula(std::exchange(other.m_formula, nullptr)) {}

KeptCell& KeptCell::operator=(KeptCell other) noexcept {
    std::swap(m_cell, other.m_cell);
    std::swap(m_formula, other.m_formula);
    return *this;
}

KeptCell::~KeptCell() {
    dropValue();
    dropFormula();
}

void KeptCell::dropValue() {
    if (m_cell.type == ValueType::text) TextBlock::release(m_cell.text);
    m_cell.type = ValueType::empty;
    m_cell.number = 0;
}

void KeptCell::dropFormula() {
    if (m_formula) TextBlock::release(m_formula);
    m_formula = nullptr;
}

void KeptCell::put(control::Grid& grid, int col, int row) const {
    grid.putCell(col, row, m_cell, m_formula, isArray());
}

void KeptCell::setFormula(std::string_view text) {
    TextBlock* const made = TextBlock::make(text);
    dropValue();
    dropFormula();
    m_formula = made;
}

void KeptCell::empty() {
    dropValue();
    dropFormula();
    m_cell.formula = 0;
}

void KeptCell::setNumber(double number) {
    empty();
    m_cell.number = number;
    m_cell.type = ValueType::number;
}

void KeptCell::setText(std::string_view text) {
    TextBlock* const made = TextBlock::make(text);
    empty();
    m_cell.text = made;
    m_cell.type = ValueType::text;
}

bool KeptCell::operator==(const KeptCell& other) const {
    if (m_cell.type != other.m_cell.type || m_cell.look != other.m_cell.look ||
        hasFormula() != other.hasFormula() || formula() != other.formula() ||
        isArray() != other.isArray())
        return false;
    switch (m_cell.type) {
        case ValueType::number:
            return m_cell.number == other.m_cell.number;
        case ValueType::text:
            return m_cell.text->view() == other.m_cell.text->view();
        case ValueType::boolean:
            return m_cell.truth == other.m_cell.truth;
        case ValueType::error:
            return m_cell.error == other.m_cell.error;
        default:
            return true;
    }
}

}  // namespace editor
