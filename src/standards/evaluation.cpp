// The calculation: each equation cell has its turn.
#include "core_api/text/rounded_as_written.h"
#include "mapping/cell_types.h"
#include "mapping/run_timers.h"
#include "spread/control/cell_text.h"
#include "standards/prepared_standard.h"
#include "standards/run_observer.h"
#include "standards/standards_messages.h"
#include "standards/tw_standards_ss.h"

/// What came of it. The texts are made only when somebody is told.
struct TwStandardsSS::Turn {
    const PreparedStandard& prepared;
    const PreparedEquation& equation;
    const formula::Value* result;  ///< of a formula that need not stand in its cell, else null
    Vor_String reason;
    bool isReported = false;  ///< the failure is one that users are told

    ErrorStatus fail(const Vor_String& why) {
        reason = why;
        isReported = true;
        return Acad::eInvalidInput;
    }
};

namespace {

/// With references; a child call as it is written; nothing where there is no formula.
std::string_view formulaShown(const PreparedStandard& prepared, const PreparedEquation& equation) {
    switch (equation.kind) {
        case PreparedEquation::Kind::childCall:
            return equation.expression();
        case PreparedEquation::Kind::irregular:
            return {};
        default:
            return prepared.formulaOf(equation).view();
    }
}

/// A formula in A1 notation as a sheet that shows R1C1 has it; nothing for other sheets.
SharedText inStyleOf(const control::Sheet& sheet, std::string_view formula,
                     control::CellAddress cell) {
    using formula::ReferenceStyle;
    if (sheet.referenceStyle() == ReferenceStyle::a1) return {};
    const auto text = formula::convertStyle(formula, ReferenceStyle::a1, sheet.referenceStyle(),
                                            cell.col, cell.row);
    return text ? SharedText(*text) : SharedText();
}

}  // namespace

void TwStandardsSS::evaluateAll(PreparedStandard& prepared) {
    m_fillsNow = m_fillsEquationCells || !prepared.needsNoEquationCells(m_varCells, grid());
    if (m_fillsNow || !m_goesOn) findValuePlaces();
    const RunObserver* observer = runObserver();
    const bool reportsAll = observer && observer->wantsEveryEquation();
    PreparedEquation changed;
    for (PreparedEquation& known : prepared.equations()) {
        const PreparedEquation& equation =
            m_fillsNow ? prepared.equationIn(known, m_varCells, grid(), changed) : known;
        const formula::Value* result = hiddenResult(equation);
        if (result && !reportsAll && takeAtOnce(equation, *result)) continue;
        if (equation.text.view().empty()) continue;
        fetchValues();
        (void)evaluate(prepared, equation, result);
    }
    fetchValues();
    noteReadiness(prepared);
    m_fillsNow = true;
}

/// What the formula gives where it need not stand in its cell, else null.
inline const formula::Value* TwStandardsSS::hiddenResult(const PreparedEquation& equation) {
    if (m_fillsNow || equation.kind != PreparedEquation::Kind::ordinary) return nullptr;
    const Vor_FunctionTimer timer(gCalcCellCalcFunctions);
    return grid().evaluate(*equation.program, equation.cell.col, equation.cell.row);
}

/// The ordinary case of a hidden run: a number into the cell of a numeric variable, or a text into
/// that of a String, at once. False, with nothing done, for everything else.
inline bool TwStandardsSS::takeAtOnce(const PreparedEquation& equation,
                                      const formula::Value& result) {
    return equation.givesText ? takeText(equation, result) : takeNumber(equation, result);
}

bool TwStandardsSS::takeText(const PreparedEquation& equation, const formula::Value& result) {
    const auto index = static_cast<size_t>(equation.target);
    ValuePlace& place = m_valuePlaces[index];
    // The text of an error becomes the error in the cell, which is not done here.
    if (!place.cell || !result.isText() || result.text().starts_with('#')) return false;
    control::setText(*place.cell, result.text());
    place.isOnlyInCell = true;
    m_assignedIn[index] = equation.cell;
    return true;
}

