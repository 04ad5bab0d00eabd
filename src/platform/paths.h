// Between the paths written inside (host style: backslashes, Windows-1252) and those of this
// machine (slashes, UTF-8). A name means the file of exactly that name. Only the library, whose
// files come from systems that ignore letter case, forgives: there a name that does not exist as
// written is looked for without regard to case, unless it came from this machine (toInside), that
// is from somebody who typed or chose it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace paths {

/// Lets `folder` say which folder is the library: an inside path that ends in a backslash, empty
/// for none.
VORMANT_API void setLibrary(std::string_view (*folder)());

/// The machine path of `inside`. Where a name of the library does not exist as written, each
/// component below the library in turn is matched ignoring letter case (of several matches the
/// first in byte order); from the first that has no match on, the path stays as written, so that a
/// new file lands in the folder meant. One system call when the exact name exists.
VORMANT_API std::string toMachine(std::string_view inside);

/// The machine form of `inside` as it is written, without looking whether it exists: for callers
/// that try it first and turn to toMachine only when it fails.
VORMANT_API std::string asWritten(std::string_view inside);

/// The inside form of a machine path, which is exact from now on: toMachine gives this very path
/// back, wherever it lies. Nothing when a character is not in Windows-1252.
VORMANT_API std::optional<std::string> toInside(std::string_view machine);

/// Whether toInside has given this path.
VORMANT_API bool isExact(std::string_view inside);

}  // namespace paths
