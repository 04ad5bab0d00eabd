// Reads a section table with a critical eye before anybody draws a section of it.
#pragma once

#include <span>
#include <vector>

#include "core_api/finding.h"

class Vor_ProfValuesTable;

/// Everything found, by row and column, as the table lies in its file: row 1 says how sections are
/// drawn, row 2 is the header, sizes follow; columns are fields. Errors: a name that stands twice,
/// is missing or cannot be asked for, rows with too many or too few cells, an unknown type, values
/// that are no numbers or give no section. Warnings: names that hide each other, flags that are
/// neither 1 nor 0, columns that are called otherwise than those of their type, an area or a mass
/// that is not that of the values.
///
/// A table that comes from elsewhere has other lines: `lines` are then those that say how sections
/// are drawn (0: none does), of the header and of each size.
VORMANT_API std::vector<Finding> checkSectionTable(const Vor_ProfValuesTable& table,
                                                   std::span<const int> lines = {});
/// The same of a file (host-style path), which may not be readable.
VORMANT_API std::vector<Finding> checkSectionFile(const Vor_String& path);
