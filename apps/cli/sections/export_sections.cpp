#include "cli/io/export_file.h"
#include "cli/sections/section_commands.h"
#include "cli/sections/section_json.h"
#include "cli/sections/table_files.h"

namespace cli {

namespace {

std::string tableAsCsv(const Vor_ProfValuesTable& table) {
    std::string text;
    appendRecord(text, table.columnNames);
    for (const Vor_StringArray& row : table.rows) appendRecord(text, row);
    return text;
}

}  // namespace

ExitCode exportSections(const ExportSectionsRequest& request) {
    const ExportTarget target{request.file, request.json};
    if (!target.isValid()) return ExitCode::wrongCall;
    const auto file = findTable(request.table);
    const auto table = file ? readTable(*file) : std::nullopt;
    if (!table) return ExitCode::failed;
    return target.write(target.isJson() ? tableAsJson(*table) : tableAsCsv(*table));
}

}  // namespace cli
