// The turn of one equation cell.
#include "core_api/text/number_text.h"
#include "mapping/cell_types.h"
#include "mapping/run_timers.h"
#include "standards/prepared_standard.h"
#include "standards/run_observer.h"
#include "standards/standards_messages.h"
#include "standards/tw_standards_ss.h"

/// What came of it. The texts are made only when somebody is told.
struct TwStandardsSS::Turn {
    const PreparedStandard& prepared;
    const PreparedEquation& equation;
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
            return equation.expression;
        case PreparedEquation::Kind::irregular:
            return {};
        default:
            return prepared.formulaOf(equation).view();
    }
}

}  // namespace

ErrorStatus TwStandardsSS::evaluate(const PreparedStandard& prepared,
                                    const PreparedEquation& equation) {
    using Kind = PreparedEquation::Kind;
    Turn turn{prepared, equation, {}, false};
    ErrorStatus status = Acad::eOk;
    switch (equation.kind) {
        case Kind::irregular:
            status = turn.fail(*equation.detail);
            break;
        case Kind::childCall: {
            const Vor_FunctionTimer timer(gCalcCellCalcNativeFunctions);
            status = runChild(equation.expression, *equation.detail, equation.cell, turn.reason);
            turn.isReported = status != Acad::eOk;
            break;
        }
        case Kind::ordinary:
        case Kind::refused:
            status = assign(turn);
            break;
    }
    if (turn.isReported)
        reportEquationFailure(m_filePath, equation.cell.row, equation.name, equation.expression);
    RunObserver* observer = runObserver();
    if (observer && (status != Acad::eOk || observer->wantsEveryEquation())) {
        const auto [column, row] = equation.cell;
        const bool isChildCall = equation.kind == Kind::childCall;
        const auto wasCalculated = equation.kind == Kind::ordinary;
        observer->equationDone(
            {row, column, equation.text.view(), equation.name, formulaShown(prepared, equation),
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
    const auto result = m_fillsNow ? std::nullopt : grid().evaluate(*equation.program, column, row);
    if (result) {
        target.typedValue().take(equationCellType(equation.givesText), *result);
    } else {
        setEquationType(equation);
        grid().setFormula(column, row, equation.program, turn.prepared.formulaOf(equation).block());
        target.typedValue().readFrom(grid(), column, row);
    }
    m_assignedIn[static_cast<size_t>(equation.target)] = equation.cell;
    if (writeTarget(equation.target) == Acad::eOk) return Acad::eOk;
    turn.reason = "\"" + target.name() + "\" takes no value \"" + target.value() +
                  "\": an Int or Double takes numbers up to 99999999999999, and nothing";
    return Acad::eInvalidInput;
}

ErrorStatus TwStandardsSS::writeTarget(int index) {
    const TwVarCell& target = m_varCells[index];
    const double* number = target.typedValue().number();
    const auto at = static_cast<size_t>(index);
    control::Cell* cell = at < m_valueCells.size() ? m_valueCells[at] : nullptr;
    if (number && cell) {
        const bool isWhole = target.valueType() == TwValueType::Int;
        if (control::Grid::setPlain(*cell, variableCellType(target.valueType()),
                                    isWhole ? roundAsWritten(*number, 0) : *number))
            return Acad::eOk;
    }
    return target.setValueToSS(*this);
}

void TwStandardsSS::setEquationType(const PreparedEquation& equation) {
    const Vor_FunctionTimer timer(gCalcCellCalcFunctionsPrepare);
    grid().setType(equation.cell.col, equation.cell.row, equationCellType(equation.givesText));
}
