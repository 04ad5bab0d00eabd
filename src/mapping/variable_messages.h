// What users are told when a variable cannot be had from the macro.
#pragma once

#include "core_api/text/vor_string.h"

/// Shows a message box when the diagnostics flag is set.
void reportVariableFailure(const Vor_String& file, bool isInput, const Vor_String& name);

/// The title of the boxes about a standards run.
inline constexpr std::string_view standardsCaption = "Connection Standards";
