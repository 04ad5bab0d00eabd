#include "cli/cutstock/cutstock_commands.h"
#include "cli/cutstock/stock_items.h"
#include "cli/io/output.h"
#include "cutstock/load_all.h"

namespace cli {

namespace {

/// The items asked for, else those that the dialog shows, without rows. Nothing after telling why.
std::optional<DlgCSP2Data> itemsOf(const ReportStockRequest& request) {
    const auto items = stockItems();
    if (!items) return std::nullopt;
    DlgCSP2Data data;
    for (const std::string& typed : request.items) {
        const StockItem* item = findItem(*items, typed);
        if (!item) return std::nullopt;
        reportUnlisted(*item);
        cutstock::addItem(data, item->name);
    }
    if (!request.items.empty()) return data;
    for (const StockItem& item : items->all) {
        reportUnlisted(item);
        if (item.id) cutstock::addItem(data, item.name);
    }
    return data;
}

void writeLines(exchange::JsonWriter& json, std::string_view key, const Vor_StringArray& lines) {
    json.key(key);
    json.beginArray();
    for (const Vor_String& line : lines) json.text(line);
    json.endArray();
}

std::string asJson(const cutstock::LoadedAll& loaded) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    json.key("title");
    json.text(loaded.report.title);
    json.key("heading");
    json.text(loaded.report.heading);
    writeLines(json, "lines", loaded.report.lines);
    writeLines(json, "failures", loaded.failures);
    json.endObject();
    return text + "\n";
}

std::string asText(const cutstock::LoadedAll& loaded) {
    std::string text;
    for (const Vor_String& line : loaded.report.lines) {
        exchange::appendUtf8(text, line);
        text += '\n';
    }
    return text;
}

}  // namespace

ExitCode reportStock(const ReportStockRequest& request) {
    auto data = itemsOf(request);
    if (!data) return ExitCode::failed;
    const cutstock::LoadedAll loaded = cutstock::loadAll(*data);
    Output output;
    output.write(request.json ? asJson(loaded) : asText(loaded));
    for (const Vor_String& failure : loaded.failures) complainText(failure);
    return output.close() && loaded.failures.isEmpty() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
