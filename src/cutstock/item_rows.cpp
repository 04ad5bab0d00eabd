#include "cutstock/item_rows.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"

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

namespace {

/// CON, com1.txt and the like: devices for the systems that libraries come from, with any ending,
/// so that no folder or file can be called so.
bool isDeviceName(std::string_view name) {
    std::string_view base = name.substr(0, name.find('.'));
    while (base.ends_with(' ')) base.remove_suffix(1);
    constexpr std::string_view words[] = {"con", "prn", "aux", "nul"}, ports[] = {"com", "lpt"};
    const auto is = [&](std::string_view word) { return encodings::equalFolded(base, word); };
    if (std::any_of(std::begin(words), std::end(words), is)) return true;
    constexpr std::string_view digits = "123456789\xB9\xB2\xB3";
    if (base.size() != 4 || digits.find(base.back()) == std::string_view::npos) return false;
    base.remove_suffix(1);
    return std::any_of(std::begin(ports), std::end(ports), is);
}

}  // namespace

bool canBeFolder(std::string_view name) {
    return !name.empty() && !isDeviceName(name) && name.front() != ' ' && name.back() != ' ' &&
           name.back() != '.' && !hasInvalidFileNameChars(name);
}

}  // namespace cutstock
