// A standard of the library with its mapping file, and the macro it is mapped to, for calls that
// show or change mappings.
#pragma once

#include <optional>
#include <string>

#include "core_api/macros/vor_db_macro.h"
#include "mapping_dialog/sheet_choices.h"

namespace cli {

struct MappedStandard {
    /// As the mapping file is found.
    Vor_String name;
    TwVarCells declared;
};
/// Nothing, after telling why: there is no such standard, it cannot be read, or it lies outside of
/// the library, where no run looks for mapping files.
std::optional<MappedStandard> openMappedStandard(const std::string& typed);

/// A macro and everything in it that can be mapped.
struct MappedMacro {
    Vor_String path;
    Vor_DbMacro macro;
    TwSSMapping objects;
};
/// Nothing, after telling why.
std::optional<MappedMacro> openMappedMacro(const std::string& typed);

/// One mapping as people read it: its key, then a variable a line.
void appendMapping(std::string& text, const Vor_String& key, const SheetChoices& choices);

}  // namespace cli
