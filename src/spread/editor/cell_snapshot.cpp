#include "spread/editor/cell_snapshot.h"

#include <utility>

namespace editor {

using control::Cell;
using control::TextBlock;
using control::ValueType;

CellSnapshot CellSnapshot::of(const control::Sheet& sheet, int col, int row) {
    CellSnapshot kept;
    const Cell* cell = sheet.find(col, row);
    if (!cell) return kept;
    kept.m_cell.format = cell->format;
    kept.m_cell.dirty = cell->dirty;
    control::CellStore::shareValue(kept.m_cell, *cell);
    if (const auto formula = sheet.formula(col, row)) {
        kept.m_formula = TextBlock::make(*formula);
        kept.m_cell.formula = sheet.isArrayFormula(col, row) ? 1 : 0;
    }
    return kept;
}

CellSnapshot::CellSnapshot(const CellSnapshot& other)
    : m_cell(other.m_cell), m_formula(other.m_formula) {
    if (m_cell.type == ValueType::text) ++m_cell.text->references;
    if (m_formula) ++m_formula->references;
}

CellSnapshot::CellSnapshot(CellSnapshot&& other) noexcept
    : m_cell(std::exchange(other.m_cell, {})), m_formula(std::exchange(other.m_formula, nullptr)) {}

CellSnapshot& CellSnapshot::operator=(CellSnapshot other) noexcept {
    std::swap(m_cell, other.m_cell);
    std::swap(m_formula, other.m_formula);
    return *this;
}

CellSnapshot::~CellSnapshot() {
    dropValue();
    dropFormula();
}

void CellSnapshot::dropValue() {
    if (m_cell.type == ValueType::text) TextBlock::release(m_cell.text);
    m_cell.type = ValueType::empty;
    m_cell.dirty = false;
    m_cell.number = 0;
}

void CellSnapshot::dropFormula() {
    if (m_formula) TextBlock::release(m_formula);
    m_formula = nullptr;
}

void CellSnapshot::put(control::Grid& grid, int col, int row) const {
    grid.putCell(col, row, m_cell, m_formula, isArray());
}

void CellSnapshot::setFormula(std::string_view text) {
    TextBlock* const made = TextBlock::make(text);
    dropValue();
    dropFormula();
    m_formula = made;
}

void CellSnapshot::empty() {
    dropValue();
    dropFormula();
    m_cell.formula = 0;
}

void CellSnapshot::setNumber(double number) {
    empty();
    m_cell.number = number;
    m_cell.type = ValueType::number;
}

void CellSnapshot::setText(std::string_view text) {
    TextBlock* const made = TextBlock::make(text);
    empty();
    m_cell.text = made;
    m_cell.type = ValueType::text;
}

bool CellSnapshot::operator==(const CellSnapshot& other) const {
    if (m_cell.type != other.m_cell.type || m_cell.format != other.m_cell.format ||
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
