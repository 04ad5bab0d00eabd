// The files of a cutting-stock calculation: for every item a folder of its own, in it the stock in
// ".shp" and the purchases in ".buy" files. A line of a file is a row, its cells separated by the
// byte 0xBF. Files are never changed by themselves: every saving makes a new one unless the user
// chooses an old one.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "cutstock/item_rows.h"

namespace cutstock {

struct FileKind {
    int table;  ///< index in DlgCSP2Data::tables
    const char* extension;
    int caption;  ///< text number
};
inline constexpr FileKind stockKind{1, "shp", 626};
inline constexpr FileKind purchaseKind{2, "buy", 627};
inline constexpr std::array fileKinds{stockKind, purchaseKind};

/// "Cutting Stock\" in the library.
Vor_String stockFolder();
/// The folder of an item, whether it is there or not. Nothing, with `message` saying why, when no
/// library is set or the name cannot be that of a folder.
std::optional<Vor_String> itemFolder(const Vor_String& item, Vor_String& message);

/// The names of the folders in stockFolder() that items can have, alphabetically, letter case
/// aside; none when it is not there. False, with `message` saying why, when it cannot be read.
bool itemFolders(Vor_StringArray& names, Vor_String& message);

/// "Stock8.shp": the number is one more than the largest in the names there.
Vor_String defaultFileName(std::string_view folder, const FileKind& kind);

struct StockFile {
    Vor_String path;
    std::int64_t time = 0;  ///< last change, nanoseconds since 1970
};
/// The file changed last, the first listed of several at the same time.
std::optional<StockFile> newestFile(std::string_view folder, const FileKind& kind);

/// Where a chosen path is kept: the name in small letters, with its extension. Folders keep their
/// names, and so does a file that exists exactly as chosen, as another one may have the same name
/// in small letters.
Vor_String storedPath(const Vor_String& chosen, const FileKind& kind);

/// What a file holds, and its rows again: they come back as they were unless a cell holds a line
/// end or the byte that parts cells.
Rows rowsOfText(std::string_view text);
std::string textOfRows(const Rows& rows);

/// False, with the old file as it was and `message` saying why, when it cannot be written; a line
/// end in a cell would tear its row apart and is refused.
bool saveRows(const Vor_String& path, const Rows& rows, Vor_String& message);
/// The same under the default name, also while other programs save: `path` becomes that of the new
/// file.
bool saveNewFile(const Vor_String& folder, const FileKind& kind, const Rows& rows, Vor_String& path,
                 Vor_String& message);
/// False, with no rows and `message` saying why, when the file cannot be read.
bool readRows(const Vor_String& path, Rows& rows, Vor_String& message);

/// The rows of an item in the table of the file; saveRows and readRows with their failures.
bool saveItem(const DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& path,
              Vor_String& message);
/// The same with saveNewFile.
bool saveNewItem(const DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& folder,
                 Vor_String& path, Vor_String& message);
/// The rows of the file take the place of the item's; none when it cannot be read.
bool readItem(DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& path,
              Vor_String& message);

}  // namespace cutstock
