// The look-up functions lie in two files, by whether they search for a value (lookup_search.cpp) or
// name a place (lookup_place.cpp); this is what lookup.cpp needs to list them and what they share.
#pragma once

#include <span>

#include "spread/control/formula/calculation.h"

namespace formula {

using LookupCall = Value(Calculation& c, std::span<const Value> args);

LookupCall vlookup, hlookup, lookup, match, xlookup, xmatch;
LookupCall address, areas, choose, column, columns, formulaText, index, indirect, offset, row, rows;

/// The part of an area (as an area), array or single value that starts at (row, col), from 0, and
/// lies inside.
Value cutOut(Calculation& c, const Value& source, int row, int col, int rows, int cols);

}  // namespace formula
