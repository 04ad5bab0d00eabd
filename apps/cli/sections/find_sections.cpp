#include <algorithm>

#include "cli/io/output.h"
#include "cli/io/suggestion.h"
#include "cli/io/text_table.h"
#include "cli/sections/section_commands.h"
#include "cli/sections/section_json.h"
#include "cli/sections/table_search.h"
#include "exchange/json_writer.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "sections/section_area.h"
#include "sections/section_types.h"

namespace cli {

namespace {

using encodings::toUtf8;

/// One section that fits, as it will be printed.
struct Hit {
    std::optional<double> sortKey;
    std::vector<std::string> cells;  // of a line
    std::string json;
};

std::string dimensions(const FoundSection& found) {
    const Vor_StringArray& size = found.table.rows[0];
    const int first = found.table.firstValueColumn();
    const int type = sectionTypeNumber(found.table.drawnAs);
    const int ofType = sectionTypeColumns(type).length();
    const int shown = ofType > 0 ? ofType : found.columns.count();
    std::string text;
    for (int i = 0; i < std::min(shown, found.columns.count()) && first + i < size.length(); ++i) {
        if (!text.empty()) text += ' ';
        text += toUtf8(found.columns.shown(i)) + "=" + toUtf8(size[first + i]);
    }
    return text;
}

std::vector<std::string> lineOf(const FoundSection& found) {
    const Vor_StringArray& size = found.table.rows[0];
    std::string mass;
    if (const auto kilograms = sectionMass(found.table, 0))
        exchange::appendRounded(mass, *kilograms);
    const int name = Vor_ProfValuesTable::firstNameColumn;
    return {toUtf8(found.table.tableName + "-" + size[0]),
            size.isIndex(name) ? toUtf8(size[name]) : std::string(), mass, dimensions(found)};
}

std::string jsonOf(const FoundSection& found) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    writeTableHead(json, found.table);
    writeSize(json, found.table, 0);
    writeCalculated(json, found.table, 0);
    json.endObject();
    return text;
}

/// Those without the column last, others as they were.
void sortHits(std::vector<Hit>& hits) {
    std::ranges::stable_sort(hits, [](const Hit& a, const Hit& b) {
        return a.sortKey && (!b.sortKey || *a.sortKey < *b.sortKey);
    });
}

std::string asText(const std::vector<Hit>& hits) {
    if (hits.empty()) return "";
    TextTable lines;
    lines.add({"Section", "Name", "kg/m", "Values"});
    for (const Hit& hit : hits) lines.add(hit.cells);
    std::string text;
    lines.append(text, "", true);
    return text;
}

std::string asJson(const std::vector<Hit>& hits) {
    std::string text = "[";
    for (const Hit& hit : hits) text += (text.size() > 1 ? ",\n" : "") + hit.json;
    return text + "]\n";
}

void complainAboutColumn(const std::string& name, const std::vector<std::string>& known) {
    std::vector<std::string> words{"table", "name", "type", "mass", "area"};
    for (const std::string& each : known) words.push_back(toUtf8(each));
    std::ranges::sort(words);
    std::string message = "no table has a column \"" + toUtf8(name) + "\"" +
                          didYouMean(nearest(toUtf8(name), words)) + "; there are";
    for (const std::string& word : words) message += (word == words.front() ? " " : ", ") + word;
    complain(message);
}

}  // namespace

ExitCode findSections(const FindSectionsRequest& request) {
    std::vector<SectionCondition> conditions;
    std::string error, sortColumn;
    for (const std::string& typed : request.conditions) {
        const auto condition = SectionCondition::parse(typed, error);
        if (!condition) {
            complain("\"" + typed + "\": " + error);
            return ExitCode::wrongCall;
        }
        conditions.push_back(*condition);
    }
    if (!exchange::fromUtf8(request.sortColumn, sortColumn, error)) {
        complain("--sort " + request.sortColumn + ": " + error);
        return ExitCode::wrongCall;
    }
    const auto files = neededTables();
    if (files.empty()) return ExitCode::failed;

    TableSearch search(conditions, encodings::lowered(sortColumn), request.inactive);
    std::vector<Hit> hits;
    bool allRead = true;
    for (const TableFile& file : files)
        allRead = search.run(file, [&](const FoundSection& found) {
            Hit hit{found.sortKey, {}, {}};
            if (request.json)
                hit.json = jsonOf(found);
            else
                hit.cells = lineOf(found);
            hits.push_back(std::move(hit));
        }) && allRead;
    const auto unknown = search.unknownColumns();
    // A table that cannot be read may have it.
    if (!unknown.empty() && !allRead) return ExitCode::failed;
    for (const std::string& name : unknown) complainAboutColumn(name, search.knownColumns());
    if (!unknown.empty()) return ExitCode::wrongCall;
    if (!sortColumn.empty()) sortHits(hits);
    if (hits.empty()) complain("no section fits");
    Output output;
    output.write(request.json ? asJson(hits) : asText(hits));
    return output.close() && allRead ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
