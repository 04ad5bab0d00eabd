// The order in which people expect names to stand: "IPE 80" before "IPE 100".
#pragma once

#include <string_view>

#include "platform/export.h"

/// Below 0, 0 or above 0: digit runs compare as numbers, the rest ignoring case.
VORMANT_API int compareNatural(std::string_view a, std::string_view b);
