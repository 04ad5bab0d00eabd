// What a standard's sheet says about itself to people: the lines above its first marker, and
// beside each variable the columns that the marker's row heads "Unit", "Meaning" and "Rule".
// Detailers write them so; a sheet without them still has its names.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mapping/tw_var_cells.h"

namespace runs {

struct DeclaredVariable {
    std::string name;  // all texts in Windows-1252
    TwCellType kind = TwCellType::input;
    TwValueType type = TwValueType::Double;
    std::string unit;
    std::string meaning;
    std::string rule;  ///< the clause that it follows
};

struct DeclaredStandard {
    Vor_String path;
    std::vector<std::string> title;           ///< the lines above the first marker
    std::vector<DeclaredVariable> variables;  ///< each name once, in the order of the sheet
    /// Letter case aside; null when it is not declared.
    const DeclaredVariable* find(std::string_view name) const;
};

/// Nothing, with the reason in `failure`, when it cannot be read or has no inputs and outputs.
std::optional<DeclaredStandard> readDeclared(const Vor_String& path, Vor_String& failure);

}  // namespace runs
