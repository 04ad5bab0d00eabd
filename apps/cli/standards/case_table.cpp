#include "cli/standards/case_table.h"

#include <algorithm>

#include "cli/io/console.h"
#include "cli/standards/variables.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "runs/given_value.h"

namespace cli {

std::optional<CaseTable> CaseTable::open(exchange::CsvReader& reader, const std::string& file,
                                         const TwVarCells& cells) {
    std::vector<std::string_view> headings;
    CaseTable table;
    std::string error = "there is no header";
    const auto got = reader.next(headings);
    bool fits = got == exchange::CsvReader::ReadResult::record;
    if (got == exchange::CsvReader::ReadResult::bad ||
        got == exchange::CsvReader::ReadResult::failed)
        error = reader.error();
    for (size_t i = 0; fits && i < headings.size(); ++i) {
        std::string heading;
        fits = exchange::fromUtf8(headings[i], heading, error) &&
               table.addColumn(heading, cells, error);
    }
    if (fits && table.isComplete(cells, error)) return table;
    complainAt(file, reader.lineNumber(), error);
    return std::nullopt;
}

bool CaseTable::addColumn(const std::string& heading, const TwVarCells& cells, std::string& error) {
    Column column;
    std::string name = heading;
    if (name.ends_with('?')) {
        column.kind = Column::Kind::expected;
        name.pop_back();
    }
    const bool isDeclared = cells.findVarCell(name, column.cell) == Acad::eOk;
    if (!isDeclared && name == "tolerance") column.kind = Column::Kind::tolerance;
    const bool fits =
        column.kind == Column::Kind::tolerance ||
        (isDeclared && cells[column.cell].isOutput() == (column.kind == Column::Kind::expected));
    std::string shown;
    exchange::appendUtf8(shown, heading);
    if (!fits) {
        error = "column \"" + shown +
                "\" is neither an input nor an output with a \"?\"; inputs: " +
                describe(cells, TwCellType::input) +
                "; outputs: " + describe(cells, TwCellType::output);
        return false;
    }
    if (has(column.kind, column.cell)) {
        error = "column \"" + shown + "\" stands there twice";
        return false;
    }
    m_columns.push_back(column);
    return true;
}

bool CaseTable::isComplete(const TwVarCells& cells, std::string& error) const {
    for (int i = 0; i < cells.length(); ++i) {
        if (!cells[i].isInput() || has(Column::Kind::input, i)) continue;
        error = "there is no column for the input ";
        exchange::appendUtf8(error, cells[i].name());
        return false;
    }
    const bool checks = std::any_of(m_columns.begin(), m_columns.end(), [](const Column& column) {
        return column.kind == Column::Kind::expected;
    });
    if (!checks) error = "no column is an expected output (its heading ends in \"?\")";
    return checks;
}

bool CaseTable::has(Column::Kind kind, int cell) const {
    return std::any_of(m_columns.begin(), m_columns.end(), [&](const Column& column) {
        return column.kind == kind && column.cell == cell;
    });
}

bool CaseTable::take(const std::vector<std::string_view>& fields, TwVarCells& cells, Case& row,
                     std::string& error) const {
    if (fields.size() != m_columns.size()) {
        error = "there are " + std::to_string(fields.size()) + " fields, the header has " +
                std::to_string(m_columns.size());
        return false;
    }
    row = Case();
    for (size_t i = 0; i < fields.size(); ++i) {
        std::string text;
        if (!exchange::fromUtf8(fields[i], text, error)) return false;
        const Column& column = m_columns[i];
        if (column.kind == Column::Kind::input) {
            error = encodings::toUtf8(runs::refusal(cells[column.cell], text));
            if (!error.empty()) return false;
            cells[column.cell].setNewValue(text);
        } else if (column.kind == Column::Kind::expected) {
            row.expected.push_back({column.cell, std::move(text)});
        } else if (!text.empty()) {
            row.tolerance = textToDouble(text);
            if (!isNumber(text) || row.tolerance < 0) {
                error = "the tolerance must be a number from 0 up";
                return false;
            }
        }
    }
    return true;
}

}  // namespace cli
