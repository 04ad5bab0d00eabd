#include "cli/io/findings.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "cli/sections/section_commands.h"
#include "cli/sections/table_files.h"
#include "exchange/json_writer.h"
#include "sections/section_check.h"

namespace cli {

namespace {

bool isError(const Finding& finding) {
    return finding.severity == Finding::Severity::error;
}

void writeFinding(exchange::JsonWriter& json, const std::string& file, const Finding& finding) {
    json.beginObject();
    json.key("file");
    json.utf8(file);
    json.key("row");
    json.number(finding.row);
    json.key("column");
    json.number(finding.column);
    json.key("severity");
    json.utf8(isError(finding) ? "error" : "warning");
    json.key("message");
    json.utf8(shownMessage(finding.message));
    json.endObject();
}

}  // namespace

ExitCode checkSections(const CheckSectionsRequest& request) {
    bool clean = true;
    std::vector<TableFile> files;
    if (request.tables.empty()) files = neededTables();
    for (const std::string& typed : request.tables) {
        if (const auto file = findTable(typed))
            files.push_back(*file);
        else
            clean = false;
    }
    if (files.empty()) return ExitCode::failed;
    Output output;
    exchange::JsonWriter json(output.text());
    if (request.json) json.beginArray();
    for (const TableFile& file : files) {
        for (const Finding& finding : checkSectionFile(file.path)) {
            if (isError(finding)) clean = false;
            if (request.json)
                writeFinding(json, shownPath(file.path), finding);
            else
                appendFinding(output.text(), shownPath(file.path), finding);
        }
        output.written();
    }
    if (request.json) {
        json.endArray();
        output.text() += '\n';
    }
    return output.close() && clean ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
