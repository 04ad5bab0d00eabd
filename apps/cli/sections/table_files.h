// The section tables that a call names: files of the library, or elsewhere.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "sections/vor_prof_values_table.h"

namespace cli {

struct TableFile {
    Vor_String name;  ///< without folder and ".pr"
    Vor_String path;
};

/// Every table of the library, by name.
std::vector<TableFile> libraryTables();
/// The same, telling why when there are none.
std::vector<TableFile> neededTables();

/// The table meant by what was typed: a file, or a name in the library, letter case aside. Nothing
/// when there is none.
std::optional<TableFile> lookUpTable(const std::string& typed);
/// The same, telling what there is when there is none.
std::optional<TableFile> findTable(const std::string& typed);

/// The table, or nothing after telling why it cannot be read.
std::optional<Vor_ProfValuesTable> readTable(const TableFile& file);

/// "10 Rectangular tube", "Frame.dwg", or what stands there.
std::string shownType(const Vor_String& drawnAs);

}  // namespace cli
