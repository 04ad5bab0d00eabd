// A bill of materials as it is fed to an output: columns, rows in groups, and what each group and
// the whole come to. Everything is text already; bill_from_parts.h and bill_from_table.h make it.
#pragma once

#include <optional>
#include <vector>

#include "bill/bill_part.h"
#include "core_api/text/vor_string_array.h"

/// How an output shows a column; the numbers are those that outputs are given.
enum class BillColumnKind {
    whole = 1,    ///< whole numbers
    decimal = 2,  ///< numbers with one decimal
    text = 3,
};

struct BillColumn {
    Vor_String name;
    BillColumnKind kind = BillColumnKind::text;
};

struct BillRow {
    Vor_StringArray cells;
    std::optional<Vor_BillPart> piece;  ///< what a picture of the row shows
};

/// Rows that belong together, and the cells of the row that sums them up.
struct BillGroup {
    Vor_String name;
    int firstRow = 0;  ///< from 0
    int rowCount = 0;
    Vor_StringArray subtotals;
};

class VORMANT_API Vor_Bill {
  public:
    Vor_String title;
    std::vector<BillColumn> columns;
    std::vector<BillRow> rows;
    /// In the order of the rows, every row in one; none when the bill is not grouped.
    std::vector<BillGroup> groups;
    Vor_StringArray totals;  ///< the cells of the last row; none: there is nothing to sum up

    Vor_StringArray columnNames() const;
    /// The index of the row that is being fed, from 0; -1 when none is.
    int currentRow = -1;
    /// What row `index` shows; null for a bad index or a row that no piece is known for.
    const Vor_BillPart* piece(int index) const;
};
