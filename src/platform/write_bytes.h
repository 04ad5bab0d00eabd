// What every way of writing a file has in common. Machine paths; 0 or the system's error comes
// back.
#pragma once

#include <string>
#include <string_view>

namespace files {

/// Writes all of `content`, through the steps that tests may install.
int writeBytes(int descriptor, std::string_view content);

/// Writes and flushes a file of a temporary name in the folder of `target`. `temporary` becomes
/// that name, and empty when it failed: then there is no file.
int writeBeside(const std::string& target, std::string_view content, std::string& temporary);

enum class Replacing { theOld, nothing };
/// Puts a written file in the place of its target, or refuses.
int renameIntoPlace(const std::string& temporary, const std::string& target, Replacing replacing);

}  // namespace files
