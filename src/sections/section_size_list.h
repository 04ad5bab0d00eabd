// The list of sizes that a user picks a section from: the active sizes of the section's table, or
// the one user section, and last "<varies>", which several members of different sections show.
#pragma once

#include "core_api/text/vor_string_array.h"

class ItemControl;

struct SectionSizes {
    Vor_StringArray systemNames;  ///< behind the entries, but for the last one
    Vor_StringArray entries;
    int selected = -1;  ///< of the section itself; -1 when it is not offered
};
/// Those offered for `section`. Without a readable table there is only the last entry.
VORMANT_API SectionSizes sectionSizes(const Vor_String& section);

/// Puts them into a list or combo, as they come, and selects the section's. The system names behind
/// the entries.
VORMANT_API Vor_StringArray fillSizeList(ItemControl& list, const Vor_String& section);
