#include "platform/paths.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <unordered_map>
#include <unordered_set>

#include "platform/encodings.h"
#include "platform/folder_listing.h"

namespace paths {

namespace {

bool existsExactly(const std::string& machine) {
    struct stat status {};
    return ::stat(machine.c_str(), &status) == 0;
}

// The entry of `folder` that equals `name` but for letter case; empty when there is none.
std::string findFolded(const std::string& folder, std::string_view name) {
    const auto wanted = encodings::fromUtf8(name);
    if (!wanted) return {};
    files::FolderListing listing(folder);
    std::string best;
    while (const char* entry = listing.next()) {
        const std::string_view found = entry;
        if (!best.empty() && found >= best) continue;
        const auto inside = encodings::fromUtf8(found);
        if (inside && encodings::equalFolded(*inside, *wanted)) best = found;
    }
    return best;
}

/// The path with every component behind the first `from` characters that does not exist as written
/// replaced by one that does, case aside, up to the first that has no match.
std::string resolveFolded(const std::string& path, size_t from) {
    std::string resolved = path.substr(0, from);
    for (size_t at = from; at < path.size();) {
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

/// What became of paths that do not exist as written. Standards that call others look in folder
/// after folder, run after run, for files that are not there; as long as a folder has not changed,
/// nothing in it needs to be looked for again.
class Misses {
  public:
    /// The resolved path, or null when it has to be looked for.
    const std::string* find(const std::string& path) const {
        const auto known = m_known.find(path);
        if (known == m_known.end()) return nullptr;
        const auto changed = timeOf(folderOf(path));
        return changed && *changed == known->second.folderTime ? &known->second.resolved : nullptr;
    }
    void add(const std::string& path, const std::string& resolved) {
        const auto changed = timeOf(folderOf(path));
        // A folder that has just changed may change again without its time telling.
        if (!changed || now() - *changed < second) return;
        if (m_known.size() >= mostKnown) m_known.clear();
        m_known.insert_or_assign(path, Miss{*changed, resolved});
    }

  private:
    static constexpr std::int64_t second = 1'000'000'000;
    static constexpr size_t mostKnown = 256;

    struct Miss {
        std::int64_t folderTime;  // nanoseconds
        std::string resolved;
    };
    static std::string folderOf(const std::string& path) {
        const size_t slash = path.rfind('/');
        return slash == path.npos ? "." : path.substr(0, slash + 1);
    }
    static std::optional<std::int64_t> timeOf(const std::string& folder) {
        struct stat status {};
        if (::stat(folder.c_str(), &status) != 0) return std::nullopt;
        return status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec;
    }
    static std::int64_t now() {
        timespec time{};
        ::clock_gettime(CLOCK_REALTIME, &time);
        return time.tv_sec * second + time.tv_nsec;
    }

    std::unordered_map<std::string, Miss> m_known;
};

std::string_view (*libraryFolder)() = nullptr;

/// The library folder's machine path, which ends in a slash; empty when there is none.
const std::string& library() {
    static std::string inside;
    static std::string machine;
    const std::string_view folder = libraryFolder ? libraryFolder() : std::string_view();
    if (folder != inside) {
        inside = folder;
        machine = asWritten(folder);
    }
    return machine;
}

/// The machine paths that were given as such.
std::unordered_set<std::string>& exactPaths() {
    static std::unordered_set<std::string> given;
    return given;
}

/// False for a name that climbs out of the folder it is relative to.
bool staysInside(std::string_view relative) {
    int depth = 0;
    while (!relative.empty()) {
        const size_t end = std::min(relative.find('/'), relative.size());
        const std::string_view name = relative.substr(0, end);
        if (name == "..")
            --depth;
        else if (!name.empty() && name != ".")
            ++depth;
        if (depth < 0) return false;
        relative.remove_prefix(std::min(end + 1, relative.size()));
    }
    return true;
}

bool forgivesCase(const std::string& path) {
    const std::string& folder = library();
    return !folder.empty() && path.starts_with(folder) &&
           staysInside(std::string_view(path).substr(folder.size())) &&
           !exactPaths().contains(path);
}

}  // namespace

void setLibrary(std::string_view (*folder)()) {
    libraryFolder = folder;
}

std::string asWritten(std::string_view inside) {
    std::string path = encodings::toUtf8(inside);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string toMachine(std::string_view inside) {
    std::string path = asWritten(inside);
    if (path.find('\0') != std::string::npos || !forgivesCase(path) || existsExactly(path))
        return path;
    static Misses misses;
    if (const std::string* known = misses.find(path)) return *known;
    std::string resolved = resolveFolded(path, library().size());
    misses.add(path, resolved);
    return resolved;
}

bool isExact(std::string_view inside) {
    return exactPaths().contains(asWritten(inside));
}

std::optional<std::string> toInside(std::string_view machine) {
    auto inside = encodings::fromUtf8(machine);
    if (!inside) return inside;
    std::replace(inside->begin(), inside->end(), '/', '\\');
    exactPaths().insert(asWritten(*inside));
    return inside;
}

}  // namespace paths
