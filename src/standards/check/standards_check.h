// Reads a standard with a critical eye before anybody runs it: what would fail, and what is
// probably not meant.
#pragma once

#include <vector>

#include "core_api/finding.h"

using StandardsFinding = Finding;

/// Everything found in the standard, by row and column. `name` is a file, or a name in the
/// standards folder without extension. Errors: it cannot be loaded, a marker is missing, a cell
/// below "Calc" that is no equation, an equation that would be refused, a child file that is
/// missing or comes back to the standard. Warnings: names declared twice, never used, or that
/// hide a function or look like a cell; an output that nothing assigns.
VORMANT_API std::vector<StandardsFinding> checkStandard(const Vor_String& name);
