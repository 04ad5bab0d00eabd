// The cutting-stock items of the library, which are folders, and the tables in their files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cutstock/stock_files.h"
#include "io/json_writer.h"

namespace cli {

/// By name. Nothing, after telling why, when there is no library or its folder cannot be read.
std::optional<std::vector<Vor_String>> libraryItems();
/// The item meant, letter case aside; nothing after telling what there is.
std::optional<Vor_String> findItem(const std::string& typed);
/// Its folder; nothing after telling why.
std::optional<Vor_String> folderOf(const Vor_String& item);

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

/// The members "file", "changed" and, with a table, "rows" of the object that is begun.
void writeFileHead(JsonWriter& json, const cutstock::StockFile& file);
void writeTable(JsonWriter& json, const StockTable& table);

}  // namespace cli
