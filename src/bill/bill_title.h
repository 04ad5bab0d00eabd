// What a bill is called.
#pragma once

#include "core_api/text/vor_string.h"

/// The name of a bill's file without folder and extension, cut behind its last "\xBF" when it has
/// one: what stands before is for sorting files.
VORMANT_API Vor_String billTitle(const Vor_String& file);
