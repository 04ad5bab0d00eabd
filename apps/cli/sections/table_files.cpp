#include "cli/sections/table_files.h"

#include "cli/io/console.h"
#include "cli/io/suggestion.h"
#include "cli/io/typed_paths.h"
#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "platform/files.h"
#include "sections/section_types.h"

namespace cli {

namespace {

std::string noTables() {
    if (gSettings.libDir().isEmpty()) return "name the library with --library or VORMANT_LIBRARY";
    return "there are no section tables in " + shownPath(gSettings.libDir() + "prof\\");
}

}  // namespace

std::vector<TableFile> libraryTables() {
    std::vector<TableFile> tables;
    if (gSettings.libDir().isEmpty()) return tables;
    for (const Vor_String& path : ObjectExportFindFiles(gSettings.libDir() + "prof\\", "*.pr"))
        tables.push_back({removeExtension(getFileName(path)), path});
    return tables;
}

std::vector<TableFile> neededTables() {
    auto tables = libraryTables();
    if (tables.empty()) complain(noTables());
    return tables;
}

std::optional<TableFile> lookUpTable(const std::string& typed) {
    const auto inside = insidePath(typed);
    if (!inside) return std::nullopt;
    if (files::exists(*inside)) return TableFile{removeExtension(getFileName(*inside)), *inside};
    for (const TableFile& table : libraryTables())
        if (table.name.equal(*inside) || getFileName(table.path).equal(*inside)) return table;
    return std::nullopt;
}

std::optional<TableFile> findTable(const std::string& typed) {
    if (auto found = lookUpTable(typed)) return found;
    std::vector<std::string> names;
    for (const TableFile& table : libraryTables()) names.push_back(encodings::toUtf8(table.name));
    std::string message = "there is no section table \"" + typed + "\"";
    if (names.empty()) {
        message += "; " + noTables();
    } else {
        message += didYouMean(nearest(typed, names)) + "; there are:\n ";
        for (const std::string& name : names) message += " " + name;
    }
    complain(message);
    return std::nullopt;
}

std::optional<Vor_ProfValuesTable> readTable(const TableFile& file) {
    Vor_ProfValuesTable table;
    Vor_String message;
    if (table.readFromPath(file.path, &message) && !table.columnNames.isEmpty()) return table;
    if (message.isEmpty())
        message = file.path + ":" + std::to_string(table.rows.length() + 1) +
                  ": the section table has no column names; restore the file";
    complainText(message);
    return std::nullopt;
}

std::string shownType(const Vor_String& drawnAs) {
    const int type = sectionTypeNumber(drawnAs);
    return encodings::toUtf8(type < 0 ? drawnAs : drawnAs + " " + sectionTypeText(type));
}

}  // namespace cli
