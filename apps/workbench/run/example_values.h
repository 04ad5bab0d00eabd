// The values that a page of a standard begins with: those of its first check problem, so that a
// user sees a whole calculation at once and changes it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core_api/text/vor_string.h"

/// Names of inputs with their values, Windows-1252. Empty when the standard has no check problems
/// that can be read.
std::vector<std::pair<std::string, std::string>> exampleValues(const Vor_String& standard);
