#include "cutstock/cutstock_commands.h"
#include "cutstock/load_all.h"
#include "cutstock/stock_items.h"
#include "io/output.h"

namespace cli {

namespace {

/// The items asked for, without rows. Nothing after telling why.
std::optional<DlgCSP2Data> itemsOf(const ReportStockRequest& request) {
    DlgCSP2Data data;
    if (request.items.empty()) {
        const auto all = libraryItems();
        if (!all) return std::nullopt;
        for (const Vor_String& item : *all) cutstock::addItem(data, item);
    }
    for (const std::string& typed : request.items) {
        const auto item = findItem(typed);
        if (!item) return std::nullopt;
        cutstock::addItem(data, *item);
    }
    return data;
}

void writeLines(JsonWriter& json, std::string_view key, const Vor_StringArray& lines) {
    json.key(key);
    json.beginArray();
    for (const Vor_String& line : lines) json.text(line);
    json.endArray();
}

std::string asJson(const cutstock::LoadedAll& loaded) {
    std::string text;
    JsonWriter json(text);
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
        appendUtf8(text, line);
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
