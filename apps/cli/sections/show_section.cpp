#include <algorithm>

#include "cli/io/output.h"
#include "cli/io/suggestion.h"
#include "cli/io/text_table.h"
#include "cli/sections/column_names.h"
#include "cli/sections/section_commands.h"
#include "cli/sections/section_json.h"
#include "cli/sections/table_files.h"
#include "core_api/sections/section_tables.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "sections/section_area.h"
#include "sections/section_figures.h"
#include "sections/section_names.h"
#include "sections/section_types.h"

namespace cli {

namespace {

using Table = Vor_ProfValuesTable;

std::string numberText(double number) {
    std::string text;
    exchange::appendRounded(text, number);
    return text;
}

bool isInactive(const Vor_StringArray& size) {
    return size.isIndex(Table::activeColumn) && size[Table::activeColumn].view() == "0";
}

std::string fullName(const Table& table, const Vor_StringArray& size) {
    return encodings::toUtf8(table.tableName + "-" + (size.isEmpty() ? Vor_String() : size[0]));
}

/// A cell that may be missing.
std::string cellText(const Vor_StringArray& size, int col) {
    return size.isIndex(col) ? encodings::toUtf8(size[col]) : std::string();
}

std::string tableAsText(const Table& table) {
    const ColumnNames columns(table);
    const bool marks = std::ranges::any_of(table.rows, isInactive);
    TextTable lines;
    std::vector<std::string> header{"Section", "Name"};
    if (marks) header.push_back("In use");
    for (int i = 0; i < columns.count(); ++i) header.push_back(encodings::toUtf8(columns.shown(i)));
    lines.add(std::move(header));
    for (const Vor_StringArray& size : table.rows) {
        std::vector<std::string> line{fullName(table, size),
                                      cellText(size, Table::firstNameColumn)};
        if (marks) line.push_back(isInactive(size) ? "no" : "yes");
        for (int i = 0; i < columns.count(); ++i)
            line.push_back(cellText(size, table.firstValueColumn() + i));
        lines.add(std::move(line));
    }
    std::string text =
        encodings::toUtf8(table.tableName) + ", " + shownType(table.drawnAs) + "\n\n";
    lines.append(text, "", true);
    return text;
}

/// What follows from the shape, whatever the table says.
std::string calculatedAsText(const Table& table, int row) {
    const auto figures = SectionFigures::of(table, row);
    if (!figures) return "";
    TextTable lines;
    for (const auto& [column, value] : figures->catalogueFigures())
        lines.add({std::string(column), numberText(value)});
    std::string text = "calculated from the values\n";
    lines.append(text, "  ", false);
    return text;
}

std::string sizeAsText(const Table& table, int row) {
    const Vor_StringArray& size = table.rows[row];
    TextTable lines;
    lines.add({"type", shownType(table.drawnAs)});
    lines.add({"in use", isInactive(size) ? "no" : "yes"});
    for (int col = Table::firstNameColumn; col < table.columnNames.length(); ++col)
        lines.add({encodings::toUtf8(table.columnNames[col]), cellText(size, col)});
    if (const auto mass = sectionMass(table, row)) lines.add({"mass, kg/m", numberText(*mass)});
    std::string text = fullName(table, size) + "\n";
    lines.append(text, "  ", false);
    return text + calculatedAsText(table, row);
}

std::string sizeAsJson(const Table& table, int row) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    writeTableHead(json, table);
    writeSize(json, table, row);
    writeCalculated(json, table, row);
    json.endObject();
    return text + "\n";
}

ExitCode print(const std::string& text) {
    Output output;
    output.write(text);
    return output.close() ? ExitCode::done : ExitCode::failed;
}

/// What there is when there is no section of this name.
void complainAboutSection(const std::string& typed, const Vor_String& name) {
    const auto table = lookUpTable(encodings::toUtf8(sectionTableOf(name)));
    if (!table) {
        findTable(typed);
        return;
    }
    const auto read = readTable(*table);
    if (!read) return;
    Vor_StringArray names;
    read->getSysNames(names);
    std::vector<std::string> words;
    for (const Vor_String& each : names) words.push_back(encodings::toUtf8(each));
    const std::string hint = didYouMean(nearest(typed, words));
    complain("there is no section \"" + typed + "\"" +
             (hint.empty() ? "; see 'vormant sections show " + encodings::toUtf8(table->name) + "'"
                           : hint));
}

}  // namespace

ExitCode showSection(const ShowSectionRequest& request) {
    std::string name, error;
    if (!exchange::fromUtf8(request.name, name, error)) {
        complain("\"" + request.name + "\": " + error);
        return ExitCode::wrongCall;
    }
    if (const auto file = lookUpTable(request.name)) {
        const auto table = readTable(*file);
        if (!table) return ExitCode::failed;
        return print(request.json ? tableAsJson(*table) : tableAsText(*table));
    }
    const auto place = gSectionTables.find(name);
    if (!place) {
        complainAboutSection(request.name, name);
        return ExitCode::failed;
    }
    const Vor_String path = Table::filePath(place.table->name());
    const auto table = readTable({place.table->name(), path});
    if (!table) return ExitCode::failed;
    return print(request.json ? sizeAsJson(*table, place.row) : sizeAsText(*table, place.row));
}

}  // namespace cli
