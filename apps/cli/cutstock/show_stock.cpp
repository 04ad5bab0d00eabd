#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "cutstock/cutstock_commands.h"
#include "cutstock/load_all.h"
#include "cutstock/stock_items.h"
#include "io/output.h"
#include "io/text_table.h"
#include "platform/encodings.h"

namespace cli {

using cutstock::FileKind;

namespace {

/// What is shown of a kind: a table unless there is no file of it.
struct Shown {
    const FileKind* kind;
    std::optional<StockTable> table;
};

/// The newest of each kind, or the one file that was asked for. False when something cannot be
/// read, which is told.
bool collect(const Vor_String& item, const ShowStockRequest& request, std::vector<Shown>& all) {
    if (!request.file.empty()) {
        const FileKind& kind = *kindOfFile(request.file);
        const auto file = neededFile(item, request.file, kind);
        auto table = file ? readStockTable(*file) : std::nullopt;
        if (!table) return false;
        all.push_back({&kind, std::move(table)});
        return true;
    }
    const auto folder = folderOf(item);
    if (!folder) return false;
    bool isWhole = true;
    for (const FileKind& kind : cutstock::fileKinds) {
        const auto newest = cutstock::newestFile(*folder, kind);
        auto table = newest ? readStockTable(*newest) : std::nullopt;
        if (newest && !table)
            isWhole = false;
        else
            all.push_back({&kind, std::move(table)});
    }
    return isWhole;
}

void appendRows(std::string& text, const cutstock::Rows& rows) {
    TextTable lines;
    for (const Vor_StringArray& row : rows) {
        std::vector<std::string> cells;
        for (const Vor_String& cell : row) cells.push_back(encodings::toUtf8(cell));
        lines.add(std::move(cells));
    }
    if (!lines.isEmpty()) lines.append(text, "  ", false);
}

std::string asText(const std::vector<Shown>& all) {
    std::string text;
    for (const Shown& shown : all) {
        text += encodings::toUtf8(dialString(shown.kind->caption)) + ": ";
        if (!shown.table) {
            text += "no ." + std::string(shown.kind->extension) + " file\n";
            continue;
        }
        const auto& file = shown.table->file;
        text += encodings::toUtf8(getFileName(file.path) + ", " + cutstock::timeText(file.time));
        text += '\n';
        appendRows(text, shown.table->rows);
    }
    return text;
}

std::string asJson(const Vor_String& item, const std::vector<Shown>& all) {
    std::string text;
    JsonWriter json(text);
    json.beginObject();
    json.key("item");
    json.text(item);
    for (const Shown& shown : all) {
        if (!shown.table) continue;
        json.key(shown.kind->extension);
        json.beginObject();
        writeTable(json, *shown.table);
        json.endObject();
    }
    json.endObject();
    return text + "\n";
}

}  // namespace

ExitCode showStock(const ShowStockRequest& request) {
    if (!request.file.empty() && !kindOfFile(request.file)) {
        complain("--file " + request.file + ": give a .shp or a .buy file");
        return ExitCode::wrongCall;
    }
    const auto item = findItem(request.item);
    if (!item) return ExitCode::failed;
    std::vector<Shown> all;
    const bool isWhole = collect(*item, request, all);
    Output output;
    if (!all.empty()) output.write(request.json ? asJson(*item, all) : asText(all));
    return output.close() && isWhole ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
