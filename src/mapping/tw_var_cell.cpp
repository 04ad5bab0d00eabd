#include "mapping/tw_var_cell.h"

#include <array>
#include <optional>

#include "core_api/text/number_text.h"
#include "core_api/text/text_helpers.h"
#include "mapping/cell_types.h"
#include "mapping/tw_dlg_standards_data.h"
#include "spread/control/formula/value.h"
#include "spread/vor_spread.h"

namespace {

constexpr std::array<std::string_view, 3> typeWords{"Int", "Double", "String"};

std::optional<TwValueType> typeOfDeclaration(std::string_view text) {
    for (size_t i = 0; i < typeWords.size(); ++i)
        if (text.starts_with(typeWords[i])) return static_cast<TwValueType>(i);
    return std::nullopt;
}

std::string_view withoutOuter(char symbol, std::string_view text) {
    const size_t first = text.find_first_not_of(symbol);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(symbol) - first + 1);
}

ErrorStatus statusOf(bool done) {
    return done ? Acad::eOk : Acad::eInvalidInput;
}

}  // namespace

TwVarCell::TwVarCell(const Vor_String& name, TwCellType cellType, TwValueType valueType,
                     const Vor_String& value)
    : m_name(name), m_cellType(cellType), m_value(value), m_valueType(valueType) {}

ErrorStatus TwVarCell::initialize(Vor_Spread& spread, const int& column, const int& row,
                                  const TwCellType& cellType) {
    if (!spread.isAttached() || !spread.grid().isInside(column, row)) return Acad::eInvalidInput;
    std::string buffer;
    const std::string_view text =
        withoutOuter(' ', spread.grid().text(column, row, control::Reading::value, buffer));
    const auto type = typeOfDeclaration(text);
    if (!type) return Acad::eInvalidInput;
    m_name = getSubstrAfter(text, " ");
    m_valueType = *type;
    m_cellType = cellType;
    m_column = column;
    m_row = row;
    return Acad::eOk;
}

ErrorStatus TwVarCell::setNewValue(const Vor_String& value) {
    m_value.setText(value);
    return Acad::eOk;
}

ErrorStatus TwVarCell::setNewValue(Vor_Spread& spread, const Vor_String& value) {
    m_value.setText(value);
    return setValueToSS(spread);
}

ErrorStatus TwVarCell::setNewValue(Vor_Spread& spread, const VarValue& value) {
    m_value = value;
    return setValueToSS(spread);
}

ErrorStatus TwVarCell::setValueToSS(Vor_Spread& spread) const {
    if (!spread.isAttached() || m_column < 1 || m_row < 1) return Acad::eInvalidInput;
    control::Grid& grid = spread.grid();
    const control::CellType& type = variableCellType(m_valueType);
    if (const double* number = isNumeric(m_valueType) ? m_value.number() : nullptr) {
        const bool isWhole = m_valueType == TwValueType::Int;
        return statusOf(grid.writeNumber(m_column, m_row, type,
                                         isWhole ? roundAsWritten(*number, 0) : *number));
    }
    if (isNumeric(m_valueType) && m_value.text().isEmpty())
        return statusOf(grid.writeEmpty(m_column, m_row, type));
    // The text of an error is the error again, so that it goes through all that reads the variable.
    const auto error = m_value.isError() ? formula::errorFromText(m_value.text()) : std::nullopt;
    return statusOf(grid.setType(m_column, m_row, type) &&
                    grid.writeValue(m_column, m_row,
                                    error ? formula::Value(*error)
                                          : formula::Value::borrowedText(m_value.text())));
}

ErrorStatus TwVarCell::getCurrentValue(Vor_Spread& spread, Vor_String& value) const {
    Vor_String text;
    if (m_column < 1 || m_row < 1 ||
        !spread.getCellText(m_column, m_row, text, Vor_Spread::Reading::value))
        return Acad::eInvalidInput;
    value = std::move(text);
    return Acad::eOk;
}

ErrorStatus TwVarCell::readFromSS(Vor_Spread& spread) {
    if (!spread.isAttached() || !spread.grid().isInside(m_column, m_row))
        return Acad::eInvalidInput;
    m_value.readFrom(spread.grid(), m_column, m_row);
    return Acad::eOk;
}

ErrorStatus TwVarCell::setValueFromOther(Vor_Spread& spread, const TwVarCell& other) {
    return setNewValue(spread, other.m_value);
}

ErrorStatus TwVarCell::setValueFromMacro(TwSSMapping& mapping, TwDlgStandardsData& data) {
    Vor_String text = m_value.text();
    if (mapping.getMacroVarValue(m_name, m_valueType, text, data) != Acad::eOk)
        return Acad::eInvalidInput;
    m_value.setText(text);
    return Acad::eOk;
}

ErrorStatus TwVarCell::setValueToMacro(TwSSMapping& mapping, TwDlgStandardsData& data) const {
    Vor_String text = m_value.text();
    // The core reads a text that is no number as 0: an error would become a distance of 0.
    if (m_value.isError()) return Acad::eInvalidInput;
    return mapping.setMacroVarValue(m_name, m_valueType, text, data);
}
