// What every way of writing a file has in common.
#pragma once

#include <string_view>

namespace files {

/// Writes all of `content`, through the steps that tests may install. 0, or the system's error.
int writeBytes(int descriptor, std::string_view content);

}  // namespace files
