// The one class for a spreadsheet.
#pragma once

#include "spread/vor_spread.h"
