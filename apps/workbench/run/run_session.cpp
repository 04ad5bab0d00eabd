#include "workbench/run/run_session.h"

#include <algorithm>

#include "core_api/files.h"
#include "platform/encodings.h"
#include "runs/given_value.h"

namespace {

std::optional<std::int64_t> timeOf(const Vor_String& path) {
    std::int64_t time = 0;
    if (ObjectExportGetFileTime(path, time) != Acad::eOk) return std::nullopt;
    return time;
}

bool contains(const std::string& text, std::string_view part) {
    return encodings::lowered(text).find(part) != std::string::npos;
}

}  // namespace

RunSession::RunSession(runs::NamedRequest request, runs::DeclaredStandard standard)
    : m_request(std::move(request)),
      m_standard(std::move(standard)),
      m_time(timeOf(m_standard.path)) {}

std::unique_ptr<RunSession> RunSession::open(const Vor_String& path, Vor_String& failure) {
    auto standard = runs::readDeclared(path, failure);
    if (!standard) return nullptr;
    auto request = runs::NamedRequest::open(standard->path, failure);
    if (!request) return nullptr;
    return std::unique_ptr<RunSession>(new RunSession(std::move(*request), std::move(*standard)));
}

std::vector<const runs::DeclaredVariable*> RunSession::inputs() const {
    std::vector<const runs::DeclaredVariable*> found;
    for (const auto& variable : m_standard.variables)
        if (variable.kind == TwCellType::input) found.push_back(&variable);
    return found;
}

std::vector<const runs::DeclaredVariable*> RunSession::outputs() const {
    std::vector<const runs::DeclaredVariable*> found;
    for (const auto& variable : m_standard.variables)
        if (variable.kind == TwCellType::output) found.push_back(&variable);
    return found;
}

std::string RunSession::value(std::string_view input) {
    TwVarCells& cells = m_request.cells();
    int index = 0;
    if (cells.findVarCell(Vor_String(input), index) != Acad::eOk) return {};
    return cells[index].value().str();
}

Vor_String RunSession::setValue(std::string_view input, std::string_view value) {
    TwVarCells& cells = m_request.cells();
    int index = 0;
    if (cells.findVarCell(Vor_String(input), index) != Acad::eOk || !cells[index].isInput())
        return {};
    Vor_String why = runs::refusal(cells[index], value);
    if (why.isEmpty()) cells[index].setNewValue(Vor_String(value));
    return why;
}

bool RunSession::namesSection(const runs::DeclaredVariable& variable) {
    if (variable.kind != TwCellType::input || variable.type != TwValueType::String) return false;
    constexpr std::string_view words[] = {"section", "profile", "column", "beam", "member"};
    return std::any_of(std::begin(words), std::end(words), [&](std::string_view word) {
        return contains(variable.name, word) || contains(variable.meaning, word);
    });
}

void RunSession::run() {
    runs::RunReport report;
    report.path = m_standard.path.str();
    {
        runs::RunRecorder recorder(report);
        m_request.start();
    }
    m_calculation = runs::makeCalculation(report, &m_standard);
}

bool RunSession::isStale() const {
    return timeOf(m_standard.path) != m_time;
}
