// What writing needs to know of the changes that this thread has begun (platform/exclusive_change).
// Machine paths, links followed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace files {

/// True when somebody has written the file, although this thread has begun to change it.
bool changedMeanwhile(const std::string& target);
/// True when this thread has begun to change the file while there was none.
bool isBegunAsNew(const std::string& target);
/// Takes the file as it is now for the one that this thread knows.
void noteWritten(const std::string& target);

/// Where the bytes of `path` end up: links are followed, so that renaming does not replace them.
std::string finalPath(std::string_view path);
/// Nothing when there is no such file.
std::optional<Stamp> machineStampOf(const std::string& machine);

}  // namespace files
