#include "cli/io/console.h"
#include "cli/sheets/eval_record.h"
#include "cli/sheets/sheet_file.h"
#include "core_api/text/delimited_text.h"
#include "core_api/text/text_helpers.h"
#include "exchange/csv.h"
#include "exchange/texts.h"

namespace cli {

namespace {

using formula::Value;

/// Writes one field into the cell (col, row), which the grid has.
bool placeField(control::Grid& grid, int col, int row, std::string_view field, std::string& error) {
    std::string text;
    if (!exchange::fromUtf8(field, text, error)) return false;
    if (text.starts_with('=')) {
        formula::ParseError problem;
        if (grid.setFormula(col, row, std::string_view(text).substr(1), &problem)) return true;
        error = "the formula " + std::string(field) + " is refused: ";
        exchange::appendUtf8(error, problem.message);
        return false;
    }
    if (isNumber(text)) return grid.writeValue(col, row, textToDouble(text));
    return grid.writeValue(col, row, Value::borrowedText(textOfField(text)));
}

bool placeRecord(control::Grid& grid, int row, const std::vector<std::string_view>& fields,
                 std::string& error) {
    const int cols = static_cast<int>(fields.size());
    if (!grid.setRows(row) || (cols > grid.cols() && !grid.setCols(cols))) {
        error = "a sheet has 1048576 rows and 16384 columns at most";
        return false;
    }
    for (int col = 1; col <= cols; ++col) {
        const auto field = fields[static_cast<size_t>(col - 1)];
        if (field.empty() || placeField(grid, col, row, field, error)) continue;
        error = "cell " + cellName({col, row}) + ": " + error;
        return false;
    }
    return true;
}

}  // namespace

bool sheetFromCsv(const std::string& path, control::Grid& grid) {
    std::string error;
    auto source = exchange::LineSource::openFile(path, error);
    if (!source) {
        complainAt(path, 0, error);
        return false;
    }
    exchange::CsvReader reader(*source, exchange::CsvReader::EmptyLines::kept);
    std::vector<std::string_view> fields;
    exchange::CsvReader::ReadResult got;
    int row = 0;
    while ((got = reader.next(fields)) == exchange::CsvReader::ReadResult::record) {
        if (placeRecord(grid, ++row, fields, error)) continue;
        complainAt(path, reader.lineNumber(), error);
        return false;
    }
    if (got != exchange::CsvReader::ReadResult::end) {
        complainAt(path, reader.lineNumber(), reader.error());
        return false;
    }
    grid.recalculate();
    return true;
}

}  // namespace cli
