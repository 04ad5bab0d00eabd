// Where the values of variables live in hidden runs: straight in the cells, from one run of a
// standard to the next.
#include <algorithm>
#include <utility>

#include "core_api/text/number_text.h"
#include "mapping/cell_types.h"
#include "spread/control/cell_text.h"
#include "standards/prepared_standard.h"
#include "standards/tw_standards_ss.h"

namespace {

// What takes the usual way is noted by the grid each time: now and then a run starts afresh, so
// that this comes to an end.
constexpr size_t mostChangedCells = 512;

}  // namespace

/// Whether the sheet is as the last run of this very document left it (noteReadiness).
bool TwStandardsSS::goesOnWith(const Vor_String& path) const {
    return m_readyWith && *m_readyWith <= mostChangedCells && m_prepared &&
           path.view() == m_filePath.view() && grid().changedCells() == m_readyWith &&
           control::knownDocument(path) == grid().document();
}

/// After a run: whether nothing but values in the cells of the variables distinguishes the sheet
/// from one that was loaded and has its first values.
void TwStandardsSS::noteReadiness(const PreparedStandard& prepared) {
    const auto hasCell = [](const ValuePlace& place) { return place.cell != nullptr; };
    const bool isReady = !m_fillsNow && m_genNames.isEmpty() && &prepared == m_prepared.get() &&
                         grid().document() && grid().document()->attachment() == m_prepared &&
                         m_varCells.length() == prepared.declarations().length() &&
                         std::all_of(m_valuePlaces.begin(), m_valuePlaces.end(), hasCell);
    m_readyWith = isReady ? grid().changedCells() : std::nullopt;
}

/// Instead of going on, for a run that changes more than values.
void TwStandardsSS::startAfresh() {
    m_goesOn = false;
    m_valuePlaces.clear();
    grid().restore(grid().document());
}

/// Without formulas in the sheet nobody has to hear of new values: they can go straight into the
/// cells of the variables.
void TwStandardsSS::findValuePlaces() {
    m_valuePlaces.assign(static_cast<size_t>(m_varCells.length()), {});
    if (m_fillsNow) return;
    for (int i = 0; i < m_varCells.length(); ++i) {
        const TwVarCell& cell = m_varCells[i];
        ValuePlace& place = m_valuePlaces[static_cast<size_t>(i)];
        place.type = &variableCellType(cell.valueType());
        place.cell = grid().plainCell(cell.column(), cell.row(), *place.type);
    }
}

/// Values stay in the cells while equations assign and read them there; before anybody looks at the
/// variables they get what their cells hold.
void TwStandardsSS::fetchValues() {
    for (size_t i = 0; i < m_valuePlaces.size(); ++i)
        if (m_valuePlaces[i].isOnlyInCell) fetchValue(static_cast<int>(i));
}

void TwStandardsSS::fetchValue(int index) {
    ValuePlace& place = m_valuePlaces[static_cast<size_t>(index)];
    if (!std::exchange(place.isOnlyInCell, false)) return;
    VarValue& kept = m_varCells[index].typedValue();
    const formula::Value value = place.cell->value();
    if (value.isNumber())
        kept.setNumber(value.number());
    else
        kept.setText(value.isText() ? value.text() : std::string_view());
}

ErrorStatus TwStandardsSS::writeVariables() {
    for (int i = 0; i < m_varCells.length(); ++i)
        if (writeVariable(i) != Acad::eOk) return Acad::eInvalidInput;
    return Acad::eOk;
}

ErrorStatus TwStandardsSS::writeVariable(int index) {
    const TwVarCell& variable = m_varCells[index];
    if (!m_goesOn) return variable.setValueToSS(*this);
    ValuePlace& place = m_valuePlaces[static_cast<size_t>(index)];
    if (writeAtOnce(variable, place)) return Acad::eOk;
    if (variable.setValueToSS(*this) != Acad::eOk) return Acad::eInvalidInput;
    const bool isTextOfNumber = isNumeric(variable.valueType()) && !variable.typedValue().number();
    place.givenNumber.reset();
    if (isTextOfNumber && place.cell->type == formula::ValueType::number) {
        place.given = variable.value();
        place.givenNumber = place.cell->number;
    }
    return Acad::eOk;
}

/// What setValueToSS does with the ordinary values. False, with nothing done, for everything else.
bool TwStandardsSS::writeAtOnce(const TwVarCell& variable, ValuePlace& place) {
    control::Cell& cell = *place.cell;
    const VarValue& value = variable.typedValue();
    if (!isNumeric(variable.valueType())) {
        const std::string_view text = value.text();
        if (text.starts_with('#')) return false;  // an error, perhaps
        control::setText(cell, text);
        return true;
    }
    if (const double* number = value.number())
        return control::Grid::setPlain(
            cell, *place.type,
            variable.valueType() == TwValueType::Int ? roundAsWritten(*number, 0) : *number);
    const std::string_view text = value.text();
    if (text.empty() && cell.type != formula::ValueType::text) {
        cell.number = 0;
        cell.type = formula::ValueType::empty;
        return true;
    }
    return place.givenNumber && text == place.given.view() &&
           control::Grid::setPlain(cell, *place.type, *place.givenNumber);
}
