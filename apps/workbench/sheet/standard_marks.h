// The cells of a standard that mean something: its markers and the declarations of its variables.
#pragma once

#include <vector>

#include "spread/vor_spread.h"

struct StandardMarks {
    std::vector<control::CellAddress> markers;
    std::vector<control::CellAddress> variables;
};

/// Of the sheet as it is now.
StandardMarks standardMarks(Vor_Spread& spread);
