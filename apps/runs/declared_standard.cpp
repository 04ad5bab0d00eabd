#include "runs/declared_standard.h"

#include <algorithm>

#include "platform/encodings.h"
#include "standards/run_observer.h"
#include "standards/standard_layout.h"
#include "standards/tw_standards_ss.h"

namespace runs {

namespace {

/// The cells of one row, as texts.
class Sheet {
  public:
    explicit Sheet(TwStandardsSS& spread)
        : m_grid(spread.grid()), m_filled(filledCells(m_grid)), m_layout(m_grid, m_filled) {}

    const StandardLayout& layout() const { return m_layout; }
    const std::vector<control::CellAddress>& filled() const { return m_filled; }
    std::string text(int col, int row) const {
        return m_grid.text(col, row, control::Reading::value);
    }
    /// What stands in the row of a variable below the heading `word` of its section; empty
    /// without that heading.
    std::string note(Marker section, std::string_view word, int row) const {
        const int headed = m_layout.cell(section).row;
        for (const control::CellAddress cell : m_filled)
            if (cell.row == headed && encodings::equalFolded(text(cell.col, cell.row), word))
                return text(cell.col, row);
        return {};
    }

  private:
    const control::Grid& m_grid;
    std::vector<control::CellAddress> m_filled;
    StandardLayout m_layout;
};

Marker sectionOf(TwCellType kind) {
    switch (kind) {
        case TwCellType::input:
            return Marker::input;
        case TwCellType::output:
            return Marker::output;
        default:
            return Marker::local;
    }
}

int firstMarkerRow(const StandardLayout& layout) {
    int first = layout.cell(Marker::input).row;
    for (const Marker marker : {Marker::output, Marker::local, Marker::calc})
        if (layout.has(marker)) first = std::min(first, layout.cell(marker).row);
    return first;
}

std::vector<std::string> titleOf(const Sheet& sheet) {
    std::vector<std::string> lines;
    const int firstRow = firstMarkerRow(sheet.layout());
    for (const auto [col, row] : sheet.filled())
        if (row < firstRow) lines.push_back(sheet.text(col, row));
    return lines;
}

}  // namespace

const DeclaredVariable* DeclaredStandard::find(std::string_view name) const {
    const auto found = std::find_if(variables.begin(), variables.end(), [&](const auto& variable) {
        return encodings::equalFolded(variable.name, name);
    });
    return found == variables.end() ? nullptr : &*found;
}

std::optional<DeclaredStandard> readDeclared(const Vor_String& path, Vor_String& failure) {
    TwStandardsSS spread;
    spread.attachHidden();
    if (spread.loadFile(path) != Acad::eOk || spread.initVarCells() != Acad::eOk) {
        failure = lastRunFailure();
        return std::nullopt;
    }
    const Sheet sheet(spread);
    DeclaredStandard standard;
    standard.path = spread.filePath();
    standard.title = titleOf(sheet);
    for (const TwVarCell& variable : spread.varCells()) {
        if (standard.find(variable.name())) continue;
        const Marker section = sectionOf(variable.cellType());
        const auto note = [&](std::string_view word) {
            return sheet.note(section, word, variable.row());
        };
        standard.variables.push_back({variable.name().str(), variable.cellType(),
                                      variable.valueType(), note("Unit"), note("Meaning"),
                                      note("Rule")});
    }
    return standard;
}

}  // namespace runs
