#include <algorithm>
#include <vector>

#include "io/output.h"
#include "io/texts.h"
#include "sheets/eval_record.h"
#include "sheets/sheet_commands.h"
#include "sheets/sheet_file.h"

namespace cli {

namespace {

constexpr size_t widest = 40;  // of a column whose neighbour is in use

/// One row as it is shown: its cells that hold anything, from the left.
struct ShownRow {
    struct Cell {
        int col = 0;
        std::string text;
        bool isNumber = false;
    };
    std::vector<Cell> cells;
};

ShownRow shownRow(const control::Grid& grid, int row, int cols, bool formulas) {
    ShownRow shown;
    for (int col = 1; col <= cols; ++col) {
        const control::Cell* cell = grid.sheet().find(col, row);
        if (!cell || cell->isBlank()) continue;
        const auto formulaText = grid.sheet().formula(col, row);
        const bool isFormula = formulas && formulaText;
        std::string text = isFormula ? "=" + std::string(*formulaText)
                                     : grid.text(col, row, control::Reading::data);
        if (text.empty()) continue;
        for (char& c : text)
            if (c >= 0 && c < ' ') c = ' ';
        const bool isNumber = !isFormula && grid.sheet().value(col, row).isNumber();
        shown.cells.push_back({col, std::move(text), isNumber});
    }
    return shown;
}

/// The width that each column needs. The last text of a row runs on over the empty cells beside
/// it and does not count.
std::vector<size_t> columnWidths(const control::Grid& grid, UsedArea area, bool formulas) {
    std::vector<size_t> widths(static_cast<size_t>(area.cols) + 1, 0);
    for (int row = 1; row <= area.rows; ++row) {
        const auto cells = shownRow(grid, row, area.cols, formulas).cells;
        for (size_t i = 0; i < cells.size(); ++i) {
            size_t& width = widths[static_cast<size_t>(cells[i].col)];
            const bool runsOn = i + 1 == cells.size() && !cells[i].isNumber;
            const size_t name = cellName({cells[i].col, 1}).size() - 1;
            width = std::max({width, name, runsOn ? 0 : std::min(cells[i].text.size(), widest)});
        }
    }
    return widths;
}

void pad(std::string& line, size_t count) {
    line.append(count, ' ');
}

void appendShown(std::string& line, const ShownRow::Cell& cell, size_t width, bool isLast) {
    const size_t length = cell.text.size();
    if (cell.isNumber && length < width) pad(line, width - length);
    if (length > width && !isLast) {
        appendUtf8(line, std::string_view(cell.text).substr(0, width - 1));
        line += "~";
        return;
    }
    appendUtf8(line, cell.text);
    if (!cell.isNumber && length < width && !isLast) pad(line, width - length);
}

class Table {
  public:
    Table(std::vector<size_t> widths, size_t margin)
        : m_widths(std::move(widths)), m_margin(margin) {}

    void appendHeader(std::string& text) const {
        std::string line(m_margin, ' ');
        for (size_t col = 1; col < m_widths.size(); ++col) {
            if (m_widths[col] == 0) continue;
            std::string name = cellName({static_cast<int>(col), 1});
            name.pop_back();
            line += "  " + name;
            pad(line, m_widths[col] - name.size());
        }
        line.resize(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }

    void appendRow(std::string& text, int row, const ShownRow& shown) const {
        const std::string number = std::to_string(row);
        pad(text, m_margin - number.size());
        text += number;
        size_t col = 1;
        for (const auto& cell : shown.cells) {
            for (; col < static_cast<size_t>(cell.col); ++col)
                if (m_widths[col] > 0) pad(text, m_widths[col] + 2);
            text += "  ";
            appendShown(text, cell, m_widths[col], &cell == &shown.cells.back());
            ++col;
        }
        text += '\n';
    }

  private:
    std::vector<size_t> m_widths;  // by column, from 1; 0 is not shown
    size_t m_margin;
};

}  // namespace

ExitCode showSheet(const ShowRequest& request) {
    control::Grid grid;
    const auto format = sheetFormat(request.file).value_or(SheetFormat::document);
    if (!loadSheet(request.file, format, grid)) return ExitCode::failed;
    const UsedArea area = usedArea(grid);
    const Table table(columnWidths(grid, area, request.formulas), std::to_string(area.rows).size());
    Output output;
    table.appendHeader(output.text());
    for (int row = 1; row <= area.rows; ++row) {
        const ShownRow shown = shownRow(grid, row, area.cols, request.formulas);
        if (shown.cells.empty()) continue;
        table.appendRow(output.text(), row, shown);
        output.written();
    }
    return output.close() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
