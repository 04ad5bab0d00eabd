// A file for the targets that read them by name. Set TMPDIR to a folder in memory for speed.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/scratch.h"

/// A scratch folder as long as the target runs.
inline const files::ScratchFolder& fedFolder() {
    static const files::ScratchFolder folder = [] {
        std::string error;
        auto made = files::ScratchFolder::make(error);
        if (!made) std::abort();
        return std::move(*made);
    }();
    return folder;
}

/// The inside path of the file called `name` with these bytes.
inline std::string fedFile(std::string_view name, std::string_view bytes) {
    const std::string path = fedFolder().inside(name);
    std::string error;
    if (!files::writeScratch(path, bytes, error)) std::abort();
    return path;
}
