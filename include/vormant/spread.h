// The one class for a spreadsheet, and reading spreadsheet files.
#pragma once

#include "spread/formulas/formulas_starters.h"
#include "spread/vor_spread.h"
