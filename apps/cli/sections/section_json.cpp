#include "cli/sections/section_json.h"

#include <algorithm>

#include "sections/section_area.h"
#include "sections/section_figures.h"
#include "sections/section_types.h"

namespace cli {

void writeTableHead(exchange::JsonWriter& json, const Vor_ProfValuesTable& table) {
    json.key("table");
    json.text(table.tableName);
    const int type = sectionTypeNumber(table.drawnAs);
    json.key(type > 0 ? "type" : "template");
    if (type > 0)
        json.number(type);
    else
        json.text(table.drawnAs);
    json.key("columns");
    json.beginArray();
    for (int col = table.firstValueColumn(); col < table.columnNames.length(); ++col)
        json.text(table.columnNames[col]);
    json.endArray();
}

void writeSize(exchange::JsonWriter& json, const Vor_ProfValuesTable& table, int row) {
    const Vor_StringArray& size = table.rows[row];
    const int columns = std::min(size.length(), table.columnNames.length());
    const int firstValue = std::min(table.firstValueColumn(), columns);
    const auto cell = [&](int col) { return size.isIndex(col) ? size[col] : Vor_String(); };
    json.key("section");
    json.text(table.tableName + "-" + cell(Vor_ProfValuesTable::systemNameColumn));
    json.key("active");
    json.truth(cell(Vor_ProfValuesTable::activeColumn).view() != "0");
    json.key("names");
    json.beginObject();
    for (int col = Vor_ProfValuesTable::firstNameColumn; col < firstValue; ++col) {
        json.key(table.columnNames[col]);
        json.text(size[col]);
    }
    json.endObject();
    json.key("values");
    json.beginObject();
    for (int col = firstValue; col < columns; ++col) {
        json.key(table.columnNames[col]);
        json.text(size[col]);
    }
    json.endObject();
    if (const auto mass = sectionMass(table, row)) {
        json.key("mass");
        json.number(exchange::asShown(*mass));
    }
}

void writeCalculated(exchange::JsonWriter& json, const Vor_ProfValuesTable& table, int row) {
    const auto figures = SectionFigures::of(table, row);
    json.key("calculated");
    json.beginObject();
    if (figures)
        for (const auto& [column, value] : figures->catalogueFigures()) {
            json.key(column);
            json.number(exchange::asShown(value));
        }
    json.endObject();
}

std::string tableAsJson(const Vor_ProfValuesTable& table) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    writeTableHead(json, table);
    json.key("sizes");
    json.beginArray();
    for (int row = 0; row < table.rows.length(); ++row) {
        json.newLine();
        json.beginObject();
        writeSize(json, table, row);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    return text + "\n";
}

}  // namespace cli
