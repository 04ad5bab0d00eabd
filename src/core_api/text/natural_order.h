// The order in which people expect names to stand: "IPE 80" before "IPE 100".
#pragma once

#include <string_view>

#include "platform/export.h"

/// Below 0, 0 or above 0: digit runs compare as numbers, the rest ignoring case.
VORMANT_API int compareNatural(std::string_view a, std::string_view b);
/// The same, but names that differ in more than their letter case never compare equal: "A01" comes
/// before "A1". For lists whose equal names have to come together.
VORMANT_API int compareNames(std::string_view a, std::string_view b);
