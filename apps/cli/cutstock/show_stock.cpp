#include "cli/cutstock/cutstock_commands.h"
#include "cli/cutstock/stock_items.h"
#include "cli/io/output.h"
#include "cli/io/text_table.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "cutstock/load_all.h"
#include "platform/encodings.h"

namespace cli {

using cutstock::FileKind;

namespace {

constexpr int partsCaption = 625;

/// What is shown of a kind: a table unless there is no file of it.
struct Shown {
    const FileKind* kind;
    std::optional<StockTable> table;
};

struct ShownItem {
    Vor_String name;
    cutstock::Rows parts;
    std::vector<Shown> tables;
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

void appendRows(std::string& text, const Vor_StringArray& columns, const cutstock::Rows& rows) {
    TextTable lines;
    const auto add = [&lines](const Vor_StringArray& row) {
        std::vector<std::string> cells;
        for (const Vor_String& cell : row) cells.push_back(encodings::toUtf8(cell));
        lines.add(std::move(cells));
    };
    if (rows.isEmpty()) return;
    if (!columns.isEmpty()) add(columns);
    for (const Vor_StringArray& row : rows) add(row);
    lines.append(text, "  ", !columns.isEmpty());
}

std::string asText(const ShownItem& item, const DlgCSP2Data& library) {
    std::string text;
    if (!item.parts.isEmpty()) {
        text += encodings::toUtf8(dialString(partsCaption)) + ":\n";
        appendRows(text, library.tables[0].columnNames, item.parts);
    }
    for (const Shown& shown : item.tables) {
        text += encodings::toUtf8(dialString(shown.kind->caption)) + ": ";
        if (!shown.table) {
            text += "no ." + std::string(shown.kind->extension) + " file\n";
            continue;
        }
        const auto& file = shown.table->file;
        text += encodings::toUtf8(getFileName(file.path) + ", " + cutstock::timeText(file.time));
        text += '\n';
        appendRows(text, library.tables[static_cast<size_t>(shown.kind->table)].columnNames,
                   shown.table->rows);
    }
    return text;
}

std::string asJson(const ShownItem& item) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginObject();
    json.key("item");
    json.text(item.name);
    if (!item.parts.isEmpty()) {
        json.key("parts");
        json.beginObject();
        writeRows(json, item.parts);
        json.endObject();
    }
    for (const Shown& shown : item.tables) {
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
    const auto items = stockItems();
    const StockItem* item = items ? findItem(*items, request.item) : nullptr;
    if (!item) return ExitCode::failed;
    reportUnlisted(*item);
    ShownItem shown{item->name, {}, {}};
    if (item->id && request.file.empty())
        shown.parts = cutstock::rowsOf(items->data.tables[0], *item->id);
    const bool isWhole = collect(item->name, request, shown.tables);
    Output output;
    if (isWhole || !shown.tables.empty())
        output.write(request.json ? asJson(shown) : asText(shown, items->data));
    return output.close() && isWhole ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
