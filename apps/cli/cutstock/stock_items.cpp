#include "cutstock/stock_items.h"

#include <algorithm>
#include <ctime>
#include <filesystem>

#include "console.h"
#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "io/suggestion.h"
#include "io/typed_paths.h"
#include "platform/encodings.h"
#include "platform/paths.h"

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

/// Folders whose names Windows-1252 cannot write are none of the module's, as its files.
std::vector<Vor_String> foldersIn(const std::string& machine, std::error_code& error) {
    std::vector<Vor_String> names;
    std::filesystem::directory_iterator each(machine, error);
    for (; !error && each != std::filesystem::directory_iterator(); each.increment(error)) {
        std::error_code unreadable;
        if (!each->is_directory(unreadable)) continue;
        if (const auto name = encodings::fromUtf8(each->path().filename().string()))
            names.emplace_back(*name);
    }
    std::sort(names.begin(), names.end(), [](const Vor_String& a, const Vor_String& b) {
        return encodings::compareFolded(a, b) < 0;
    });
    return names;
}

}  // namespace

std::optional<std::vector<Vor_String>> libraryItems() {
    if (gSettings.libDir().isEmpty()) {
        complain("name the library with --library or VORMANT_LIBRARY");
        return std::nullopt;
    }
    std::error_code error;
    auto names = foldersIn(paths::toMachine(cutstock::stockFolder()), error);
    if (!error || error == std::errc::no_such_file_or_directory) return names;
    complainAt(shownPath(cutstock::stockFolder()), 0, error.message());
    return std::nullopt;
}

std::optional<Vor_String> findItem(const std::string& typed) {
    const auto items = libraryItems();
    if (!items) return std::nullopt;
    std::vector<std::string> names;
    const auto inside = encodings::fromUtf8(typed);
    for (const Vor_String& item : *items) {
        if (inside && encodings::equalFolded(item, *inside)) return item;
        names.push_back(encodings::toUtf8(item));
    }
    std::string message = "there is no cutting-stock item \"" + typed + "\"";
    const std::string hint = didYouMean(nearest(typed, names));
    message += names.empty() ? "; there is none in " + shownPath(cutstock::stockFolder())
                             : (hint.empty() ? "; there" : hint + " There") + " are:";
    for (const std::string& name : names) message += "\n  " + name;
    complain(message);
    return std::nullopt;
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
                       "there is no ." + std::string(kind.extension) + " file");
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

void writeFileHead(JsonWriter& json, const StockFile& file) {
    json.key("file");
    json.text(getFileName(file.path));
    json.key("changed");
    json.utf8(isoTime(file.time));
}

void writeTable(JsonWriter& json, const StockTable& table) {
    writeFileHead(json, table.file);
    json.key("rows");
    json.beginArray();
    for (const Vor_StringArray& row : table.rows) {
        json.beginArray();
        for (const Vor_String& cell : row) json.text(cell);
        json.endArray();
    }
    json.endArray();
}

}  // namespace cli
