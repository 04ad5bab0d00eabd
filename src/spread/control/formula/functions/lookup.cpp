#include <array>

#include "spread/control/formula/functions/families.h"
#include "spread/control/formula/functions/lookup_family.h"

namespace formula {
namespace {

constexpr std::array<FunctionSpec, 17> rowsOfTable{{
    {"ADDRESS", 2, 5, "v", address, plain, "row, column, [kind], [a1], [sheet]",
     "The address of a cell as text; kind 1 is $A$1, 2 A$1, 3 $A1, 4 A1."},
    {"AREAS", 1, 1, "p", areas, plain, "reference", "The number of areas in a reference."},
    {"CHOOSE", 2, anyCount, "v", choose, isLazy, "number, value1, [value2], …",
     "The value with that number, counted from 1."},
    {"COLUMN", 0, 1, "p", column, plain, "[reference]",
     "The column number of a reference, or of the formula's own cell."},
    {"COLUMNS", 1, 1, "p", columns, plain, "range", "The number of columns of a range."},
    {"FORMULATEXT", 1, 1, "p", formulaText, isVolatile, "cell",
     "The formula of a cell as text; #N/A when it has none."},
    {"HLOOKUP", 3, 4, "vavv", hlookup, plain, "wanted, table, row, [nearest]",
     "Looks for a value in the first row of a table and gives what stands below it in the row with "
     "that number. The first row must be sorted unless nearest is FALSE."},
    {"INDEX", 2, 4, "av", index, plain, "range, row, [column]",
     "The cell of a range at a row and column counted from 1; 0 stands for all of them."},
    {"INDIRECT", 1, 2, "v", indirect, isVolatile, "text, [a1]",
     "The reference that a text spells, in A1 or (a1 FALSE) R1C1 notation."},
    {"LOOKUP", 2, 3, "va", lookup, plain, "wanted, range, [results]",
     "Looks for the last value of a sorted row or column that is not greater than the wanted one, "
     "and gives what stands at the same place in the results."},
    {"MATCH", 2, 3, "vav", match, plain, "wanted, range, [order]",
     "The place of a value in a row or column, counted from 1. Order 0: exact, texts with "
     "wildcards; 1: ascending data, the last value not greater; -1: descending data, the last not "
     "smaller."},
    {"OFFSET", 3, 5, "pv", offset, isVolatile, "reference, rows, columns, [height], [width]",
     "The reference moved by rows and columns, and given a new size."},
    {"ROW", 0, 1, "p", row, plain, "[reference]",
     "The row number of a reference, or of the formula's own cell."},
    {"ROWS", 1, 1, "p", rows, plain, "range", "The number of rows of a range."},
    {"VLOOKUP", 3, 4, "vavv", vlookup, plain, "wanted, table, column, [nearest]",
     "Looks for a value in the first column of a table and gives what stands beside it in the "
     "column with that number. The first column must be sorted unless nearest is FALSE."},
    {"XLOOKUP", 3, 6, "vaavvv", xlookup, plain,
     "wanted, range, results, [fallback], [match], [search]",
     "Looks for a value and gives what stands at the same place in the results, or the fallback. "
     "Match 0: exact, -1: or the next smaller, 1: or the next larger, 2: wildcards. Search 1: from "
     "the first, -1: from the last, 2 and -2: in ascending and descending data."},
    {"XMATCH", 2, 4, "vav", xmatch, plain, "wanted, range, [match], [search]",
     "The place of a value in a row or column, counted from 1; match and search as for XLOOKUP."},
}};

}  // namespace

std::span<const FunctionSpec> lookupFunctions() {
    return rowsOfTable;
}

}  // namespace formula