bool TwStandardsSS::takeNumber(const PreparedEquation& equation, const formula::Value& result) {
    const auto index = static_cast<size_t>(equation.target);
    ValuePlace& place = m_valuePlaces[index];
    if (!place.cell || !result.isNumber()) return false;
    const double shown = roundedAsWritten<VarValue::shownDecimals>(result.number());
    const bool isWhole = place.type->decimals == 0;
    const double stored = isWhole ? roundedAsWritten<0>(shown) : shown;
    if (!control::Grid::setPlain(*place.cell, *place.type, stored)) return false;
    if (isWhole) m_varCells[equation.target].typedValue().setNumber(shown);
    place.isOnlyInCell = !isWhole;
    m_assignedIn[index] = equation.cell;
    return true;
}

ErrorStatus TwStandardsSS::evaluate(const PreparedStandard& prepared,
                                    const PreparedEquation& equation,
                                    const formula::Value* result) {
    using Kind = PreparedEquation::Kind;
    Turn turn{prepared, equation, result, {}};
    ErrorStatus status = Acad::eOk;
    switch (equation.kind) {
        case Kind::irregular:
            status = turn.fail(*equation.detail);
            break;
        case Kind::childCall: {
            const Vor_FunctionTimer timer(gCalcCellCalcNativeFunctions);
            status = runChild(equation.expression(), *equation.detail, equation.cell, turn.reason);
            turn.isReported = status != Acad::eOk;
            break;
        }
        case Kind::ordinary:
        case Kind::refused:
            status = assign(turn);
            break;
    }
    if (turn.isReported)
        reportEquationFailure(m_filePath, equation.cell.row, equation.name(),
                              equation.expression());
    RunObserver* observer = runObserver();
    if (observer && (status != Acad::eOk || observer->wantsEveryEquation())) {
        const auto [column, row] = equation.cell;
        const bool isChildCall = equation.kind == Kind::childCall;
        const auto wasCalculated = equation.kind == Kind::ordinary;
        observer->equationDone(
            {row, column, equation.text.view(), equation.name(), formulaShown(prepared, equation),
             wasCalculated ? m_varCells[equation.target].value().view() : std::string_view(),
             isChildCall, status == Acad::eOk, turn.reason});
    }
    return status;
}

/// The result of the equation into its variable, and on sheets that are shown the formula into the
/// equation cell.
ErrorStatus TwStandardsSS::assign(Turn& turn) {
    const PreparedEquation& equation = turn.equation;
    if (equation.kind == PreparedEquation::Kind::refused) {
        setEquationType(equation);
        return turn.fail(*equation.detail);
    }
    TwVarCell& target = m_varCells[equation.target];
    const auto [column, row] = equation.cell;
    const Vor_FunctionTimer timer(gCalcCellCalcFunctions);
    if (turn.result && !equation.givesText && takeNumber(equation, *turn.result)) {
        fetchValue(equation.target);
        return Acad::eOk;
    }
    m_assignedIn[static_cast<size_t>(equation.target)] = equation.cell;
    if (turn.result) {
        target.typedValue().take(equationCellType(equation.givesText), *turn.result);
    } else {
        setEquationType(equation);
        const SharedText& formula = turn.prepared.formulaOf(equation);
        const SharedText converted = inStyleOf(grid().sheet(), formula.view(), equation.cell);
        grid().setFormula(column, row, equation.program,
                          (converted.block() ? converted : formula).block());
        target.typedValue().readFrom(grid(), column, row);
    }
    if (target.setValueToSS(*this) == Acad::eOk) return Acad::eOk;
    turn.reason = "\"" + target.name() + "\" takes no value \"" + target.value() +
                  "\": an Int or Double takes numbers up to 99999999999999, and nothing";
    return Acad::eInvalidInput;
}

void TwStandardsSS::setEquationType(const PreparedEquation& equation) {
    const Vor_FunctionTimer timer(gCalcCellCalcFunctionsPrepare);
    grid().setType(equation.cell.col, equation.cell.row, equationCellType(equation.givesText));
}
