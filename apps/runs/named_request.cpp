#include "runs/named_request.h"

#include "core_api/text/text_index.h"
#include "mapping/start_dlg_standards_ss.h"
#include "runs/given_value.h"
#include "standards/expected_variables.h"
#include "standards/run_observer.h"
#include "standards/tw_standards_ss.h"

namespace runs {

std::optional<NamedRequest> NamedRequest::open(const Vor_String& path, Vor_String& failure) {
    TwStandardsSS sheet;
    sheet.attachHidden();
    if (sheet.loadFile(path) != Acad::eOk || sheet.initVarCells() != Acad::eOk) {
        failure = lastRunFailure();
        return std::nullopt;
    }
    NamedRequest request;
    request.m_data.mode = TwDlgStandardsData::Mode::variables;
    request.m_data.standardsName = path;
    TextIndex known;
    for (const auto& declared : sheet.varCells()) {
        const bool isNew = known.add(declared.name(), 0) < 0;
        if (!declared.isLocal()) request.append(declared, isNew);
    }
    return request;
}

// A name that is declared again takes a place when values are handed in, but none when results
// come back: the run drops it in between.
void NamedRequest::append(const TwVarCell& declared, bool isNew) {
    const TwVarCell cell(declared.name(), declared.cellType(), declared.valueType());
    m_data.varCells.append(cell);
    int source = m_cells.length();
    if (isNew)
        m_cells.append(cell);
    else if (m_cells.findVarCell(declared.name(), source) != Acad::eOk)
        source = -1;  // first declared as a local
    m_sources.push_back(source);
    m_isPlain = m_isPlain && isNew;
}

bool NamedRequest::start() {
    const ExpectedVariables expected(m_data.varCells);
    if (m_isPlain) {
        if (!StartDlgStandardsSS(m_data)) return false;
        roundInts();
        return true;
    }
    for (int i = 0; i < m_data.varCells.length(); ++i) {
        const int source = m_sources[static_cast<size_t>(i)];
        m_data.varCells[i].typedValue() = source < 0 ? VarValue() : m_cells[source].typedValue();
    }
    if (!StartDlgStandardsSS(m_data)) return false;
    for (int i = 0; i < m_cells.length(); ++i)
        if (m_cells[i].isOutput()) m_cells[i].typedValue() = m_data.varCells[i].typedValue();
    roundInts();
    return true;
}

void NamedRequest::roundInts() {
    for (TwVarCell& cell : cells())
        if (cell.isOutput() && cell.valueType() == TwValueType::Int)
            cell.typedValue() = handedOver(cell);
}

}  // namespace runs
