#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "platform/changed_files.h"
#include "platform/file_error.h"
#include "platform/folders.h"
#include "platform/paths.h"

namespace files {

namespace {

class Descriptor {
  public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor() {
        if (m_descriptor >= 0) ::close(m_descriptor);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_descriptor; }

  private:
    int m_descriptor;
};

std::optional<struct stat> statusOf(std::string_view path) {
    struct stat status {};
    if (path.find('\0') != std::string_view::npos) return std::nullopt;
    // Asked at every run of a standard: one system call when the exact name exists.
    const std::string written = paths::asWritten(path);
    if (::stat(written.c_str(), &status) == 0) return status;
    if (!isMissingFile(errno)) return std::nullopt;
    const std::string found = paths::toMachine(path);
    if (found == written) return std::nullopt;
    return ::stat(found.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

/// Not blocking: opening a pipe would wait for somebody to write into it. Negative with errno.
int openToRead(std::string_view path) {
    constexpr int how = O_RDONLY | O_CLOEXEC | O_NONBLOCK;
    const int asWritten = ::open(paths::asWritten(path).c_str(), how);
    return asWritten >= 0 ? asWritten : ::open(paths::toMachine(path).c_str(), how);
}

Stamp stampOf(const struct stat& status) {
    const std::int64_t seconds = status.st_mtim.tv_sec;
    return {status.st_size, seconds * 1'000'000'000 + status.st_mtim.tv_nsec, status.st_ino};
}

// Reads to the end, which may lie elsewhere than the size said: another program may be writing.
// `content` comes with room for more than the `size` that was said, so that a read that gives less
// than it could and ends there needs no second one. 0 or an errno; EFBIG beyond the limit.
int readAll(int descriptor, std::size_t size, std::size_t sizeLimit, std::string& content) {
    std::size_t used = 0;
    for (;;) {
        if (used == content.size()) content.resize(content.size() + 4096);
        const ssize_t got = ::read(descriptor, content.data() + used, content.size() - used);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return errno;
        if (got == 0) break;
        used += static_cast<std::size_t>(got);
        if (used > sizeLimit) return EFBIG;
        if (used == size && used < content.size()) break;
    }
    content.resize(used);
    return 0;
}

std::string tooLarge(std::string_view path, std::size_t sizeLimit) {
    return "cannot read " + std::string(path) + ": it is larger than " + std::to_string(sizeLimit) +
           " bytes; check that it is the file meant";
}

}  // namespace

std::int64_t now() {
    timespec time{};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return time.tv_sec * INT64_C(1'000'000'000) + time.tv_nsec;
}

bool isSettled(const Stamp& stamp, std::int64_t time) {
    constexpr std::int64_t longestStep = 50'000'000;  // nanoseconds
    return time - stamp.time > longestStep;
}

bool isSettled(const Stamp& stamp) {
    return isSettled(stamp, now());
}

std::optional<Stamp> stampOf(std::string_view path) {
    const auto status = statusOf(path);
    return status && !S_ISDIR(status->st_mode) ? std::optional(stampOf(*status)) : std::nullopt;
}

std::optional<Stamp> machineStampOf(const std::string& machine) {
    struct stat status {};
    if (::stat(machine.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) return std::nullopt;
    return stampOf(status);
}

std::optional<Stamp> folderStampOf(std::string_view path) {
    const auto status = statusOf(path);
    return status && S_ISDIR(status->st_mode) ? std::optional(stampOf(*status)) : std::nullopt;
}

bool mayExist(std::string_view path) {
    errno = ENOENT;
    return statusOf(path) ? !isFolder(path) : !isMissingFile(errno);
}

bool exists(std::string_view path) {
    return stampOf(path).has_value();
}

bool isFolder(std::string_view path) {
    const auto status = statusOf(path);
    return status && S_ISDIR(status->st_mode);
}

std::optional<std::string> readWhole(std::string_view path, std::string& error,
                                     std::size_t sizeLimit, Stamp* opened) {
    const auto fail = [&](int code) {
        error = errorText("read", path, code);
        return std::nullopt;
    };
    if (path.find('\0') != std::string_view::npos) return fail(ENOENT);
    const Descriptor file(openToRead(path));
    if (file.get() < 0) return fail(errno);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) return fail(errno);
    if (S_ISDIR(status.st_mode)) return fail(EISDIR);
    if (!S_ISREG(status.st_mode)) {
        error = notOrdinaryText("read", path);
        return std::nullopt;
    }
    if (opened) *opened = stampOf(status);
    const auto size = static_cast<std::size_t>(status.st_size);
    std::string content;
    if (size <= sizeLimit) {
        content.resize(size + 1);
        const int code = readAll(file.get(), size, sizeLimit, content);
        if (code == 0) return content;
        if (code != EFBIG) return fail(code);
    }
    error = tooLarge(path, sizeLimit);
    return std::nullopt;
}

bool createFolder(std::string_view path, std::string& error) {
    if (path.find('\0') != std::string_view::npos) {
        error = errorText("create folder", path, ENOENT);
        return false;
    }
    std::vector<std::string> made;
    const int code = makeFolders(paths::toMachine(path), made);
    if (code != 0) error = errorText("create folder", path, code);
    return code == 0;
}

bool removeFile(std::string_view path, std::string& error) {
    const std::string machine = paths::toMachine(path);
    const std::string target = finalPath(path);
    int code = changedMeanwhile(target) ? fileHasChanged : 0;
    if (code == 0 && ::unlink(machine.c_str()) != 0 && errno != ENOENT) code = errno;
    if (code != 0) error = errorText("remove", path, code);
    noteWritten(target);
    return code == 0;
}

}  // namespace files
