// The message boxes of a standards run.
#pragma once

#include "core_api/text/vor_string_array.h"

/// An equation that could not be evaluated; shown when the diagnostics flag is set. `line` is the
/// row of its cell.
void reportEquationFailure(const Vor_String& file, int line, const Vor_String& name,
                           const Vor_String& expression);

/// Tolerances that leave no room; shown when the diagnostics flag is set.
void reportInvalidTolerances(double down, double up);

/// Names that are declared more than once; always shown.
void reportDuplicateNames(const Vor_String& file, const Vor_StringArray& names);
