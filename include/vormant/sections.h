// The section library: tables of sizes, the built-in section types, areas, pictures and
// lists of sizes.
#pragma once

#include "sections/section_area.h"
#include "sections/section_names.h"
#include "sections/section_pictures.h"
#include "sections/section_size_list.h"
#include "sections/section_types.h"
#include "sections/vor_prof_values_table.h"
