// Between paths as people type and read them and the module's own.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core_api/text/vor_string.h"

namespace cli {

/// A path of the module as people write it, for messages.
std::string shownPath(std::string_view inside);

/// A typed path in its inside form. Nothing, after telling why, when it holds a character that
/// Windows-1252 lacks.
std::optional<Vor_String> insidePath(const std::string& typed);

/// A message of the module (Windows-1252) as people read it: UTF-8, and the paths in it that lie
/// at or below one that was typed written their way.
std::string shownMessage(std::string_view message);

}  // namespace cli
