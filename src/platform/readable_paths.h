// The border between messages of the module, which name files in their inside form, and the people
// who read them. Every program passes what it shows through here: message boxes, its status bars
// and its terminal.
#pragma once

#include <string>
#include <string_view>

#include "platform/export.h"

namespace paths {

/// `text` (Windows-1252) with slashes in the inside paths that it names. A path begins after a
/// blank, a quote, a bracket or at the start with a backslash and the name of a folder in this
/// machine's root, and ends before the next colon, quote or end of the line. Other backslashes
/// stay.
VORMANT_API std::string readable(std::string_view text);
/// The same of a text in UTF-8.
VORMANT_API std::string readableUtf8(std::string_view text);

}  // namespace paths
