#include "cutstock/stock_files.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"
#include "platform/escaped_text.h"
#include "platform/exclusive_change.h"
#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "spread/control/formula/value.h"

namespace cutstock {

namespace {

constexpr char cellSeparator = '\xBF';
constexpr std::string_view numberedName = "Stock";
constexpr int noLibraryText = 25200, noFolderNameText = 25201, lineEndText = 25202,
              tooLargeText = 26940;

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

/// The first line, from 1, that a grid has no room for; 0 when there is room for all. Damaged files
/// are the only ones that large.
int lineTooLarge(std::string_view text) {
    for (int line = 1; !text.empty(); ++line) {
        const std::string_view cells = takeLine(text);
        const auto separators = std::count(cells.begin(), cells.end(), cellSeparator);
        if (separators >= formula::maxCols || line > formula::maxRows) return line;
    }
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

// Names that Windows-1252 cannot write are left out, as files::find does.
bool itemFolders(Vor_StringArray& names, Vor_String& message) {
    std::vector<std::string> found;
    std::error_code error;
    std::filesystem::directory_iterator each(paths::toMachine(stockFolder()), error);
    for (; !error && each != std::filesystem::directory_iterator(); each.increment(error)) {
        std::error_code unreadable;
        const auto name = encodings::fromUtf8(each->path().filename().string());
        if (name && canBeFolder(*name) && each->is_directory(unreadable)) found.push_back(*name);
    }
    if (error && error != std::errc::no_such_file_or_directory) {
        message = stockFolder() + ": " + error.message();
        return false;
    }
    std::sort(found.begin(), found.end(), [](const std::string& a, const std::string& b) {
        return encodings::compareFolded(a, b) < 0;
    });
    names.clear();
    for (std::string& name : found) names.append(std::move(name));
    return true;
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

Rows rowsOfText(std::string_view text) {
    Vor_StringArray lines;
    while (!text.empty()) lines.append(takeLine(text));
    return arrToArrArr(lines, cellSeparator);
}

std::string textOfRows(const Rows& rows) {
    std::string text;
    for (const Vor_String& line : arrArrToArr(rows, cellSeparator))
        text.append(line.view()).append("\n");
    return text;
}

bool saveRows(const Vor_String& path, const Rows& rows, Vor_String& message) {
    if (const int row = rowWithLineEnd(rows)) {
        message = path + ":" + std::to_string(row) + ": " + dialString(lineEndText).str();
        return false;
    }
    if (ObjectExportCreateDirectory(getPath(path), &message) != Acad::eOk) return false;
    std::string error;
    if (files::writeWhole(path, textOfRows(rows), error)) return true;
    message = Vor_String(std::move(error));
    return false;
}

bool saveNewFile(const Vor_String& folder, const FileKind& kind, const Rows& rows, Vor_String& path,
                 Vor_String& message) {
    constexpr int mostTries = 100;
    for (int tries = 0; tries < mostTries; ++tries) {
        path = storedPath(folder + defaultFileName(folder, kind), kind);
        std::string error;
        const auto change = files::ExclusiveChange::take(path, error);
        if (!change) {
            message = Vor_String(std::move(error));
            return false;
        }
        // Another program may have taken the name while this one waited.
        if (!change->stamp()) return saveRows(path, rows, message);
    }
    message = Vor_String(files::errorText("write", path, files::fileHasChanged));
    return false;
}

bool readRows(const Vor_String& path, Rows& rows, Vor_String& message) {
    rows.clear();
    std::string error;
    const auto text = files::readWhole(path, error, textFileLimit);
    if (!text) {
        message = Vor_String(std::move(error));
        return false;
    }
    if (const int line = lineTooLarge(*text)) {
        message = path + ":" + std::to_string(line) + ": " + dialString(tooLargeText).str();
        return false;
    }
    rows = rowsOfText(*text);
    return true;
}

bool saveItem(const DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& path,
              Vor_String& message) {
    return saveRows(path, rowsOf(data.tables[static_cast<size_t>(kind.table)], data.itemIds[item]),
                    message);
}

bool saveNewItem(const DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& folder,
                 Vor_String& path, Vor_String& message) {
    return saveNewFile(folder, kind,
                       rowsOf(data.tables[static_cast<size_t>(kind.table)], data.itemIds[item]),
                       path, message);
}

bool readItem(DlgCSP2Data& data, int item, const FileKind& kind, const Vor_String& path,
              Vor_String& message) {
    Rows rows;
    const bool isRead = readRows(path, rows, message);
    replaceRows(data.tables[static_cast<size_t>(kind.table)], data.itemIds[item], rows);
    return isRead;
}

}  // namespace cutstock
