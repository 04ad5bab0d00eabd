// Texts out of files and names, as they may reach a terminal.
#pragma once

#include <string>
#include <string_view>

#include "platform/export.h"

/// `utf8` with "?" for every control character but line ends and tabs: a terminal would take some
/// for orders, those from U+0080 to U+009F included.
VORMANT_API std::string terminalText(std::string_view utf8);
