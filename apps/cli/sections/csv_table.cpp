#include "cli/sections/imported_table.h"
#include "exchange/csv.h"
#include "exchange/texts.h"

namespace cli {

namespace {

bool takeFields(const std::vector<std::string_view>& fields, Vor_StringArray& record,
                std::string& error) {
    std::string text;
    for (const std::string_view field : fields) {
        if (!exchange::fromUtf8(field, text, error)) return false;
        record.append(text);
    }
    return true;
}

}  // namespace

std::optional<ImportedTable> tableFromCsv(exchange::LineSource& source, ImportProblem& problem) {
    exchange::CsvReader reader(source);
    std::vector<std::string_view> fields;
    ImportedTable read;
    read.lines.push_back(0);  // how it is drawn does not stand there
    exchange::CsvReader::ReadResult got;
    while ((got = reader.next(fields)) == exchange::CsvReader::ReadResult::record) {
        problem.line = reader.lineNumber();
        Vor_StringArray record;
        if (!takeFields(fields, record, problem.message)) return std::nullopt;
        if (read.lines.size() == 1)
            read.table.columnNames = std::move(record);
        else
            read.table.rows.append(std::move(record));
        read.lines.push_back(static_cast<int>(reader.lineNumber()));
    }
    if (got != exchange::CsvReader::ReadResult::end)
        problem = {reader.lineNumber(), reader.error()};
    else if (read.lines.size() == 1)
        problem = {0, "there is no line of column names"};
    else
        return read;
    return std::nullopt;
}

}  // namespace cli
