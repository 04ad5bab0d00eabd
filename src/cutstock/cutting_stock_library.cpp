#include "cutstock/cutting_stock_library.h"

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/texts/texts.h"
#include "cutstock/item_list.h"
#include "cutstock/item_names.h"
#include "cutstock/stock_files.h"
#include "platform/exclusive_change.h"
#include "platform/file_error.h"
#include "platform/files.h"

namespace cutstock {

namespace {

constexpr int noLibraryText = 25200, lengthText = 21044, numberText = 21073;

bool itemsFromFolders(DlgCSP2Data& data, Vor_String& message) {
    Vor_StringArray folders;
    if (!itemFolders(folders, message)) return false;
    DlgCSP2Data made;
    ItemNames names;
    for (const Vor_String& folder : folders)
        if (names.add(folder).isEmpty()) addItem(made, folder);
    made.savesAll = data.savesAll;
    data = std::move(made);
    return true;
}

/// Grids need columns to type into.
void nameColumns(DlgCSP2Data& data) {
    for (Csp2Table& table : data.tables)
        if (table.columnNames.isEmpty())
            table.columnNames = {dialString(lengthText), dialString(numberText)};
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

/// Grids fill rows up to their width.
Rows withoutEmptyEnds(Rows rows) {
    for (Vor_StringArray& row : rows)
        while (!row.isEmpty() && row[row.length() - 1].isEmpty()) row.setLength(row.length() - 1);
    return rows;
}

/// Saves the rows when they are not those of the newest file, which may be the user's own saving.
/// A new item without rows may have got the folder of one that was deleted: its files stay as
/// they are.
bool saveChanged(const DlgCSP2Data& data, int item, const FileKind& kind, bool isNew,
                 Vor_String& message) {
    const auto folder = itemFolder(data.itemNames[item], message);
    if (!folder) return false;
    const Rows rows = rowsOf(data.tables[static_cast<size_t>(kind.table)], data.itemIds[item]);
    if (isNew && rows.isEmpty()) return true;
    Rows saved;
    Vor_String unreadable;
    const auto newest = newestFile(*folder, kind);
    const bool isKnown = !newest || readRows(newest->path, saved, unreadable);
    if (isKnown && withoutEmptyEnds(saved) == withoutEmptyEnds(rows)) return true;
    Vor_String path;
    return saveNewFile(*folder, kind, rows, path, message);
}

bool areNamesGood(const Vor_StringArray& names, Vor_String& message) {
    ItemNames taken;
    for (const Vor_String& name : names) {
        message = taken.add(name);
        if (!message.isEmpty()) return false;
    }
    return true;
}

std::optional<std::string> textNow() {
    std::string ignored;
    return files::readWhole(CuttingStockLibrary::path(), ignored, textFileLimit);
}

}  // namespace

Vor_String CuttingStockLibrary::path() {
    return stockFolder() + "Items.dat";
}

bool CuttingStockLibrary::loadItems(DlgCSP2Data& data, Vor_String& message) {
    m_text.reset();
    m_loaded.clear();
    if (gSettings.libDir().isEmpty()) return true;
    if (!ObjectExportFileExists(path())) return itemsFromFolders(data, message);
    std::string error;
    const auto text = files::readWhole(path(), error, textFileLimit);
    if (!text) {
        message = Vor_String(std::move(error));
        return false;
    }
    if (!readItemList(*text, path(), data, message)) return false;
    m_text = text;
    return true;
}

bool CuttingStockLibrary::load(DlgCSP2Data& data, Vor_String& message) {
    DlgCSP2Data read;
    read.savesAll = data.savesAll;
    const bool isRead = loadItems(read, message) && readNewest(read, message);
    if (!isRead) {
        m_text.reset();
        return false;
    }
    nameColumns(read);
    m_loaded = read.itemNames;
    data = std::move(read);
    return true;
}

bool CuttingStockLibrary::wouldReplaceUnread() const {
    return ObjectExportFileExists(path()) && (!m_text || textNow() != m_text);
}

void CuttingStockLibrary::replaceUnread() {
    m_replaced = files::stampOf(path());
}

bool CuttingStockLibrary::saveItems(const DlgCSP2Data& data, Vor_String& message) {
    if (gSettings.libDir().isEmpty()) {
        message = dialString(noLibraryText);
        return false;
    }
    const Vor_String text = itemListText(data);
    std::string error;
    if (!areNamesGood(data.itemNames, message) ||
        ObjectExportCreateDirectory(stockFolder(), &message) != Acad::eOk)
        return false;
    const auto change = files::ExclusiveChange::take(path(), error);
    if (change && wouldReplaceUnread() && change->stamp() != m_replaced)
        error = files::errorText("write", path(), files::fileHasChanged);
    else if (change && files::writeWhole(path(), text, error))
        m_text = text.str();
    message = Vor_String(std::move(error));
    return message.isEmpty();
}

bool CuttingStockLibrary::save(const DlgCSP2Data& data, Vor_String& message) {
    if (!saveItems(data, message)) return false;
    bool isSaved = true;
    for (int i = 0; isItem(data, i); ++i) {
        const bool isNew = !m_loaded.contains(data.itemNames[i]);
        for (const FileKind& kind : fileKinds)
            isSaved = saveChanged(data, i, kind, isNew, message) && isSaved;
    }
    return isSaved;
}

}  // namespace cutstock
