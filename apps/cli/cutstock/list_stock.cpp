#include <algorithm>
#include <array>

#include "cli/cutstock/cutstock_commands.h"
#include "cli/cutstock/stock_items.h"
#include "cli/io/output.h"
#include "cli/io/text_table.h"
#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"

namespace cli {

namespace {

struct FilesOfKind {
    int count = 0;
    std::optional<cutstock::StockFile> newest;
};

struct ListedItem {
    StockItem item;
    std::array<FilesOfKind, cutstock::fileKinds.size()> files;

    const char* note() const {
        return !item.id ? "not in Items.dat" : !item.hasFolder ? "no folder" : "";
    }
};

ListedItem listed(const StockItem& listedItem) {
    ListedItem item{listedItem, {}};
    const Vor_String folder = cutstock::stockFolder() + listedItem.name + "\\";
    for (size_t i = 0; i < item.files.size(); ++i) {
        const auto& kind = cutstock::fileKinds[i];
        const std::string pattern = std::string("*.") + kind.extension;
        item.files[i] = {ObjectExportFindFiles(folder, pattern).length(),
                         cutstock::newestFile(folder, kind)};
    }
    return item;
}

std::string asText(const std::vector<ListedItem>& items) {
    TextTable lines;
    const bool hasNotes = std::any_of(items.begin(), items.end(),
                                      [](const ListedItem& each) { return *each.note(); });
    lines.add({"Item", ".shp", "Newest", ".buy", "Newest", hasNotes ? "Note" : ""});
    for (const ListedItem& item : items) {
        std::vector<std::string> row{encodings::toUtf8(item.item.name)};
        for (const FilesOfKind& files : item.files) {
            row.push_back(std::to_string(files.count));
            row.push_back(files.newest ? encodings::toUtf8(getFileName(files.newest->path)) : "");
        }
        row.emplace_back(item.note());
        lines.add(row);
    }
    std::string text;
    lines.append(text, "", true);
    return text;
}

std::string asJson(const std::vector<ListedItem>& items) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginArray();
    for (const ListedItem& item : items) {
        json.beginObject();
        json.key("item");
        json.text(item.item.name);
        json.key("listed");
        json.truth(item.item.id.has_value());
        json.key("folder");
        json.truth(item.item.hasFolder);
        for (size_t i = 0; i < item.files.size(); ++i) {
            json.key(cutstock::fileKinds[i].extension);
            json.beginObject();
            json.key("files");
            json.number(item.files[i].count);
            if (item.files[i].newest) {
                json.key("newest");
                json.beginObject();
                writeFileHead(json, *item.files[i].newest);
                json.endObject();
            }
            json.endObject();
        }
        json.endObject();
    }
    json.endArray();
    return text + "\n";
}

}  // namespace

ExitCode listStock(const ListStockRequest& request) {
    const auto all = stockItems();
    if (!all) return ExitCode::failed;
    std::vector<ListedItem> items;
    for (const StockItem& item : all->all) items.push_back(listed(item));
    Output output;
    output.write(request.json ? asJson(items) : asText(items));
    return output.close() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
