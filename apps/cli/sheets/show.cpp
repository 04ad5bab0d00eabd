#include <algorithm>
#include <map>
#include <vector>

#include "cli/io/output.h"
#include "cli/sheets/sheet_commands.h"
#include "cli/sheets/sheet_file.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"

namespace cli {

namespace {

std::string columnName(int col) {
    return getAlfabet(col).str();
}

constexpr size_t widest = 40;  // of a column whose neighbour is in use

/// A cell that shows something. Cells stand by row and then column.
struct ShownCell {
    int row = 0;
    int col = 0;
    std::string text;
    bool isNumber = false;
    bool isLast = false;  ///< of its row
};

ShownCell shownCell(const control::Grid& grid, int col, int row, bool formulas) {
    const auto formulaText = grid.sheet().formula(col, row);
    const bool isFormula = formulas && formulaText;
    std::string text =
        isFormula ? "=" + std::string(*formulaText) : grid.text(col, row, control::Reading::data);
    for (char& c : text)
        if (c >= 0 && c < ' ') c = ' ';
    const bool isNumber = !isFormula && grid.sheet().value(col, row).isNumber();
    return {row, col, std::move(text), isNumber, false};
}

std::vector<ShownCell> shownCells(const control::Grid& grid, bool formulas) {
    std::vector<ShownCell> cells;
    const formula::Area all{1, formula::maxRows, 1, formula::maxCols};
    grid.sheet().cells().each(all, [&](int row, int col, const control::Cell&) {
        ShownCell cell = shownCell(grid, col, row, formulas);
        if (!cell.text.empty()) cells.push_back(std::move(cell));
    });
    std::sort(cells.begin(), cells.end(), [](const ShownCell& a, const ShownCell& b) {
        return a.row != b.row ? a.row < b.row : a.col < b.col;
    });
    for (size_t i = 0; i < cells.size(); ++i)
        cells[i].isLast = i + 1 == cells.size() || cells[i + 1].row != cells[i].row;
    return cells;
}

/// The columns in use and the width that each needs. The last text of a row runs on over the
/// empty cells beside it and does not count.
std::map<int, size_t> columnWidths(const std::vector<ShownCell>& cells) {
    std::map<int, size_t> widths;
    for (const auto& cell : cells) {
        const size_t name = columnName(cell.col).size();
        const size_t text = cell.isLast && !cell.isNumber ? 0 : std::min(cell.text.size(), widest);
        size_t& width = widths[cell.col];
        width = std::max({width, name, text});
    }
    return widths;
}

void pad(std::string& line, size_t count) {
    line.append(count, ' ');
}

void appendShown(std::string& line, const ShownCell& cell, size_t width) {
    const size_t length = cell.text.size();
    if (cell.isNumber && length < width) pad(line, width - length);
    if (length > width && !cell.isLast) {
        exchange::appendUtf8(line, std::string_view(cell.text).substr(0, width - 1));
        line += "~";
        return;
    }
    exchange::appendUtf8(line, cell.text);
    if (!cell.isNumber && length < width && !cell.isLast) pad(line, width - length);
}

class Table {
  public:
    explicit Table(const std::vector<ShownCell>& cells)
        : m_widths(columnWidths(cells)),
          m_margin(cells.empty() ? 1 : std::to_string(cells.back().row).size()) {}

    void appendHeader(std::string& text) const {
        std::string line(m_margin, ' ');
        for (const auto& [col, width] : m_widths) {
            line += "  " + columnName(col);
            pad(line, width - columnName(col).size());
        }
        line.resize(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }

    /// The next cell, in order.
    void appendCell(std::string& text, const ShownCell& cell) {
        if (m_next == m_widths.begin()) {
            const std::string number = std::to_string(cell.row);
            pad(text, m_margin - number.size());
            text += number;
        }
        for (; m_next->first < cell.col; ++m_next) pad(text, m_next->second + 2);
        text += "  ";
        appendShown(text, cell, m_next->second);
        ++m_next;
        if (!cell.isLast) return;
        text += '\n';
        m_next = m_widths.begin();
    }

  private:
    std::map<int, size_t> m_widths;  // by column
    size_t m_margin;                 // for the row numbers
    std::map<int, size_t>::const_iterator m_next = m_widths.begin();
};

}  // namespace

ExitCode showSheet(const ShowRequest& request) {
    control::Grid grid;
    const auto format = sheetFormat(request.file).value_or(SheetFormat::document);
    if (!loadSheet(request.file, format, grid)) return ExitCode::failed;
    const auto cells = shownCells(grid, request.formulas);
    Table table(cells);
    Output output;
    table.appendHeader(output.text());
    for (const auto& cell : cells) {
        table.appendCell(output.text(), cell);
        output.written();
    }
    return output.close() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
