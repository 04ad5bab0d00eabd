// The cutting-stock items of the library, and the tables in their files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cutstock/stock_files.h"
#include "exchange/json_writer.h"

namespace cli {

struct StockItem {
    Vor_String name;
    std::optional<int> id;  ///< nothing for a folder without a line in "Items.dat"
    bool hasFolder = false;
};

struct StockItems {
    DlgCSP2Data data;            ///< names of columns and parts
    std::vector<StockItem> all;  ///< in the order of "Items.dat"; then folders that it lacks
};

/// Nothing, after telling why, when there is no library or it cannot be read.
std::optional<StockItems> stockItems();
/// The item meant, letter case aside; null after telling what there is.
const StockItem* findItem(const StockItems& items, const std::string& typed);
/// Says so of folders that have no line in "Items.dat".
void reportUnlisted(const StockItem& item);
/// The folder of an item; nothing after telling why.
std::optional<Vor_String> folderOf(const Vor_String& item);
/// Adds it to "Items.dat" as that is now. False after telling why.
bool addToList(const Vor_String& item);

/// The kind with this extension, or that of a file's name; null when there is none.
const cutstock::FileKind* kindOfExtension(std::string_view extension);
const cutstock::FileKind* kindOfFile(const std::string& name);

struct StockTable {
    cutstock::StockFile file;
    cutstock::Rows rows;
};
/// The newest file, or the one that was typed: a name in the item's folder, or a path. Nothing,
/// after telling why, when there is none.
std::optional<cutstock::StockFile> neededFile(const Vor_String& item, const std::string& typed,
                                              const cutstock::FileKind& kind);
/// Nothing after telling why it cannot be read.
std::optional<StockTable> readStockTable(const cutstock::StockFile& file);

/// Writes the rows as the member "rows" of the object that is begun.
void writeRows(exchange::JsonWriter& json, const cutstock::Rows& rows);
/// The members "file", "changed" and, with a table, "rows" of the object that is begun.
void writeFileHead(exchange::JsonWriter& json, const cutstock::StockFile& file);
void writeTable(exchange::JsonWriter& json, const StockTable& table);

}  // namespace cli
