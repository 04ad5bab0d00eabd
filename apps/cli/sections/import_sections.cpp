#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "io/csv.h"
#include "io/findings.h"
#include "io/output.h"
#include "io/texts.h"
#include "io/typed_paths.h"
#include "platform/encodings.h"
#include "sections/section_check.h"
#include "sections/section_commands.h"
#include "sections/section_types.h"
#include "sections/table_files.h"

namespace cli {

namespace {

using Table = Vor_ProfValuesTable;

/// A table as CSV holds it: where its records began, for messages.
struct CsvTable {
    Table table;
    std::vector<long long> lines;  // the header's, then those of the sizes
};

bool takeFields(const std::vector<std::string_view>& fields, Vor_StringArray& record,
                std::string& error) {
    std::string text;
    for (const std::string_view field : fields) {
        if (!fromUtf8(field, text, error)) return false;
        record.append(text);
    }
    return true;
}

/// Nothing after telling why.
std::optional<CsvTable> readCsv(const std::string& path) {
    std::string error;
    auto source = LineSource::open(path, error);
    const std::string name = LineSource::shownName(path);
    if (!source) {
        complainAt(name, 0, error);
        return std::nullopt;
    }
    CsvReader reader(*source);
    std::vector<std::string_view> fields;
    CsvTable read;
    CsvReader::Got got;
    while ((got = reader.next(fields)) == CsvReader::Got::record) {
        Vor_StringArray record;
        if (!takeFields(fields, record, error)) {
            complainAt(name, reader.lineNumber(), error);
            return std::nullopt;
        }
        if (read.lines.empty())
            read.table.columnNames = std::move(record);
        else
            read.table.rows.append(std::move(record));
        read.lines.push_back(reader.lineNumber());
    }
    if (got != CsvReader::Got::end) {
        complainAt(name, reader.lineNumber(), reader.error());
        return std::nullopt;
    }
    if (!read.lines.empty()) return read;
    complainAt(name, 0, "there is no line of column names");
    return std::nullopt;
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
    return TableFile{removeExtension(getFileName(path)), path};
}

/// Lines of the file that the table would have, in the CSV.
Finding inCsv(Finding finding, const std::vector<long long>& lines) {
    const int index = finding.row - 2;  // the CSV has no line for the type
    const bool isThere = index >= 0 && static_cast<size_t>(index) < lines.size();
    finding.row = isThere ? static_cast<int>(lines[static_cast<size_t>(index)]) : 0;
    if (!isThere) finding.column = 0;
    return finding;
}

/// True when nothing that was found is an error; all of it is told.
bool isSound(const CsvTable& csv, const std::string& file) {
    bool sound = true;
    std::string text;
    for (const Finding& finding : checkSectionTable(csv.table)) {
        if (finding.severity == Finding::Severity::error) sound = false;
        appendFinding(text, file, inCsv(finding, csv.lines));
    }
    if (!text.empty()) text.pop_back();
    if (!text.empty()) complain(text);
    return sound;
}

}  // namespace

ExitCode importSections(const ImportSectionsRequest& request) {
    const Vor_String type = request.type;
    if (!type.isEmpty() && sectionTypeNumber(type) < 0 && !isDrawnTemplate(type)) {
        complain("--type " + request.type + ": give a number from 1 to " +
                 std::to_string(sectionTypeCount) + ", or a .dwg file");
        return ExitCode::wrongCall;
    }
    const auto place = placeOf(request.table);
    if (!place) return ExitCode::failed;
    const bool isThere = ObjectExportFileExists(place->path);
    if (isThere && !request.force) {
        complainAt(shownPath(place->path), 0, "the table is there already; --force replaces it");
        return ExitCode::failed;
    }
    Vor_String drawnAs = type;
    if (drawnAs.isEmpty() && isThere) {
        const auto before = readTable(*place);
        if (before) drawnAs = before->drawnAs;
    }
    if (drawnAs.isEmpty()) {
        complain("--type is not given; it says how the sections are drawn");
        return ExitCode::wrongCall;
    }
    auto csv = readCsv(request.file);
    if (!csv) return ExitCode::failed;
    csv->table.tableName = place->name;
    csv->table.drawnAs = drawnAs;
    if (!isSound(*csv, LineSource::shownName(request.file))) return ExitCode::failed;
    Vor_String message;
    const Vor_String folder = getPath(place->path);
    if (ObjectExportCreateDirectory(folder, &message) != Acad::eOk ||
        !csv->table.writeToPath(place->path, &message)) {
        complainText(message);
        return ExitCode::failed;
    }
    return ExitCode::done;
}

}  // namespace cli
