// Between paths as people type and read them and the module's own.
#pragma once

#include <optional>
#include <string>

#include "core_api/text/vor_string.h"

namespace cli {

/// A path of the module as people write it, for messages.
std::string shownPath(std::string_view inside);

/// A typed path in its inside form. Nothing, after telling why, when it holds a character that
/// Windows-1252 lacks.
std::optional<Vor_String> insidePath(const std::string& typed);

}  // namespace cli
