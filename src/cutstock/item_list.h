// The text of "Items.dat": the cutting-stock items of a library, their columns and their parts.
// Its lines are records (core_api/files.h):
//
//     Columns  table from 1  names...
//     Item     number        name
//     Part     number of an item above  cells...
//
// The rows of the other tables lie in the files of each item.
#pragma once

#include "core_api/dialog_data/dlg_csp2_data.h"

namespace cutstock {

/// False, with "source:line: what is wrong" in `message` and `data` as it was, when it is damaged
/// or two items have one number or one name.
bool readItemList(std::string_view text, std::string_view source, DlgCSP2Data& data,
                  Vor_String& message);

/// Parts that belong to no item are left out.
Vor_String itemListText(const DlgCSP2Data& data);

}  // namespace cutstock
