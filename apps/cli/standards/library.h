// The library folder that a call works with, and the standards in it. Outside, names are written
// with slashes and in UTF-8, as people type them; inside, as the module wants them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core_api/text/vor_string.h"

namespace cli {

/// Makes `folder` the library. Empty: the one that was installed beside this program, if any; a
/// call that names its files can do without. False, after telling why, when there is no such
/// folder.
bool openLibrary(const std::string& folder);

struct StandardName {
    /// Relative to the standards folder, no extension: "Parents/Haunch". The path as typed when the
    /// file lies elsewhere.
    std::string name;
    Vor_String path;

    /// As the mapping file of a standard is found: by its name, inside the library. The path when
    /// the file lies elsewhere.
    Vor_String mappingName() const;
};
/// Every standard of the library, by name.
std::vector<StandardName> allStandards();

/// The standard meant by what was typed: a file, a name as allStandards gives it, or the last
/// part of such a name when only one standard has it. Letter case does not matter. Nothing, after
/// telling what there is, when there is none.
std::optional<StandardName> findStandard(const std::string& typed);

}  // namespace cli
