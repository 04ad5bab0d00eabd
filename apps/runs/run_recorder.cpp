#include "runs/given_value.h"
#include "runs/run_report.h"

namespace runs {

RunRecorder::RunRecorder(RunReport& report)
    : m_report(report),
      m_observerBefore(setRunObserver(this)),
      m_host(*this),
      m_listener([this](const MessageBox& box) {
          addMessage(box.lines());
          return true;
      }) {}

RunRecorder::~RunRecorder() {
    setRunObserver(m_observerBefore);
}

void RunRecorder::runStarted(std::string_view path, int) {
    current().path = path;
}

void RunRecorder::equationDone(const EquationReport& equation) {
    ReportedEquation kept;
    kept.row = equation.row;
    kept.column = equation.column;
    kept.text = equation.text;
    kept.name = equation.name;
    kept.formula = equation.formula;
    kept.value = equation.value;
    kept.ok = equation.ok;
    kept.message = equation.message;
    kept.child = std::move(m_endedChild);
    current().equations.push_back(std::move(kept));
}

void RunRecorder::childStarted(std::string_view path, int, int) {
    m_children.push_back(std::make_unique<RunReport>());
    m_children.back()->path = path;
}

void RunRecorder::childEnded(bool ok) {
    m_endedChild = std::move(m_children.back());
    m_endedChild->ok = ok;
    m_children.pop_back();
}

void RunRecorder::warning(std::string_view text) {
    addMessage({std::string(text)});
}

void RunRecorder::valuesGiven(const TwVarCells& variables) {
    RunReport& report = current();
    report.inputs.clear();
    for (const auto& variable : variables)
        if (variable.isInput())
            report.inputs.push_back({variable.name().str(), variable.value().str()});
}

void RunRecorder::inputUnread(std::string_view name) {
    m_report.unreadInputs.emplace_back(name);
}

/// Equations may have given inputs other values since; what was given stays in the report.
void RunRecorder::variablesKnown(const TwVarCells& variables) {
    RunReport& report = current();
    std::vector<RunReport::Variable> given = std::move(report.inputs);
    report.inputs.clear();
    const auto givenValue = [&](const TwVarCell& input) {
        for (const auto& known : given)
            if (input.name().equal(known.name)) return known.value;
        return input.value().str();
    };
    int position = 0;
    for (const auto& variable : variables) {
        auto& list = variable.isInput()    ? report.inputs
                     : variable.isOutput() ? report.outputs
                                           : report.locals;
        const bool isResult = variable.isOutput() && m_children.empty();
        list.push_back({variable.name().str(),
                        variable.isInput() ? givenValue(variable)
                        : isResult         ? handedOver(variable).text().str()
                                           : variable.value().str(),
                        variable.isLocal() ? -1 : position++});
    }
}

void RunRecorder::runEnded(bool ok) {
    current().ok = ok;
    if (!ok) current().failure = lastRunFailure();
}

void RunRecorder::print(std::string_view text) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    addMessage({std::string(text)});
}

void RunRecorder::addMessage(const std::vector<std::string>& lines) {
    // Some warnings are given to the observer and printed too.
    if (!m_report.messages.empty() && m_report.messages.back() == lines) return;
    m_report.messages.push_back(lines);
    for (const auto& child : m_children) child->messages.push_back(lines);
}

}  // namespace runs
