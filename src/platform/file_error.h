// Words for what the system refuses.
#pragma once

#include <string>
#include <string_view>

namespace files {

/// "cannot <action> <path>: <what the system says>; <what to do>".
std::string errorText(std::string_view action, std::string_view path, int error);
/// The same for a device, a pipe and the like.
std::string notOrdinaryText(std::string_view action, std::string_view path);

}  // namespace files
