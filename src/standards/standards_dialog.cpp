#include "standards/standards_dialog.h"

#include "core_api/text/text_helpers.h"
#include "mapping/run_timers.h"
#include "platform/window/host_window.h"
#include "platform/window/message_scope.h"
#include "standards/expected_variables.h"
#include "standards/prepared_standard.h"
#include "standards/run_chain.h"
#include "standards/run_failure.h"
#include "standards/run_observer.h"

namespace {

constexpr int gridId = 1000;
constexpr ControlTemplate controls[] = {
    {Control::placeholder, gridId, "", CRect{7, 7, 300, 200}},
};
const DialogResource resource{253, "Connection Standards", CRect{0, 0, 314, 214}, controls};

ErrorStatus fail(const TwStandardsSS& spread, const Vor_String& why) {
    setRunFailure(spread.filePath() + ": " + why);
    return Acad::eInvalidInput;
}

Vor_String refusalOf(const TwVarCell& variable) {
    return "\"" + variable.name() + "\" (" + coordinateName(variable) + ") takes no value \"" +
           variable.value() + "\": give an Int or Double a number up to 99999999999999";
}

}  // namespace

StandardsDialog::StandardsDialog() : CDialog(resource, livingMainWindow()) {}

std::unique_ptr<StandardsDialog> StandardsDialog::make() {
    std::unique_ptr<StandardsDialog> dialog(new StandardsDialog);
    const bool isMade = dialog->create() && dialog->m_spread.attach(dialog.get(), gridId, true);
    dialog->m_spread.setFillsEquationCells(false);  // nobody sees them
    return isMade ? std::move(dialog) : nullptr;
}

ErrorStatus StandardsDialog::run(RunningStandard& running) {
    const MessageScope busy(*this);  // the sheet stays until the run has ended
    {
        const Vor_FunctionTimer timer(gLoadFile);
        if (m_spread.loadFile(m_data.standardsName) != Acad::eOk) return Acad::eInvalidInput;
    }
    running.setPath(m_spread.filePath());
    RunObserver* observer = runObserver();
    if (observer) observer->runStarted(m_spread.filePath(), RunningStandard::depth() - 1);
    ErrorStatus status = Acad::eInvalidInput;
    if (m_data.mode == TwDlgStandardsData::Mode::macro) {
        status = initSSForInput();
        if (status == Acad::eOk) status = calcMain();
    } else {
        status = getFromVars();
        if (status == Acad::eOk) status = calcChild(running);
    }
    if (observer) observer->variablesKnown(m_spread.varCells());
    return status;
}

ErrorStatus StandardsDialog::initSSForInput() {
    if (!m_data.macro || !m_data.transaction)
        return fail(m_spread, "a run on a macro needs the macro and a transaction");
    TwVarCells& variables = m_spread.varCells();
    {
        const Vor_FunctionTimer timer(gInitSSForInput);
        m_spread.setGenVars(m_data.genNames, m_data.genValues);
        if (m_spread.initVarCells() != Acad::eOk) return Acad::eInvalidInput;
    }
    {
        const Vor_FunctionTimer timer(gSSSGetFromMacro);
        Vor_StringArray unread;
        if (variables.getFromMacro(m_data, &unread) != Acad::eOk)
            return fail(m_spread, "the macro's values cannot be read");
        if (RunObserver* observer = runObserver())
            for (const Vor_String& name : unread) observer->inputUnread(name);
    }
    {
        const Vor_FunctionTimer timer(gSetMacroValuelsToSS);
        if (m_spread.writeVariables() != Acad::eOk) {
            for (const TwVarCell& variable : variables)
                if (variable.setValueToSS(m_spread) != Acad::eOk)
                    return fail(m_spread, refusalOf(variable));
        }
    }
    if (RunObserver* observer = runObserver()) observer->valuesGiven(variables);
    const Vor_FunctionTimer timer(gSSSreplaceGenVars);
    m_spread.replaceGenVars();
    return Acad::eOk;
}

ErrorStatus StandardsDialog::calcMain() {
    TwVarCells& variables = m_spread.varCells();
    {
        const Vor_FunctionTimer timer(gCalcMain);
        if (m_spread.calcCells() != Acad::eOk) return Acad::eInvalidInput;
        if (variables.getValuesFromSS(m_spread) != Acad::eOk)
            return fail(m_spread, "the outputs cannot be read");
    }
    warnOfErrors();
    const Vor_FunctionTimer timer(gSetToMacro);
    variables.setToMacro(m_data);
    m_data.varCells = variables;
    return Acad::eOk;
}

