// What the values of a section type must be to each other, so that there is a section.
#pragma once

#include <span>
#include <string_view>

struct BrokenRule {
    int value;  ///< the value column, from 0, that is to blame
    std::string_view message;
};

/// The first rule that the values of a built-in type break, in the order of its columns; null when
/// they break none. `values` are numbers and none below 0, as many as the type has columns.
const BrokenRule* brokenRule(int type, std::span<const double> values);

/// Whether a value column of a built-in type (its English name) may be 0, as radii may.
bool mayBeZero(std::string_view column);
