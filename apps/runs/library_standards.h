// The standards of the library that gSettings names.
#pragma once

#include <optional>
#include <vector>

#include "core_api/text/vor_string.h"

namespace runs {

struct LibraryStandard {
    /// As its mapping file is found: inside the standards folder, no extension, "Parents\Haunch".
    Vor_String name;
    Vor_String path;
};

/// Every one, by name; none without a library.
std::vector<LibraryStandard> libraryStandards();

/// The name that a file has as a standard of the library; nothing for other files.
std::optional<Vor_String> nameInLibrary(const Vor_String& path);

}  // namespace runs
