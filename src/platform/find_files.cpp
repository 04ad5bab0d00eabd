// Listing files by pattern.
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <set>
#include <utility>

#include "platform/encodings.h"
#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/folder_listing.h"
#include "platform/paths.h"

namespace files {

namespace {

class Finder {
  public:
    Finder(std::string_view pattern, bool recursive) : m_pattern(pattern), m_recursive(recursive) {}

    // Folders still to list are kept in a list, not on the stack: depth is the user's.
    std::vector<std::string> run(std::string folder) {
        if (!folder.empty() && folder.back() != '\\' && folder.back() != '/') folder += '\\';
        struct stat status {};
        if (::stat(paths::toMachine(folder).c_str(), &status) == 0)
            m_seen.emplace(status.st_dev, status.st_ino);
        m_waiting.push_back(std::move(folder));
        while (!m_waiting.empty()) {
            const std::string next = std::move(m_waiting.back());
            m_waiting.pop_back();
            list(next);
        }
        std::sort(m_found.begin(), m_found.end(), [](const auto& a, const auto& b) {
            const int order = encodings::compareFolded(a, b);
            return order != 0 ? order < 0 : a < b;
        });
        return std::move(m_found);
    }

  private:
    void list(const std::string& folder) {
        const std::string machine = paths::toMachine(folder);
        FolderListing listing(machine);
        while (const char* entry = listing.next()) {
            const std::string_view name = entry;
            if (name != "." && name != "..") take(folder, machine, name);
        }
    }

    void take(const std::string& folder, const std::string& machine, std::string_view name) {
        const auto inside = encodings::fromUtf8(name);
        struct stat status {};
        // What cannot be asked about is listed: reading it says what is wrong.
        if (!inside ||
            (::stat((machine + std::string(name)).c_str(), &status) != 0 && isMissingFile(errno)))
            return;
        if (S_ISDIR(status.st_mode)) {
            // A folder reached twice through links is listed once, so links in a circle end.
            if (m_recursive && m_seen.emplace(status.st_dev, status.st_ino).second)
                m_waiting.push_back(folder + *inside + '\\');
        } else if (matchesPattern(*inside, m_pattern)) {
            m_found.push_back(folder + *inside);
        }
    }

    std::string m_pattern;
    bool m_recursive;
    std::vector<std::string> m_waiting;
    std::vector<std::string> m_found;
    std::set<std::pair<dev_t, ino_t>> m_seen;
};

}  // namespace

// Goes back only to the last "*", which suffices for such patterns and keeps it from blowing up.
bool matchesPattern(std::string_view name, std::string_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            starName = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || encodings::toLower(pattern[p]) ==
                                                                   encodings::toLower(name[n]))) {
            ++p, ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

std::vector<std::string> find(std::string_view folder, std::string_view pattern, bool recursive) {
    return Finder(pattern, recursive).run(std::string(folder));
}

}  // namespace files
