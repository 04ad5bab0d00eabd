#include <algorithm>

#include "cli/cutstock/cutstock_commands.h"
#include "cli/cutstock/stock_items.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "core_api/files.h"
#include "cutstock/cutting_stock_library.h"
#include "exchange/csv.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "platform/exclusive_change.h"
#include "platform/kept_file.h"

namespace cli {

namespace {

constexpr char cellSeparator = '\xBF';

/// False, with the reason in `error`, for what a cell of a file cannot hold.
bool takeCell(std::string_view field, Vor_StringArray& row, std::string& error) {
    std::string cell;
    if (!exchange::fromUtf8(field, cell, error)) return false;
    if (cell.find(cellSeparator) != std::string::npos)
        error = "the character \xC2\xBF parts the cells in the file; write another one";
    else if (cell.find_first_of("\r\n") != std::string::npos)
        error = "a cell runs over several lines, which the file cannot hold; write it in one";
    else
        row.append(cell);
    return error.empty();
}

/// The rows of a CSV file without a header; nothing after telling why.
std::optional<cutstock::Rows> readCsv(const std::string& path) {
    const std::string name = exchange::LineSource::shownName(path);
    std::string error;
    auto source = exchange::LineSource::open(path, error);
    if (!source) {
        complainAt(name, 0, error);
        return std::nullopt;
    }
    exchange::CsvReader reader(*source, exchange::CsvReader::EmptyLines::kept);
    std::vector<std::string_view> fields;
    cutstock::Rows rows;
    exchange::CsvReader::ReadResult got;
    while ((got = reader.next(fields)) == exchange::CsvReader::ReadResult::record) {
        Vor_StringArray row;
        for (const std::string_view field : fields) {
            if (takeCell(field, row, error)) continue;
            complainAt(name, reader.lineNumber(), error);
            return std::nullopt;
        }
        rows.append(std::move(row));
    }
    if (got == exchange::CsvReader::ReadResult::end) return rows;
    complainAt(name, reader.lineNumber(), reader.error());
    return std::nullopt;
}

struct ItemMeant {
    Vor_String name;
    bool isNew;  ///< not in "Items.dat" so far
};

/// An item that is there, or with --new one that may not be.
std::optional<ItemMeant> itemMeant(const ImportStockRequest& request) {
    const auto items = stockItems();
    if (!items) return std::nullopt;
    std::string name, error;
    if (request.newItem) {
        if (!exchange::fromUtf8(request.item, name, error)) {
            complain(request.item + ": " + error);
            return std::nullopt;
        }
        const auto isMeant = [&](const StockItem& each) {
            return encodings::equalFolded(each.name, name);
        };
        if (std::none_of(items->all.begin(), items->all.end(), isMeant))
            return ItemMeant{name, true};
    }
    const StockItem* item = findItem(*items, request.item);
    if (!item) return std::nullopt;
    if (item->id || request.newItem) return ItemMeant{item->name, !item->id};
    reportUnlisted(*item);
    return std::nullopt;
}

/// Where the rows go.
Vor_String placeIn(const Vor_String& folder, const ImportStockRequest& request,
                   const Vor_String& name) {
    const cutstock::FileKind& kind = *kindOfExtension(request.kind);
    return cutstock::storedPath(
        folder + (name.isEmpty() ? cutstock::defaultFileName(folder, kind) : name), kind);
}

/// False, after telling it, when the file is there and may not be replaced.
bool mayWrite(const ImportStockRequest& request, const Vor_String& path) {
    if (request.force || !ObjectExportFileExists(path)) return true;
    complainAt(shownPath(path), 0, "the file is there already; --force replaces it");
    return false;
}

bool fails(const std::string& why) {
    complainText(why);
    return false;
}

/// What another program adds meanwhile stays, and of what fails nothing is left.
bool store(const ImportStockRequest& request, const Vor_String& name, const cutstock::Rows& rows,
           Vor_String& path) {
    std::string error;
    Vor_String message;
    const Vor_String list = cutstock::CuttingStockLibrary::path();
    const auto listChange = files::ExclusiveChange::take(list, error);
    if (!listChange) return fails(error);
    const auto item = itemMeant(request);
    const auto folder = item ? folderOf(item->name) : std::nullopt;
    if (!folder) return false;
    const auto before = item->isNew ? files::KeptFile::keep(list, error) : nullptr;
    if (item->isNew && !before) return fails(error);
    // The item first: it may well have no files, while files without an item are seen by nobody.
    if (item->isNew && !addToList(item->name)) return false;
    path = placeIn(*folder, request, name);
    const auto change = files::ExclusiveChange::take(path, error);
    if (!change)
        complainText(error);
    else if (mayWrite(request, path)) {
        if (cutstock::saveRows(path, rows, message)) return true;
        complainText(message);
    }
    if (before && !before->putBack(error)) complainText(error);
    return false;
}

}  // namespace

ExitCode importStock(const ImportStockRequest& request) {
    const auto name = encodings::fromUtf8(request.name);
    if (!name || (!name->empty() && !cutstock::canBeFolder(*name))) {
        complain("--as " + request.name +
                 ": this cannot be the name of a file in the item's folder");
        return ExitCode::wrongCall;
    }
    const auto item = itemMeant(request);
    const auto folder = item ? folderOf(item->name) : std::nullopt;
    if (!folder || !mayWrite(request, placeIn(*folder, request, *name))) return ExitCode::failed;
    const auto rows = readCsv(request.csv);
    Vor_String path;
    if (!rows || !store(request, *name, *rows, path)) return ExitCode::failed;
    Output output;
    output.write(shownPath(path) + "\n");
    return output.close() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
