#include "cutstock/stock_files.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"
#include "platform/paths.h"

namespace cutstock {

namespace {

constexpr char cellSeparator = '\xBF';
constexpr std::string_view numberedName = "Stock";
constexpr int noLibraryText = 25200, noFolderNameText = 25201, lineEndText = 25202;

std::string patternOf(const FileKind& kind) {
    return std::string("*.") + kind.extension;
}

/// The number behind "Stock" in a name, 0 without one. One too large to count on from is none:
/// it can never be the next.
long long numberIn(const Vor_String& name) {
    const int at = name.findFirstFrom(numberedName, 0);
    if (at < 0) return 0;
    const std::string_view rest = name.view().substr(static_cast<size_t>(at) + numberedName.size());
    constexpr long long largest = 999'999'999'999;
    long long number = 0;
    const auto read = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    return read.ec == std::errc() && number > 0 && number <= largest ? number : 0;
}

bool isThereAsWritten(const Vor_String& path) {
    std::error_code ignored;
    return std::filesystem::exists(paths::asWritten(path), ignored);
}

/// The first row, from 1, that has a line end in a cell; 0 when none has.
int rowWithLineEnd(const Rows& rows) {
    const auto isTorn = [](const Vor_String& cell) {
        return cell.view().find_first_of("\r\n") != std::string_view::npos;
    };
    for (int i = 0; i < rows.length(); ++i)
        if (std::any_of(rows[i].begin(), rows[i].end(), isTorn)) return i + 1;
    return 0;
}

}  // namespace

Vor_String stockFolder() {
    return gSettings.libDir() + "Cutting Stock\\";
}

std::optional<Vor_String> itemFolder(const Vor_String& item, Vor_String& message) {
    if (gSettings.libDir().isEmpty()) {
        message = dialString(noLibraryText);
        return std::nullopt;
    }
    if (!canBeFolder(item)) {
        message = "\"" + item + "\": " + dialString(noFolderNameText);
        return std::nullopt;
    }
    return stockFolder() + item + "\\";
}

Vor_String defaultFileName(std::string_view folder, const FileKind& kind) {
    long long largest = 0;
    for (const Vor_String& path : ObjectExportFindFiles(folder, patternOf(kind)))
        largest = std::max(largest, numberIn(getFileName(path)));
    return std::string(numberedName) + std::to_string(largest + 1) + "." + kind.extension;
}

std::optional<StockFile> newestFile(std::string_view folder, const FileKind& kind) {
    std::optional<StockFile> newest;
    for (const Vor_String& path : ObjectExportFindFiles(folder, patternOf(kind))) {
        std::int64_t time = 0;
        if (ObjectExportGetFileTime(path, time) != Acad::eOk) continue;
        if (!newest || time > newest->time) newest = StockFile{path, time};
    }
    return newest;
}

Vor_String storedPath(const Vor_String& chosen, const FileKind& kind) {
    const std::string ending = std::string(".") + kind.extension;
    const Vor_String whole = chosen.endsWith(ending) ? chosen : chosen + ending;
    if (isThereAsWritten(whole)) return whole;
    return getPath(whole) + encodings::lowered(getFileName(whole));
}

bool saveRows(const Vor_String& path, const Rows& rows, Vor_String& message) {
    if (const int row = rowWithLineEnd(rows)) {
        message = path + ":" + std::to_string(row) + ": " + dialString(lineEndText).str();
        return false;
    }
    return ObjectExportCreateDirectory(getPath(path), &message) == Acad::eOk &&
           ObjectExportWriteFile(path, arrArrToArr(rows, cellSeparator), &message) == Acad::eOk;
}

bool readRows(const Vor_String& path, Rows& rows, Vor_String& message) {
    Vor_StringArray lines;
    const bool isRead = ObjectExportReadFile(path, lines, &message) == Acad::eOk;
    rows = arrToArrArr(lines, cellSeparator);
    return isRead;
}

bool saveItem(const DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& path,
              Vor_String& message) {
    return saveRows(path, rowsOf(data.tables[kind.table], data.itemIds[item]), message);
}

bool readItem(DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& path,
              Vor_String& message) {
    Rows rows;
    const bool isRead = readRows(path, rows, message);
    replaceRows(data.tables[kind.table], data.itemIds[item], rows);
    return isRead;
}

}  // namespace cutstock
