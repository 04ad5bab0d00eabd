#include "core_api/text/delimited_text.h"
#include "io/output.h"
#include "io/typed_paths.h"
#include "platform/encodings.h"
#include "platform/files.h"
#include "sections/section_commands.h"
#include "sections/section_json.h"
#include "sections/table_files.h"

namespace cli {

namespace {

void appendRecord(std::string& text, const Vor_StringArray& fields) {
    for (int i = 0; i < fields.length(); ++i) {
        if (i > 0) text += ',';
        appendField(text, encodings::toUtf8(fields[i]), ',');
    }
    text += '\n';
}

std::string tableAsCsv(const Vor_ProfValuesTable& table) {
    std::string text;
    appendRecord(text, table.columnNames);
    for (const Vor_StringArray& row : table.rows) appendRecord(text, row);
    return text;
}

bool hasExtension(const std::string& file, const char* extension) {
    return Vor_String(file).endsWith(extension);
}

}  // namespace

ExitCode exportSections(const ExportSectionsRequest& request) {
    const bool toScreen = request.file == "-";
    const bool isJson = request.json || hasExtension(request.file, ".json");
    if (!toScreen && !hasExtension(request.file, isJson ? ".json" : ".csv")) {
        complainAt(request.file, 0, "only .csv and .json can be written");
        return ExitCode::wrongCall;
    }
    const auto file = findTable(request.table);
    const auto table = file ? readTable(*file) : std::nullopt;
    if (!table) return ExitCode::failed;
    const std::string text = isJson ? tableAsJson(*table) : tableAsCsv(*table);
    if (toScreen) {
        Output output;
        output.write(text);
        return output.close() ? ExitCode::done : ExitCode::failed;
    }
    const auto path = insidePath(request.file);
    std::string error;
    if (path && files::writeWhole(*path, text, error)) return ExitCode::done;
    if (path) complainText(error);
    return ExitCode::failed;
}

}  // namespace cli
