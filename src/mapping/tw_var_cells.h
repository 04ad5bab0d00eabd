// All variables of one standards spreadsheet in declaration order, and the mapping that tells
// where each lives in a macro.
#pragma once

#include "core_api/text/vor_array.h"
#include "mapping/tw_ss_mapping.h"
#include "mapping/tw_var_cell.h"

class VORMANT_API TwVarCells {
  public:
    TwVarCells() = default;
    TwVarCells(const TwVarCells&) = default;
    TwVarCells& operator=(const TwVarCells&) = default;
    TwVarCells(TwVarCells&&) noexcept = default;
    TwVarCells& operator=(TwVarCells&&) noexcept = default;
    virtual ~TwVarCells() = default;

    int length() const { return m_cells.length(); }
    TwVarCell& operator[](int index) { return m_cells[index]; }
    const TwVarCell& operator[](int index) const { return m_cells[index]; }
    void reserve(int count) { m_cells.reserve(count); }
    void append(TwVarCell cell) { m_cells.append(std::move(cell)); }
    bool removeAt(int index) { return m_cells.removeAt(index); }
    /// Removes the cells at `indexes`, which ascend.
    void removeAll(const Vor_Array<int>& indexes);
    /// Empties the cells; the mapping stays.
    void resetVarCells() { m_cells.clear(); }
    /// The cells become copies of those of `other`; the mapping stays.
    void takeCells(const TwVarCells& other) { m_cells = other.m_cells; }
    auto begin() { return m_cells.begin(); }
    auto end() { return m_cells.end(); }
    auto begin() const { return m_cells.begin(); }
    auto end() const { return m_cells.end(); }

    TwSSMapping& mapping() { return m_mapping; }
    const TwSSMapping& mapping() const { return m_mapping; }

    /// First cell of that name, letter case aside. `index` is untouched on failure.
    ErrorStatus findVarCell(const Vor_String& name, int& index) const;

    /// Inputs and outputs from the macro, locals empty. A mapping that cannot be had leaves the
    /// values as they are; fails only without a macro to ask. `unread`, when asked for, gets the
    /// names of the inputs that came without a value.
    ErrorStatus getFromMacro(TwDlgStandardsData& data, Vor_StringArray* unread = nullptr);
    /// Every output into the macro; one that fails is passed over.
    ErrorStatus setToMacro(TwDlgStandardsData& data);

    /// Outputs from what their cells show; all values into their cells. Both stop at the first
    /// failure.
    ErrorStatus getValuesFromSS(Vor_Spread& spread);
    ErrorStatus setValuesToSS(Vor_Spread& spread);

    /// Every input here has a namesake in `other` of the same type with the same value.
    bool hasSameInput(const TwVarCells& other) const;

  private:
    Vor_Array<TwVarCell> m_cells;
    TwSSMapping m_mapping;
};
