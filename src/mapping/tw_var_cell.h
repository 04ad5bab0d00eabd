// One declared variable of a standards spreadsheet: its name, its kind, its value and the cell
// that holds it. The cell is first the declaration ("Double Width") and then, in the loaded copy,
// the value.
#pragma once

#include "core_api/text/vor_string.h"
#include "mapping/var_value.h"
#include "platform/host/error_status.h"

class TwDlgStandardsData;
class TwSSMapping;
class Vor_Spread;

enum class TwCellType { input = 0, output = 1, local = 2 };
enum class TwValueType { Int = 0, Double = 1, String = 2 };

inline bool isNumeric(TwValueType type) {
    return type != TwValueType::String;
}

class VORMANT_API TwVarCell {
  public:
    TwVarCell() = default;
    /// A variable without a cell, as callers of a run hand it in.
    TwVarCell(const Vor_String& name, TwCellType cellType, TwValueType valueType,
              const Vor_String& value = {});
    TwVarCell(const TwVarCell&) = default;
    TwVarCell& operator=(const TwVarCell&) = default;
    TwVarCell(TwVarCell&&) noexcept = default;
    TwVarCell& operator=(TwVarCell&&) noexcept = default;
    virtual ~TwVarCell() = default;

    /// Reads the declaration shown in the cell (column, row, from 1). Fails, with everything as it
    /// was, when the cell is outside the sheet or starts with none of "Int", "Double", "String".
    ErrorStatus initialize(Vor_Spread& spread, const int& column, const int& row,
                           const TwCellType& cellType);

    const Vor_String& name() const { return m_name; }
    TwCellType cellType() const { return m_cellType; }
    TwValueType valueType() const { return m_valueType; }
    bool isInput() const { return m_cellType == TwCellType::input; }
    bool isOutput() const { return m_cellType == TwCellType::output; }
    bool isLocal() const { return m_cellType == TwCellType::local; }
    /// The value cell, from 1; column 0 says that the variable has no cell.
    int column() const { return m_column; }
    int row() const { return m_row; }
    void setCell(int column, int row) {
        m_column = column;
        m_row = row;
    }

    const Vor_String& value() const { return m_value.text(); }
    const VarValue& typedValue() const { return m_value; }
    VarValue& typedValue() { return m_value; }

    ErrorStatus setNewValue(const Vor_String& value);
    /// Sets the value and writes it into the cell; the value stays set when the cell refuses it.
    ErrorStatus setNewValue(Vor_Spread& spread, const Vor_String& value);
    ErrorStatus setNewValue(Vor_Spread& spread, const VarValue& value);
    /// Gives the cell the look of the value type and writes the value. Fails when the cell takes
    /// no such value (a text in a number cell) or there is no cell.
    ErrorStatus setValueToSS(Vor_Spread& spread) const;
    /// What the cell shows; `value` is untouched on failure.
    ErrorStatus getCurrentValue(Vor_Spread& spread, Vor_String& value) const;
    /// What the cell shows becomes the value.
    ErrorStatus readFromSS(Vor_Spread& spread);
    ErrorStatus setValueFromOther(Vor_Spread& spread, const TwVarCell& other);

    /// Through `mapping`: the macro's value becomes the value, or the value goes into the macro.
    ErrorStatus setValueFromMacro(TwSSMapping& mapping, TwDlgStandardsData& data);
    ErrorStatus setValueToMacro(TwSSMapping& mapping, TwDlgStandardsData& data) const;

  private:
    Vor_String m_name;
    TwCellType m_cellType = TwCellType::input;
    VarValue m_value;
    TwValueType m_valueType = TwValueType::String;
    int m_column = 0;
    int m_row = 0;
};
