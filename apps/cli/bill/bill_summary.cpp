#include "cli/bill/bill_summary.h"

#include "bills/bill_choice.h"
#include "cli/io/typed_paths.h"
#include "core_api/text/text_helpers.h"
#include "exchange/json_writer.h"

namespace cli {

namespace {

void writeTexts(exchange::JsonWriter& json, std::string_view key, const Vor_StringArray& texts) {
    json.key(key);
    json.beginArray();
    for (const Vor_String& text : texts) json.text(text);
    json.endArray();
}

/// The sums by the names of their columns.
void writeSums(exchange::JsonWriter& json, std::string_view key, const Vor_Bill& bill,
               const Vor_StringArray& cells) {
    json.key(key);
    json.beginObject();
    for (int i = 0; i < cells.length(); ++i) {
        const BillColumn& column = bill.columns[static_cast<size_t>(i)];
        if (column.kind == BillColumnKind::text || cells[i].isEmpty()) continue;
        json.key(column.name);
        json.number(textToDouble(cells[i]));
    }
    json.endObject();
}

}  // namespace

std::string billSummary(const Vor_Bill& bill, const Vor_String& file) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    json.key("file");
    json.utf8(shownPath(file));
    writeTexts(json, "columns", bill.columnNames());
    json.key("rows");
    json.number(static_cast<int>(bill.rows.size()));
    json.key("groups");
    json.beginArray();
    for (const BillGroup& group : bill.groups) {
        json.beginObject();
        json.key("name");
        json.text(group.name);
        json.key("rows");
        json.number(group.rowCount);
        writeSums(json, "sums", bill, group.subtotals);
        json.endObject();
    }
    json.endArray();
    writeSums(json, "totals", bill, bill.totals);
    writeTexts(json, "withoutMass", bills::rowsWithoutMass(bill));
    writeTexts(json, "doubtfulMass", bills::doubtfulMasses(bill));
    json.endObject();
    return text;
}

}  // namespace cli
