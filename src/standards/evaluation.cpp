// The turn of one equation cell.
#include "core_api/text/text_helpers.h"
#include "mapping/run_timers.h"
#include "standards/prepared_equation.h"
#include "standards/run_observer.h"
#include "standards/standards_messages.h"
#include "standards/tw_standards_ss.h"

namespace {

constexpr int equationTextLength = 200;            // characters a text equation's cell takes
constexpr unsigned equationTextStyle = 0x110000U;  // how it shows them
constexpr int equationDecimals = VarValue::shownDecimals;

}  // namespace

/// What came of it. The texts are made only when somebody is told.
struct TwStandardsSS::Turn {
    const PreparedEquation& equation;
    Vor_String reason;
    bool isReported = false;  ///< the failure is one that users are told

    ErrorStatus fail(const Vor_String& why) {
        reason = why;
        isReported = true;
        return Acad::eInvalidInput;
    }
};

ErrorStatus TwStandardsSS::evaluate(const PreparedEquation& equation, std::string_view text) {
    using Kind = PreparedEquation::Kind;
    Turn turn{equation, {}, false};
    ErrorStatus status = Acad::eOk;
    switch (equation.kind) {
        case Kind::irregular:
            status = turn.fail(equation.refusal);
            break;
        case Kind::childCall: {
            const Vor_FunctionTimer timer(gCalcCellCalcNativeFunctions);
            status = runChild(equation.expression, equation.function, equation.cell, turn.reason);
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
    if (RunObserver* observer = runObserver()) {
        const auto [column, row] = equation.cell;
        const bool isChildCall = equation.kind == Kind::childCall;
        const bool wasCalculated = equation.kind == Kind::ordinary;
        std::string value;
        observer->equationDone(
            {row, column, text, equation.name,
             isChildCall ? equation.expression.view() : equation.formula.view(),
             wasCalculated ? grid().text(column, row, Reading::value, value) : std::string_view(),
             isChildCall, status == Acad::eOk, turn.reason});
    }
    return status;
}

/// The formula into the equation cell, its result into the variable.
ErrorStatus TwStandardsSS::assign(Turn& turn) {
    const PreparedEquation& equation = turn.equation;
    const auto [column, row] = equation.cell;
    {
        const Vor_FunctionTimer timer(gCalcCellCalcFunctionsPrepare);
        if (equation.givesText)
            setTextCell(column, row, equationTextLength, equationTextStyle);
        else
            setNumberCell(column, row, equationDecimals);
    }
    if (equation.kind == PreparedEquation::Kind::refused) return turn.fail(equation.refusal);
    grid().setFormula(column, row, equation.program, equation.formula.block());

    const Vor_FunctionTimer timer(gCalcCellCalcFunctions);
    TwVarCell& target = m_varCells[equation.target];
    target.typedValue().readFrom(grid(), column, row, !equation.givesText);
    m_assignedIn[static_cast<size_t>(equation.target)] = equation.cell;
    if (target.setValueToSS(*this) == Acad::eOk) return Acad::eOk;
    turn.reason = "\"" + target.name() + "\" takes no value \"" + target.value() + "\": an " +
                  "Int or Double takes numbers up to 99999999999999, and nothing";
    return Acad::eInvalidInput;
}
