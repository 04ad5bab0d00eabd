#include "cli/standards/value_run.h"

#include <algorithm>

#include "cli/io/console.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/variables.h"
#include "exchange/texts.h"
#include "runs/run_report.h"

namespace cli {

void FailureWatch::equationDone(const EquationReport& equation) {
    if (equation.ok || !m_failure.empty()) return;
    if (!m_children.empty()) m_failure = shownPath(m_children.back()) + ": ";
    m_failure += "row " + std::to_string(equation.row) + ": ";
    exchange::appendUtf8(m_failure, equation.text);
    m_failure += ": ";
    m_failure += equation.message.empty() ? "failed" : shownMessage(equation.message);
}

void FailureWatch::dataFileFailed(std::string_view text) {
    if (m_missing.empty()) m_missing = shownMessage(text);
}

void FailureWatch::resultsShifted(std::string_view text) {
    std::string message = shownMessage(text);
    if (std::find(m_shifted.begin(), m_shifted.end(), message) != m_shifted.end()) return;
    complain(message);
    m_shifted.push_back(std::move(message));
}

ReportedOnce::ReportedOnce()
    : m_listener([this](const MessageBox& box) {
          if (std::find(m_messages.begin(), m_messages.end(), box.text) == m_messages.end()) {
              m_messages.push_back(box.text);
              complainLines(box.lines());
          }
          return true;
      }) {}

std::unique_ptr<ValueRun> ValueRun::open(const StandardName& standard) {
    Vor_String failure;
    auto request = runs::NamedRequest::open(standard.path, failure);
    if (!request) {
        complainText(failure);
        return nullptr;
    }
    return std::unique_ptr<ValueRun>(new ValueRun(std::move(*request)));
}

bool ValueRun::run(std::string& error) {
    m_watch.reset();
    if (!m_request.start()) {
        error = shownMessage(lastRunFailure());
        return false;
    }
    error = m_watch.failure();
    if (!error.empty()) return false;
    for (const auto& cell : cells()) {
        if (!cell.isOutput() || cell.typedValue().number() || !runs::isErrorText(cell.value()))
            continue;
        exchange::appendUtf8(error, cell.name());
        error += " is ";
        exchange::appendUtf8(error, cell.value());
        if (!m_watch.missing().empty()) error += ": " + m_watch.missing();
        return false;
    }
    return true;
}

}  // namespace cli
