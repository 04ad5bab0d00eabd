// A bill made of a table with a header, as other programs export them.
//
// A column of nothing but numbers is one of numbers, whole or with a decimal; numbers with leading
// zeros are texts. Counts, total masses and columns that are called a total are summed up.
// Headings that mean a field of bills, in any language, tell what a row is, so that a picture can
// be drawn of it.
#pragma once

#include "bill/bill_fields.h"
#include "bill/vor_bill.h"

struct VORMANT_API TableBillOptions {
    Vor_String title;
    Vor_StringArray columns;  ///< headings or codes of the columns to show, in order; none: all
    Vor_String groupBy;       ///< the heading or code of a column; empty: no groups
    /// Rows that differ in nothing but what is summed up become one; only with a count column.
    bool countTogether = false;
};

/// Rows may be short, and longer than the header. Nothing, with `error` saying which column there
/// is none of and which there are, or that the header is empty.
VORMANT_API std::optional<Vor_Bill> billFromTable(const Vor_StringArray& header,
                                                  Vor_Array<Vor_StringArray> rows,
                                                  const TableBillOptions& options,
                                                  std::string& error);
