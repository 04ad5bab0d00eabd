// The one way files are written: a new file beside the old one, flushed to disk, then renamed
// over it.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/write_bytes.h"

namespace files {

namespace {

WriteSteps* installedSteps = nullptr;

WriteSteps& steps() {
    static WriteSteps real;
    return installedSteps ? *installedSteps : real;
}

int errnoIf(bool failed) {
    return failed ? errno : 0;
}

// Where the bytes end up: a link is followed, so that renaming does not replace it by a file.
std::string finalPath(std::string_view path) {
    const std::string machine = paths::toMachine(path);
    char* real = ::realpath(machine.c_str(), nullptr);
    if (!real) return machine;
    const std::string resolved(real);
    std::free(real);
    return resolved;
}

std::string folderOf(const std::string& machine) {
    const std::size_t slash = machine.rfind('/');
    return slash == std::string::npos ? std::string() : machine.substr(0, slash + 1);
}

// A name that is free even beside a crashed or a second writer; short, so that it fits wherever
// the real name fits.
std::string temporaryName() {
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    char name[48];
    std::snprintf(name, sizeof name, ".%lx-%llx.tmp", static_cast<unsigned long>(::getpid()),
                  static_cast<unsigned long long>(ticks));
    return name;
}

std::optional<unsigned> permissionsOf(const std::string& machine) {
    struct stat status {};
    if (::stat(machine.c_str(), &status) != 0) return std::nullopt;
    return status.st_mode & 07777u;
}

int writeNew(const std::string& target, std::string_view content) {
    std::string temporary;
    int descriptor = -1;
    int error = EEXIST;
    for (int tries = 0; error == EEXIST && tries < 100; ++tries) {
        temporary = folderOf(target) + temporaryName();
        error = steps().open(temporary, permissionsOf(target), descriptor);
    }
    if (error != 0) return error;
    error = writeBytes(descriptor, content);
    if (error == 0) error = steps().flush(descriptor);
    // Some disks report a failed write only here; the descriptor is gone either way.
    const int closeError = steps().close(descriptor);
    if (error == 0) error = closeError;
    if (error == 0) error = steps().rename(temporary, target);
    if (error != 0) ::unlink(temporary.c_str());
    return error;
}

// Makes the new name survive a power cut. The file is whole either way, so a file system that
// cannot do this is no reason to report failure.
void flushFolder(const std::string& target) {
    const std::string folder = folderOf(target);
    const int descriptor =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace

int writeBytes(int descriptor, std::string_view content) {
    while (!content.empty()) {
        std::size_t written = 0;
        const int error = steps().write(descriptor, content, written);
        if (error == EINTR) continue;
        if (error != 0) return error;
        if (written == 0) return EIO;  // no error and no progress: not again for ever
        content.remove_prefix(written);
    }
    return 0;
}

int WriteSteps::open(const std::string& path, std::optional<unsigned> permissions,
                     int& descriptor) {
    descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0) return errno;
    // What cannot be kept (a foreign owner's bits) is no reason to refuse the write.
    if (permissions && ::fchmod(descriptor, *permissions) != 0) errno = 0;
    return 0;
}

int WriteSteps::write(int descriptor, std::string_view bytes, std::size_t& written) {
    const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
    written = count < 0 ? 0 : static_cast<std::size_t>(count);
    return errnoIf(count < 0);
}

int WriteSteps::flush(int descriptor) {
    return errnoIf(::fsync(descriptor) != 0);
}

int WriteSteps::close(int descriptor) {
    return errnoIf(::close(descriptor) != 0);
}

int WriteSteps::rename(const std::string& from, const std::string& to) {
    return errnoIf(std::rename(from.c_str(), to.c_str()) != 0);
}

WriteSteps* installWriteSteps(WriteSteps* steps) {
    WriteSteps* before = installedSteps;
    installedSteps = steps;
    return before;
}

bool writeWhole(std::string_view path, std::string_view content, std::string& error) {
    const bool isName = !path.empty() && path.find('\0') == std::string_view::npos;
    const std::string target = isName ? finalPath(path) : std::string();
    struct stat status {};
    int code = isName ? 0 : ENOENT;
    if (code == 0 && ::lstat(target.c_str(), &status) == 0) {
        // Renaming would put a file in the place of these, a link that leads nowhere included.
        if (S_ISDIR(status.st_mode)) code = EISDIR;
        if (S_ISLNK(status.st_mode)) code = errnoIf(::stat(target.c_str(), &status) != 0);
        if (code == 0 && !S_ISREG(status.st_mode)) {
            error = notOrdinaryText("write", path);
            return false;
        }
    }
    // Renaming needs only the folder's permission; a file its owner protected stays protected.
    if (code == 0 && ::access(target.c_str(), F_OK) == 0)
        code = errnoIf(::access(target.c_str(), W_OK) != 0);
    if (code == 0) code = writeNew(target, content);
    if (code != 0) {
        error = errorText("write", path, code);
        return false;
    }
    flushFolder(target);
    return true;
}

}  // namespace files
