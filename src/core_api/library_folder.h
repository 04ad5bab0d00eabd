// The library folder of the settings, for what reads and writes its files.
#pragma once

#include "core_api/text/vor_string.h"

/// False, with `message` (unless null) telling so, while no library is chosen.
VORMANT_API bool hasLibraryFolder(Vor_String* message = nullptr);
