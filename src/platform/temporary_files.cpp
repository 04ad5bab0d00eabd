#include "platform/temporary_files.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string_view>

#include "platform/folder_listing.h"

namespace files {

namespace {

/// Takes a number written with lower-case hexadecimal digits off the text.
std::optional<unsigned long long> takeHex(std::string_view& text) {
    unsigned long long number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (read.ec != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    return number;
}

/// The process that writes the file `name`; nothing when this is no name of temporaryName.
std::optional<pid_t> writerOf(std::string_view name) {
    if (!name.starts_with('.')) return std::nullopt;
    name.remove_prefix(1);
    const auto process = takeHex(name);
    if (!process || *process == 0 || *process > 0x7fffffff || !name.starts_with('-'))
        return std::nullopt;
    name.remove_prefix(1);
    if (!takeHex(name) || name != ".tmp") return std::nullopt;
    return static_cast<pid_t>(*process);
}

/// The number of a process says nothing about those of other machines and containers, the mark
/// nothing in the moments before it is set and after the file was closed: a writer is dead when
/// both say so.
bool isDead(pid_t writer, const std::string& file) {
    if (::kill(writer, 0) == 0 || errno != ESRCH) return false;
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return false;
    const bool isFree = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    ::close(descriptor);
    return isFree;
}

}  // namespace

std::string temporaryName() {
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    char name[48];
    std::snprintf(name, sizeof name, ".%lx-%llx.tmp", static_cast<unsigned long>(::getpid()),
                  static_cast<unsigned long long>(ticks));
    return name;
}

void markInUse(int descriptor) {
    (void)::flock(descriptor, LOCK_EX | LOCK_NB);
}

void removeLeftovers(const std::string& folder) {
    FolderListing listing(folder);
    while (const char* name = listing.next()) {
        const auto writer = writerOf(name);
        const std::string file = folder + name;
        if (writer && isDead(*writer, file)) ::unlink(file.c_str());
    }
}

}  // namespace files