ErrorStatus StandardsDialog::getFromVars() {
    const Vor_FunctionTimer timer(gGetFromVars);
    m_spread.setGenVars(m_data.genNames, m_data.genValues);
    if (m_spread.initVarCells() != Acad::eOk) {
        // The run goes on without variables.
        if (RunObserver* observer = runObserver()) observer->warning(lastRunFailure());
    }
    if (RunningStandard::depth() == 1 && !ExpectedVariables::areThose(m_spread.varCells()))
        return fail(m_spread,
                    "its inputs and outputs were changed since they were read: start again");
    int position = 0;
    TwVarCells& variables = m_spread.varCells();
    for (int i = 0; i < variables.length(); ++i) {
        // A variable that was only declared has no value yet.
        const ErrorStatus status =
            variables[i].isLocal() ? m_spread.writeVariable(i) : bind(i, position++);
        if (status != Acad::eOk) return status;
    }
    if (RunObserver* observer = runObserver()) observer->valuesGiven(m_spread.varCells());
    m_spread.replaceGenVars();
    return Acad::eOk;
}

/// Variable `index` takes the value of the data's cell at `position`.
ErrorStatus StandardsDialog::bind(int index, int position) {
    TwVarCell& variable = m_spread.varCells()[index];
    const TwVarCells& given = m_data.varCells;
    if (position >= given.length())
        return fail(m_spread, "no value is given for \"" + variable.name() +
                                  "\": give one for every input and output of the standard, in "
                                  "its order");
    const TwVarCell& source = given[position];
    if (variable.isOutput() && source.isInput())
        return fail(m_spread, "the input \"" + source.name() +
                                  "\" stands in the place of the "
                                  "output \"" +
                                  variable.name() +
                                  "\": give outputs where the standard has outputs");
    variable.typedValue() = source.typedValue();
    if (m_spread.writeVariable(index) != Acad::eOk) return fail(m_spread, refusalOf(variable));
    return Acad::eOk;
}

ErrorStatus StandardsDialog::calcChild(RunningStandard& running) {
    {
        const Vor_FunctionTimer timer(gCalcChild);
        if (m_spread.calcCells() != Acad::eOk) return Acad::eInvalidInput;
    }
    warnOfErrors();
    warnOfShift();
    return setToVars(running);
}

ErrorStatus StandardsDialog::setToVars(RunningStandard& running) {
    const Vor_FunctionTimer timer(gSetToVars);
    int position = 0;
    for (const TwVarCell& variable : m_spread.varCells()) {
        if (variable.isLocal()) continue;
        const int at = position++;
        if (!variable.isOutput()) continue;
        if (at >= m_data.varCells.length())
            return fail(m_spread, "no place is given for the output \"" + variable.name() + "\"");
        m_data.varCells[at].typedValue() = variable.typedValue();
        if (RunningStandard::depth() > 1) running.giveBack(at);
    }
    return Acad::eOk;
}

/// Inputs and outputs that are declared again take values from a caller, but were dropped when the
/// results go back. Who runs a standard by names knows (apps/runs); a call does not.
void StandardsDialog::warnOfShift() {
    RunObserver* observer = runObserver();
    if (RunningStandard::depth() < 2 || !m_spread.prepared()) return;
    const Vor_String names = arrToStr(m_spread.prepared()->shiftingNames(), ", ");
    if (names.isEmpty()) return;
    const Vor_String text = m_spread.filePath() + ": declared more than once: " + names +
                            ": the results of the call come back in wrong places: rename them";
    if (observer)
        observer->resultsShifted(text);
    else
        acutPrint(text + "\n");
}

/// An error in an output reaches no macro; somebody should know.
void StandardsDialog::warnOfErrors() {
    const bool onMacro = m_data.mode == TwDlgStandardsData::Mode::macro;
    RunObserver* observer = runObserver();
    if (!onMacro && !observer) return;
    const TwVarCells& variables = m_spread.varCells();
    for (int i = 0; i < variables.length(); ++i) {
        const TwVarCell& variable = variables[i];
        if (!variable.isOutput() || !variable.typedValue().isError()) continue;
        const control::CellAddress cell = m_spread.assignedIn(i);
        const Vor_String place = cell.row > 0 ? m_spread.filePath() + ":" + Vor_String(cell.row, 0)
                                              : m_spread.filePath();
        const Vor_String text =
            place + ": output \"" + variable.name() + "\" is " + variable.value() +
            (cell.row > 0 ? " by the equation in this row" : "") +
            (onMacro ? "; the macro keeps its value" : "") + ": check the values it is made from";
        if (observer) observer->warning(text);
        if (onMacro) acutPrint(text + "\n");
    }
}
