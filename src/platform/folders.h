// Folders of this machine, as the writing of files needs them. Machine paths (platform/paths.h).
#pragma once

#include <string>
#include <vector>

namespace files {

/// Everything before the last component, its slash included; empty for a name alone.
std::string folderOf(const std::string& machine);

/// Creates the folder and those above it, each to survive a power cut, and appends those that were
/// missing to `made`, the highest first. 0 or an errno.
int makeFolders(const std::string& machine, std::vector<std::string>& made);

/// Makes the names in the folder (empty: the current one) survive a power cut. A file system that
/// cannot do this is no reason to report failure: what was written is whole either way.
void flushFolder(const std::string& machine);

}  // namespace files
