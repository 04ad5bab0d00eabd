// Names that no file or folder can have on the systems that libraries come from.
#pragma once

#include <string_view>

#include "platform/export.h"

/// CON, com1.txt and the like: devices, with any ending.
VORMANT_API bool isDeviceName(std::string_view name);
