// What the names of sections tell: a library section is its table, "-" and a size ("IPE-200"); a
// user section is a drawing, named by its path in the library ("User Sections\Frame.dwg").
#pragma once

#include <string_view>

#include "core_api/text/vor_string.h"

inline constexpr const char* userSectionsFolder = "User Sections\\";

/// The section lies in the folder of user sections: its name begins with userSectionsFolder.
VORMANT_API bool isUserSection(const Vor_String& section);
/// A user section without its folder and extension.
VORMANT_API Vor_String userSectionName(const Vor_String& section);
/// The part before the first "-"; the whole name when there is none.
VORMANT_API Vor_String sectionTableOf(const Vor_String& section);
/// Whether there can be a table of this name: it is that of a file, and holds no "-".
VORMANT_API bool canNameSectionTable(std::string_view name);
