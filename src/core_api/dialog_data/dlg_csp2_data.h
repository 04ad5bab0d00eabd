// The input of a cutting-stock calculation: named items, and the rows of all items in three tables.
#pragma once

#include <array>

#include "core_api/text/vor_string_array.h"
#include "platform/host/ac_array.h"

/// Row k belongs to the item whose id is rowItemIds[k]. All rows of one item stand together.
struct Csp2Table {
    Vor_StringArray columnNames;
    AcArray<int> rowItemIds;
    Vor_Array<Vor_StringArray> rows;

    bool operator==(const Csp2Table&) const = default;
};

class VORMANT_API DlgCSP2Data {
  public:
    static constexpr int tableCount = 3;

    virtual ~DlgCSP2Data() = default;

    /// The action button saves the stock of all items; else it loads their newest files.
    bool savesAll = false;
    AcArray<int> itemIds;
    /// Parallel to the ids; also the names of the items' file folders.
    Vor_StringArray itemNames;
    std::array<Csp2Table, tableCount> tables;
};
