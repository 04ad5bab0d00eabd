#include "platform/paths.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>

#include "platform/encodings.h"

namespace paths {

namespace {

bool existsExactly(const std::string& machine) {
    struct stat status {};
    return ::stat(machine.c_str(), &status) == 0;
}

// The entry of `folder` that equals `name` but for letter case; empty when there is none.
std::string findFolded(const std::string& folder, std::string_view name) {
    const auto wanted = encodings::fromUtf8(name);
    DIR* listing = wanted ? ::opendir(folder.empty() ? "." : folder.c_str()) : nullptr;
    if (!listing) return {};
    std::string best;
    while (const dirent* entry = ::readdir(listing)) {
        const std::string_view found = entry->d_name;
        if (!best.empty() && found >= best) continue;
        const auto inside = encodings::fromUtf8(found);
        if (inside && encodings::equalFolded(*inside, *wanted)) best = found;
    }
    ::closedir(listing);
    return best;
}

}  // namespace

std::string asWritten(std::string_view inside) {
    std::string path = encodings::toUtf8(inside);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string toMachine(std::string_view inside) {
    std::string path = asWritten(inside);
    if (path.empty() || path.find('\0') != std::string::npos || existsExactly(path)) return path;

    std::string resolved;
    for (size_t at = 0; at < path.size();) {
        if (path[at] == '/') {
            resolved += '/';
            at = std::min(path.find_first_not_of('/', at), path.size());
            continue;
        }
        const size_t end = std::min(path.find('/', at), path.size());
        const std::string name = path.substr(at, end - at);
        if (existsExactly(resolved + name)) {
            resolved += name;
        } else {
            const std::string match = findFolded(resolved, name);
            if (match.empty()) return resolved + path.substr(at);
            resolved += match;
        }
        at = end;
    }
    return resolved;
}

std::optional<std::string> toInside(std::string_view machine) {
    auto inside = encodings::fromUtf8(machine);
    if (inside) std::replace(inside->begin(), inside->end(), '/', '\\');
    return inside;
}

}  // namespace paths
