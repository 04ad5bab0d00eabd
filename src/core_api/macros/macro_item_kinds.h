// The lines of a macro file that belong to the items of a module: variables, cuts, bolt patterns,
// placements. One row of a table each.
#pragma once

#include "core_api/macros/macro_line_values.h"
#include "core_api/macros/vor_module.h"

namespace macro_file {

/// A kind of item that modules own: its word in keys, whether a module can own it, and its lines.
struct ItemKind {
    std::string_view word;
    bool (*fits)(const Vor_Module&);
    bool (*has)(const Vor_Module&, const std::string& name);
    Damage (*declare)(Vor_Module&, const std::string& name, const Property&);
    Damage (*takePart)(Vor_Module&, const std::string& name, const std::string& field,
                       const Property&);
};

/// Null for another word.
const ItemKind* itemKindOf(std::string_view word);

}  // namespace macro_file
