#include <algorithm>

#include "cli/io/output.h"
#include "cli/io/text_table.h"
#include "cli/sections/section_commands.h"
#include "cli/sections/section_json.h"
#include "cli/sections/table_files.h"
#include "exchange/json_writer.h"
#include "platform/encodings.h"

namespace cli {

namespace {

int activeSizes(const Vor_ProfValuesTable& table) {
    Vor_StringArray names;
    table.getFilteredSysNames(names);
    return names.length();
}

std::string asText(const std::vector<Vor_ProfValuesTable>& tables) {
    TextTable lines;
    lines.add({"Table", "Sizes", "In use", "Type"});
    for (const auto& table : tables)
        lines.add({encodings::toUtf8(table.tableName), std::to_string(table.rows.length()),
                   std::to_string(activeSizes(table)), shownType(table.drawnAs)});
    std::string text;
    lines.append(text, "", true);
    return text;
}

std::string asJson(const std::vector<Vor_ProfValuesTable>& tables) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginArray();
    for (const auto& table : tables) {
        json.beginObject();
        writeTableHead(json, table);
        json.key("sizes");
        json.number(table.rows.length());
        json.key("active");
        json.number(activeSizes(table));
        json.endObject();
    }
    json.endArray();
    return text + "\n";
}

}  // namespace

ExitCode listSections(const ListSectionsRequest& request) {
    const auto files = neededTables();
    if (files.empty()) return ExitCode::failed;
    std::vector<Vor_ProfValuesTable> tables;
    for (const TableFile& file : files)
        if (auto table = readTable(file)) tables.push_back(std::move(*table));
    Output output;
    output.write(request.json ? asJson(tables) : asText(tables));
    return output.close() && tables.size() == files.size() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
