#include "cutstock/cutting_stock_library.h"

#include <charconv>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/texts/texts.h"
#include "cutstock/stock_files.h"
#include "platform/files.h"

namespace cutstock {

namespace {

constexpr std::string_view columnsWord = "Columns", itemWord = "Item", partWord = "Part";
constexpr int noLibraryText = 25200;

std::optional<int> numberOf(const Vor_String& field) {
    const std::string_view text = field.view();
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

Vor_StringArray from(const Vor_StringArray& record, int first) {
    Vor_StringArray rest;
    for (int i = first; i < record.length(); ++i) rest.append(record[i]);
    return rest;
}

/// What is wrong with the record, or nothing when `data` has taken it.
const char* take(const Vor_StringArray& record, DlgCSP2Data& data) {
    const auto number = record.length() > 1 ? numberOf(record[1]) : std::nullopt;
    if (!number) return "a word and a number begin each line";
    if (record[0].view() == columnsWord) {
        if (*number < 1 || *number > DlgCSP2Data::tableCount) return "tables are numbered 1 to 3";
        data.tables[*number - 1].columnNames = from(record, 2);
        return nullptr;
    }
    const bool isKnown = data.itemIds.find(*number) >= 0;
    if (record[0].view() == itemWord) {
        if (record.length() != 3) return "an item has a number and a name";
        if (isKnown) return "two items have this number; give one of them another";
        data.itemIds.append(*number);
        data.itemNames.append(record[2]);
        return nullptr;
    }
    if (record[0].view() != partWord) return "lines begin with Columns, Item or Part";
    if (!isKnown) return "no item above has this number";
    data.tables[0].rowItemIds.append(*number);
    data.tables[0].rows.append(from(record, 2));
    return nullptr;
}

bool readItems(std::string_view text, const Vor_String& path, DlgCSP2Data& data,
               Vor_String& message) {
    RecordRows records;
    if (!readRecords(text, path, records, message)) return false;
    for (int i = 0; i < records.length(); ++i) {
        const char* wrong = take(records[i], data);
        if (!wrong) continue;
        message = path.str() + ":" + std::to_string(i + 1) + ": " + wrong;
        return false;
    }
    return true;
}

RecordRows recordsOf(const DlgCSP2Data& data) {
    RecordRows records;
    const auto add = [&records](std::string_view word, int number, const Vor_StringArray& rest) {
        Vor_StringArray record{word, Vor_String(number, 0)};
        for (const Vor_String& field : rest) record.append(field);
        records.append(std::move(record));
    };
    for (int i = 0; i < DlgCSP2Data::tableCount; ++i)
        add(columnsWord, i + 1, data.tables[i].columnNames);
    for (int i = 0; isItem(data, i); ++i) add(itemWord, data.itemIds[i], {data.itemNames[i]});
    for (int i = 0; isItem(data, i); ++i)
        for (const Vor_StringArray& row : rowsOf(data.tables[0], data.itemIds[i]))
            add(partWord, data.itemIds[i], row);
    return records;
}

bool readNewest(DlgCSP2Data& data, Vor_String& message) {
    for (int i = 0; isItem(data, i); ++i) {
        const auto folder = itemFolder(data.itemNames[i], message);
        if (!folder) return false;
        for (const FileKind& kind : fileKinds) {
            const auto newest = newestFile(*folder, kind);
            if (newest && !readItem(data, i, kind, newest->path, message)) return false;
        }
    }
    return true;
}

/// Saves the rows when they are not those of the newest file, which may be the user's own saving.
bool saveChanged(const DlgCSP2Data& data, int item, const FileKind& kind, Vor_String& message) {
    const auto folder = itemFolder(data.itemNames[item], message);
    if (!folder) return false;
    Rows saved;
    Vor_String unreadable;
    const auto newest = newestFile(*folder, kind);
    const bool isKnown = !newest || readRows(newest->path, saved, unreadable);
    if (isKnown && saved == rowsOf(data.tables[kind.table], data.itemIds[item])) return true;
    return saveItem(data, item, kind, storedPath(*folder + defaultFileName(*folder, kind), kind),
                    message);
}

std::optional<std::string> textNow() {
    std::string ignored;
    return files::readWhole(CuttingStockLibrary::path(), ignored, textFileLimit);
}

}  // namespace

Vor_String CuttingStockLibrary::path() {
    return stockFolder() + "Items.dat";
}

bool CuttingStockLibrary::load(DlgCSP2Data& data, Vor_String& message) {
    m_text.reset();
    if (gSettings.libDir().isEmpty() || !ObjectExportFileExists(path())) return true;
    std::string error;
    const auto text = files::readWhole(path(), error, textFileLimit);
    if (!text) {
        message = Vor_String(std::move(error));
        return false;
    }
    DlgCSP2Data read;
    if (!readItems(*text, path(), read, message) || !readNewest(read, message)) return false;
    read.savesAll = data.savesAll;
    data = std::move(read);
    m_text = text;
    return true;
}

bool CuttingStockLibrary::wouldReplaceUnread() const {
    return ObjectExportFileExists(path()) && (!m_text || textNow() != m_text);
}

bool CuttingStockLibrary::save(const DlgCSP2Data& data, Vor_String& message) {
    if (gSettings.libDir().isEmpty()) {
        message = dialString(noLibraryText);
        return false;
    }
    bool isSaved = true;
    for (int i = 0; isItem(data, i); ++i)
        for (const FileKind& kind : fileKinds)
            isSaved = saveChanged(data, i, kind, message) && isSaved;
    if (ObjectExportCreateDirectory(stockFolder(), &message) != Acad::eOk ||
        !writeFile(path(), recordsOf(data), &message))
        return false;
    m_text = textNow();
    return isSaved;
}

}  // namespace cutstock
