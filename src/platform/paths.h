// Between the paths written inside (host style: backslashes, Windows-1252) and those of this
// machine (slashes, UTF-8). Library files come from systems that ignore letter case, so a name
// that does not exist as written is looked for without regard to case.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace paths {

/// The machine path of `inside`. Where the exact name does not exist, each component in turn is
/// matched ignoring letter case (of several matches the first in byte order); from the first that
/// has no match on, the path stays as written, so that a new file lands in the folder meant.
/// One system call when the exact name exists.
VORMANT_API std::string toMachine(std::string_view inside);

/// The machine form of `inside` as it is written, without looking whether it exists: for callers
/// that try it first and turn to toMachine only when it fails.
VORMANT_API std::string asWritten(std::string_view inside);

/// The inside form of a machine path. Nothing when a character is not in Windows-1252.
VORMANT_API std::optional<std::string> toInside(std::string_view machine);

}  // namespace paths
