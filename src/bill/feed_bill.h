// From a bill to an output, row by row.
#pragma once

#include <functional>

#include "bill/vor_bill.h"
#include "bill/vor_list_output_callback.h"

/// Told the rows done and all rows before each row; false ends the feed.
using BillProgress = std::function<bool(int done, int all)>;

enum class BillFeed {
    done,
    cancelled,  ///< by the progress; the output was not told of an end and has saved nothing
    failed,     ///< the output could not begin, or not end
};

/// Rows, the subtotals of each group, and the total last. The bill knows its current row meanwhile.
VORMANT_API BillFeed feedBill(Vor_Bill& bill, Vor_ListOutputCallback& output,
                              const BillProgress& progress = nullptr);
