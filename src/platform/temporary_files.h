// The names of files that are being written beside their targets, and what dead programs left of
// them.
#pragma once

#include <string>

namespace files {

/// A name that is free even beside a crashed or a second writer; short, so that it fits wherever
/// the real name fits. It says which process writes.
std::string temporaryName();
/// Shows other programs, on other machines too, that the file open here is being written.
void markInUse(int descriptor);
/// Removes the temporary files in `folder` (a machine path, empty for the current one) whose
/// writers are dead.
void removeLeftovers(const std::string& folder);

}  // namespace files
