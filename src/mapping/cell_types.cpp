#include "mapping/cell_types.h"

#include "spread/vor_spread.h"

namespace {

constexpr int longestText = 9999;         // characters of a String
constexpr int longestEquationText = 200;  // characters that a text equation's cell takes
constexpr unsigned equationTextStyle = 0x110000U;

control::CellType numberCell(int decimals) {
    return control::numberType(decimals, 0, -Vor_Spread::largestNumber, Vor_Spread::largestNumber);
}

const control::CellType whole = numberCell(0);
const control::CellType decimal = numberCell(VarValue::shownDecimals);
const control::CellType text = control::editType(longestText);
const control::CellType equationText = control::editType(longestEquationText, equationTextStyle);

}  // namespace

const control::CellType& variableCellType(TwValueType type) {
    if (type == TwValueType::String) return text;
    return type == TwValueType::Int ? whole : decimal;
}

const control::CellType& equationCellType(bool givesText) {
    return givesText ? equationText : decimal;
}
