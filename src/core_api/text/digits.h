// Where the numbers begin in a name: "IPE 200" is the series "IPE " and a size.
#pragma once

#include <string_view>

#include "platform/export.h"

/// The position of the first digit of `text`, or -1.
VORMANT_API int findFirstNumbers(std::string_view text);
