// A distance (or angle, or count) that the geometry of a module is built from.
#pragma once

#include "core_api/text/vor_string.h"

/// How a variable follows the geometry. Variables with a flex/fix button in the dialog are either
/// fixed to their value or flexible: then the value is only the last one that the geometry gave.
enum class Vor_FlexState { none, fixed, flexible };

struct ConstraintVariable {
    Vor_String name;
    double value = 0;
    bool inDialog = true;    ///< the first flag: the dialog of the macro shows it
    bool isEditable = true;  ///< the second flag: users may change it; else a standard computes it
    Vor_FlexState flex = Vor_FlexState::none;

    bool operator==(const ConstraintVariable&) const = default;
};
