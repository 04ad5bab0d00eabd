#include "cli/cutstock/cutstock_commands.h"
#include "cli/cutstock/stock_items.h"
#include "cli/io/export_file.h"

namespace cli {

namespace {

/// Without a header, as the files have none.
std::string asCsv(const cutstock::Rows& rows) {
    std::string text;
    for (const Vor_StringArray& row : rows) appendRecord(text, row);
    return text;
}

std::string asJson(const Vor_String& item, const StockTable& table) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    json.key("item");
    json.text(item);
    writeTable(json, table);
    json.endObject();
    return text + "\n";
}

}  // namespace

ExitCode exportStock(const ExportStockRequest& request) {
    const ExportTarget target{request.to, request.json};
    if (!target.isValid()) return ExitCode::wrongCall;
    const cutstock::FileKind& kind = *kindOfExtension(request.kind);
    if (!request.file.empty() && kindOfFile(request.file) != &kind) {
        complain("--file " + request.file + ": this is no ." + request.kind + " file");
        return ExitCode::wrongCall;
    }
    const auto items = stockItems();
    const StockItem* item = items ? findItem(*items, request.item) : nullptr;
    if (!item) return ExitCode::failed;
    reportUnlisted(*item);
    const auto file = neededFile(item->name, request.file, kind);
    const auto table = file ? readStockTable(*file) : std::nullopt;
    if (!table) return ExitCode::failed;
    return target.write(target.isJson() ? asJson(item->name, *table) : asCsv(table->rows));
}

}  // namespace cli
