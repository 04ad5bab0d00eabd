// Where references in formulas go when rows or columns come, go or move, or when the formula itself
// is carried to another cell. For formula::rewriteReferences.
#pragma once

#include <string>
#include <string_view>

#include "spread/control/formula/parser.h"

namespace control {

formula::MoveReference rowsInserted(int at, int count);
formula::MoveReference rowsDeleted(int at, int count);
formula::MoveReference colsInserted(int at, int count);
formula::MoveReference colsDeleted(int at, int count);
/// Rows from..from+count-1 go where the first of them gets the number `to`; those in between move
/// up or down. An area inside the moved rows goes along, one that only overlaps them loses them.
formula::MoveReference rowsMoved(int from, int count, int to);
formula::MoveReference colsMoved(int from, int count, int to);

/// Where the line `index` (a row or column) comes to lie in such a move.
constexpr int movedLine(int index, int from, int count, int to) {
    if (index >= from && index < from + count) return index - from + to;
    if (index >= from + count && index < to + count) return index - count;
    if (index >= to && index < from) return index + count;
    return index;
}

/// The text of a formula carried by so many columns and rows: relative references go along, those
/// that leave the sheet become #REF!.
std::string carriedFormula(std::string_view text, int cols, int rows);

}  // namespace control
