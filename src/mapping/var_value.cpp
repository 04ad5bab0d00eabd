#include "mapping/var_value.h"

#include "spread/control/grid.h"

void VarValue::setText(std::string_view text) {
    m_text = Vor_String(text);
    m_kind = Kind::text;
}

void VarValue::makeText() const {
    m_text = Vor_String(m_number, shownDecimals);
    m_kind = Kind::numberWithText;
}

void VarValue::take(const control::CellType& type, const formula::Value& value) {
    if (type.isNumber() && type.decimals <= shownDecimals) {
        const formula::Value shown = control::Grid::shown(type, value);
        if (shown.isNumber()) {
            setNumber(shown.number());
            return;
        }
    }
    std::string buffer;
    setText(control::Grid::shownText(type, value, buffer));
}

void VarValue::readFrom(const control::Grid& grid, int column, int row) {
    take(grid.format(column, row).type, grid.sheet().value(column, row));
}

bool VarValue::isError() const {
    return m_kind == Kind::text && m_text.view().starts_with('#') && formula::errorFromText(m_text);
}
