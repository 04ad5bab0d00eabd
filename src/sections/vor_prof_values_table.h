// One section values table in memory: its name, how its sections are drawn, the header and the
// sizes. Cells are text in the order of the header.
#pragma once

#include "core_api/text/vor_string_array.h"

class VORMANT_API Vor_ProfValuesTable {
  public:
    virtual ~Vor_ProfValuesTable() = default;

    Vor_String tableName;
    /// The number of a section type ("1" to "24"), or a drawn template ending in ".dwg".
    Vor_String drawnAs;
    Vor_StringArray columnNames;
    Vor_Array<Vor_StringArray> rows;
};
