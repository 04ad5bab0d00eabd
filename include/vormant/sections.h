// The section library: tables of sizes and the built-in section types.
#pragma once

#include "sections/section_types.h"
#include "sections/vor_prof_values_table.h"
