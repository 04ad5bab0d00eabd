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

void VarValue::readFrom(const control::Grid& grid, int column, int row, bool numberCell) {
    if (numberCell) {
        const formula::Value shown = grid.shownValue(column, row);
        if (shown.isNumber()) {
            setNumber(shown.number());
            return;
        }
    }
    std::string buffer;
    setText(grid.text(column, row, control::Reading::value, buffer));
}

bool VarValue::isError() const {
    return m_kind == Kind::text && m_text.view().starts_with('#') && formula::errorFromText(m_text);
}
