#include "cli/cutstock/stock_items.h"

#include <ctime>

#include "cli/io/console.h"
#include "cli/io/suggestion.h"
#include "cli/io/typed_paths.h"
#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "cutstock/cutting_stock_library.h"
#include "cutstock/item_names.h"
#include "platform/encodings.h"
#include "platform/files.h"

namespace cli {

using cutstock::FileKind;
using cutstock::StockFile;

namespace {

/// UTC, for programs: "2026-11-25T04:27:09Z".
std::string isoTime(std::int64_t nanoseconds) {
    const std::time_t seconds = static_cast<std::time_t>(nanoseconds / 1'000'000'000);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    char text[32];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc)};
}

std::string shownList() {
    return shownPath(cutstock::CuttingStockLibrary::path());
}

bool loadItems(cutstock::CuttingStockLibrary& library, DlgCSP2Data& data) {
    Vor_String message;
    if (library.loadItems(data, message)) return true;
    complainText(message);
    return false;
}

}  // namespace

std::optional<StockItems> stockItems() {
    if (gSettings.libDir().isEmpty()) {
        complain("name the library with --library or VORMANT_LIBRARY");
        return std::nullopt;
    }
    StockItems items;
    cutstock::CuttingStockLibrary library;
    if (!loadItems(library, items.data)) return std::nullopt;
    Vor_StringArray folders;
    Vor_String message;
    if (!cutstock::itemFolders(folders, message)) {
        complainText(message);
        return std::nullopt;
    }
    const cutstock::ItemNames listed(items.data.itemNames), withFolder(folders);
    for (int i = 0; cutstock::isItem(items.data, i); ++i) {
        const Vor_String& name = items.data.itemNames[i];
        items.all.push_back({name, items.data.itemIds[i], withFolder.contains(name)});
    }
    for (const Vor_String& folder : folders)
        if (!listed.contains(folder)) items.all.push_back({folder, std::nullopt, true});
    return items;
}

const StockItem* findItem(const StockItems& items, const std::string& typed) {
    std::vector<std::string> names;
    const auto inside = encodings::fromUtf8(typed);
    for (const StockItem& item : items.all) {
        if (inside && encodings::equalFolded(item.name, *inside)) return &item;
        names.push_back(encodings::toUtf8(item.name));
    }
    std::string message = "there is no cutting-stock item \"" + typed + "\"";
    const std::string hint = didYouMean(nearest(typed, names));
    message += names.empty() ? "; there is none in " + shownPath(cutstock::stockFolder())
                             : (hint.empty() ? "; there" : hint + " There") + " are:";
    for (const std::string& name : names) message += "\n  " + name;
    complain(message);
    return nullptr;
}

void reportUnlisted(const StockItem& item) {
    if (item.id) return;
    complainAt(shownList(), 0,
               "\"" + encodings::toUtf8(item.name) +
                   "\" has a folder but no line here, so it is no item; import --new makes it one");
}

bool addToList(const Vor_String& item) {
    cutstock::CuttingStockLibrary library;
    DlgCSP2Data data;
    if (!loadItems(library, data)) return false;
    cutstock::ItemNames names(data.itemNames);
    if (names.contains(item)) return true;  // another program was quicker
    Vor_String message = names.add(item);
    if (message.isEmpty()) {
        cutstock::addItem(data, item);
        if (library.saveItems(data, message)) return true;
    }
    complainText(message);
    return false;
}

std::optional<Vor_String> folderOf(const Vor_String& item) {
    Vor_String message;
    auto folder = cutstock::itemFolder(item, message);
    if (!folder) complainText(message);
    return folder;
}

const FileKind* kindOfExtension(std::string_view extension) {
    for (const FileKind& kind : cutstock::fileKinds)
        if (encodings::equalFolded(extension, kind.extension)) return &kind;
    return nullptr;
}

const FileKind* kindOfFile(const std::string& name) {
    const size_t dot = name.rfind('.');
    return dot == std::string::npos ? nullptr : kindOfExtension(name.substr(dot + 1));
}

std::optional<StockFile> neededFile(const Vor_String& item, const std::string& typed,
                                    const FileKind& kind) {
    const auto folder = folderOf(item);
    if (!folder) return std::nullopt;
    if (typed.empty()) {
        auto newest = cutstock::newestFile(*folder, kind);
        if (!newest)
            complainAt(shownPath(*folder), 0,
                       files::isFolder(*folder)
                           ? "there is no ." + std::string(kind.extension) + " file"
                           : "there is no such folder yet; import makes it with its first file");
        return newest;
    }
    const auto inside = insidePath(typed);
    if (!inside) return std::nullopt;
    StockFile file{getPath(*inside).isEmpty() ? *folder + *inside : *inside};
    if (ObjectExportGetFileTime(file.path, file.time) == Acad::eOk) return file;
    complainAt(shownPath(file.path), 0, "there is no such file");
    return std::nullopt;
}

std::optional<StockTable> readStockTable(const StockFile& file) {
    StockTable table{file, {}};
    Vor_String message;
    if (cutstock::readRows(file.path, table.rows, message)) return table;
    complainText(message);
    return std::nullopt;
}

void writeFileHead(exchange::JsonWriter& json, const StockFile& file) {
    json.key("file");
    json.text(getFileName(file.path));
    json.key("changed");
    json.utf8(isoTime(file.time));
}

void writeRows(exchange::JsonWriter& json, const cutstock::Rows& rows) {
    json.key("rows");
    json.beginArray();
    for (const Vor_StringArray& row : rows) {
        json.beginArray();
        for (const Vor_String& cell : row) json.text(cell);
        json.endArray();
    }
    json.endArray();
}

void writeTable(exchange::JsonWriter& json, const StockTable& table) {
    writeFileHead(json, table.file);
    writeRows(json, table.rows);
}

}  // namespace cli
