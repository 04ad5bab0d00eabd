// What one cell was: value, formula and format, 24 bytes, with its texts shared. Undo histories and
// copies of blocks hold many of them.
#pragma once

#include <string>
#include <string_view>

#include "platform/export.h"
#include "spread/control/grid.h"

namespace editor {

class VORMANT_API CellSnapshot {
  public:
    CellSnapshot() = default;
    /// The cell as it is now; its result may be out of date. What has changed is propagated.
    static CellSnapshot of(const control::Sheet& sheet, int col, int row);
    CellSnapshot(const CellSnapshot& other);
    CellSnapshot(CellSnapshot&& other) noexcept;
    CellSnapshot& operator=(CellSnapshot other) noexcept;
    ~CellSnapshot();

    /// Makes the cell what was kept. The sheet is in A1 notation.
    void put(control::Grid& grid, int col, int row) const;

    control::Value value() const { return m_cell.value(); }
    bool isEmpty() const { return m_cell.type == control::ValueType::empty && !m_formula; }
    bool hasFormula() const { return m_formula != nullptr; }
    /// A formula that was never calculated: a result is never empty.
    bool hasNewFormula() const { return m_formula && m_cell.type == control::ValueType::empty; }
    /// Without "=", empty without a formula.
    std::string_view formula() const { return m_formula ? m_formula->view() : ""; }
    control::FormatIndex format() const { return m_cell.format; }

    void setFormat(control::FormatIndex format) { m_cell.format = format; }
    /// Replaces the text of a formula; its result is forgotten.
    void setFormula(std::string_view text);
    void setNumber(double number);
    void setText(std::string_view text);
    /// No value and no formula; the format stays.
    void empty();

    bool operator==(const CellSnapshot& other) const;

  private:
    void dropValue();
    void dropFormula();
    bool isArray() const { return m_cell.formula != 0; }

    control::Cell m_cell;  // its formula number tells an array formula (1) from a plain one
    control::TextBlock* m_formula = nullptr;
};

}  // namespace editor
