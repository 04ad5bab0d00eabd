#include "cutstock/item_rows.h"

#include <algorithm>
#include <limits>

#include "core_api/device_names.h"
#include "core_api/text/text_helpers.h"

namespace cutstock {

namespace {

/// Ids and rows of a caller may differ in number; what has no id belongs to nobody.
int ownedRows(const Csp2Table& table) {
    return std::min(table.rows.length(), table.rowItemIds.length());
}

/// One more than the largest; the smallest that is free where nothing is larger.
int freeId(const AcArray<int>& ids) {
    int largest = 0;
    for (const int id : ids) largest = std::max(largest, id);
    if (largest < std::numeric_limits<int>::max()) return largest + 1;
    int id = 1;
    while (ids.contains(id)) ++id;
    return id;
}

}  // namespace

Rows rowsOf(const Csp2Table& table, int itemId) {
    Rows rows;
    for (int i = 0; i < ownedRows(table); ++i)
        if (table.rowItemIds[i] == itemId) rows.append(table.rows[i]);
    return rows;
}

void removeRows(Csp2Table& table, int itemId) {
    AcArray<int> ids;
    Rows rows;
    for (int i = 0; i < ownedRows(table); ++i) {
        if (table.rowItemIds[i] == itemId) continue;
        ids.append(table.rowItemIds[i]);
        rows.append(std::move(table.rows[i]));
    }
    table.rowItemIds = std::move(ids);
    table.rows = std::move(rows);
}

void replaceRows(Csp2Table& table, int itemId, const Rows& rows) {
    removeRows(table, itemId);
    for (const Vor_StringArray& row : rows) {
        table.rowItemIds.append(itemId);
        table.rows.append(row);
    }
}

int addItem(DlgCSP2Data& data, const Vor_String& name) {
    data.itemIds.append(freeId(data.itemIds));
    data.itemNames.append(name);
    return data.itemNames.length() - 1;
}

bool removeItem(DlgCSP2Data& data, int index) {
    if (!isItem(data, index)) return false;
    for (Csp2Table& table : data.tables) removeRows(table, data.itemIds[index]);
    data.itemIds.removeAt(index);
    data.itemNames.removeAt(index);
    return true;
}

bool isItem(const DlgCSP2Data& data, int index) {
    return data.itemIds.isIndex(index) && data.itemNames.isIndex(index);
}

bool canBeFolder(std::string_view name) {
    return !name.empty() && !isDeviceName(name) && name.front() != ' ' && name.back() != ' ' &&
           name.back() != '.' && !hasInvalidFileNameChars(name);
}

}  // namespace cutstock
