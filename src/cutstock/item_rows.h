// The rows of single items in the tables of a cutting-stock calculation, and items that come and
// go.
#pragma once

#include <string_view>

#include "core_api/dialog_data/dlg_csp2_data.h"

namespace cutstock {

using Rows = Vor_Array<Vor_StringArray>;

/// In the order of the table; also when they do not stand together.
Rows rowsOf(const Csp2Table& table, int itemId);
void removeRows(Csp2Table& table, int itemId);
/// The old rows of the item go, the new ones stand at the end of the table.
void replaceRows(Csp2Table& table, int itemId, const Rows& rows);

/// Its index, the last one. The id is one more than the largest, and at least 1.
int addItem(DlgCSP2Data& data, const Vor_String& name);
/// With its rows in all tables. False when there is no such item.
bool removeItem(DlgCSP2Data& data, int index);
/// Both its id and its name are there.
bool isItem(const DlgCSP2Data& data, int index);

/// Names become folders: not empty, none of the characters that names of files cannot have, and
/// neither blanks at an end nor a dot at the last, which some systems drop, nor
/// the name of a device.
bool canBeFolder(std::string_view name);

}  // namespace cutstock
