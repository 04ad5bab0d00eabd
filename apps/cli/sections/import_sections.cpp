#include "cli/io/findings.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "cli/sections/imported_table.h"
#include "cli/sections/section_commands.h"
#include "cli/sections/table_files.h"
#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/exclusive_change.h"
#include "sections/section_check.h"
#include "sections/section_names.h"
#include "sections/section_types.h"

namespace cli {

namespace {

using Table = Vor_ProfValuesTable;

bool isJson(const ImportSectionsRequest& request) {
    return request.json || Vor_String(request.file).endsWith(".json");
}

/// Nothing after telling why.
std::optional<ImportedTable> readImported(const ImportSectionsRequest& request) {
    const std::string name = exchange::LineSource::shownName(request.file);
    ImportProblem problem;
    auto source = exchange::LineSource::open(request.file, problem.message);
    std::optional<ImportedTable> read;
    if (source)
        read = isJson(request) ? tableFromJson(*source, problem) : tableFromCsv(*source, problem);
    if (!read) complainAt(name, problem.line, problem.message);
    return read;
}

/// Where a name leads: a path, or a new or old file of the library. Nothing after telling why.
std::optional<TableFile> placeOf(const std::string& typed) {
    if (const auto found = lookUpTable(typed)) return found;
    const auto inside = insidePath(typed);
    if (!inside) return std::nullopt;
    Vor_String path = *inside;
    if (getPath(path).isEmpty()) {
        if (gSettings.libDir().isEmpty()) {
            complain("name the library with --library or VORMANT_LIBRARY, or a path");
            return std::nullopt;
        }
        path = Table::filePath(path);
    } else if (!path.endsWith(".pr")) {
        path += ".pr";
    }
    const Vor_String name = removeExtension(getFileName(path));
    if (!canNameSectionTable(name)) {
        complainText(
            "\"" + name +
            "\" cannot be the name of a table: leave out - \\ / : * ? \" < > | and names of "
            "devices such as CON or COM1");
        return std::nullopt;
    }
    return TableFile{name, path};
}

/// False, after telling it, when the table is there and may not be replaced.
bool mayWrite(const ImportSectionsRequest& request, const TableFile& place) {
    if (request.force || !ObjectExportFileExists(place.path)) return true;
    complainAt(shownPath(place.path), 0, "the table is there already; --force replaces it");
    return false;
}

bool isKnownType(const Vor_String& type) {
    return sectionTypeNumber(type) > 0 || isDrawnTemplate(type);
}

/// What the call says counts first, then the file, then the table that is replaced. Empty when
/// nothing says it, with the reason in `why` when the table that is replaced cannot be read.
Vor_String drawnAs(const ImportSectionsRequest& request, const ImportedTable& imported,
                   const TableFile& place, Vor_String& why) {
    if (!request.type.empty()) return request.type;
    if (!imported.table.drawnAs.isEmpty() || !ObjectExportFileExists(place.path))
        return imported.table.drawnAs;
    Table before;
    return before.readFromPath(place.path, &why) ? before.drawnAs : Vor_String();
}

/// True when nothing that was found is an error; all of it is told.
bool isSound(const ImportedTable& imported, const ImportSectionsRequest& request) {
    bool sound = true;
    std::string text;
    for (Finding& finding : checkSectionTable(imported.table, imported.lines)) {
        if (finding.severity == Finding::Severity::error) sound = false;
        if (isJson(request)) finding.column = 0;  // there are no fields
        appendFinding(text, exchange::LineSource::shownName(request.file), finding);
    }
    if (!text.empty()) text.pop_back();
    if (!text.empty()) complain(text);
    return sound;
}

}  // namespace

ExitCode importSections(const ImportSectionsRequest& request) {
    if (!request.type.empty() && !isKnownType(request.type)) {
        complain("--type " + request.type + ": give a number from 1 to " +
                 std::to_string(sectionTypeCount) + ", or a .dwg file");
        return ExitCode::wrongCall;
    }
    const auto place = placeOf(request.table);
    if (!place) return ExitCode::failed;
    if (!mayWrite(request, *place)) return ExitCode::failed;
    auto imported = readImported(request);
    if (!imported) return ExitCode::failed;
    std::string busy;
    const auto change = files::ExclusiveChange::take(place->path, busy);
    if (!change) {
        complainText(busy);
        return ExitCode::failed;
    }
    if (!mayWrite(request, *place)) return ExitCode::failed;  // it may have come while reading
    Table& table = imported->table;
    table.tableName = place->name;
    Vor_String why;
    table.drawnAs = drawnAs(request, *imported, *place, why);
    if (!why.isEmpty()) {
        complainText(why + "; to replace the table, say with --type how its sections are drawn");
        return ExitCode::failed;
    }
    if (table.drawnAs.isEmpty()) {
        complain("--type is not given; it says how the sections are drawn");
        return ExitCode::wrongCall;
    }
    if (!isSound(*imported, request)) return ExitCode::failed;
    Vor_String message;
    if (!table.writeToPath(place->path, &message)) {
        complainText(message);
        return ExitCode::failed;
    }
    return ExitCode::done;
}

}  // namespace cli
