// Words for what the system refuses.
#pragma once

#include <string>
#include <string_view>

namespace files {

/// What no errno says: another program has the folder to itself; another program has changed the
/// file meanwhile.
inline constexpr int folderIsBusy = -1;
inline constexpr int fileHasChanged = -2;

/// "cannot <action> <path>: <what the system says>; <what to do>". An errno, or one of the above.
std::string errorText(std::string_view action, std::string_view path, int error);
/// The same for a device, a pipe and the like.
std::string notOrdinaryText(std::string_view action, std::string_view path);

/// Whether the system's error says that there is no such file, and not that it cannot be asked.
bool isMissingFile(int error);

}  // namespace files
