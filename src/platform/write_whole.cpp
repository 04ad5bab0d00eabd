// The one way files are written: a new file beside the old one, flushed to disk, then renamed
// over it.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>

#include "platform/changed_files.h"
#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/folder_lock.h"
#include "platform/folders.h"
#include "platform/temporary_files.h"
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

std::optional<unsigned> permissionsOf(const std::string& machine) {
    struct stat status {};
    if (::stat(machine.c_str(), &status) != 0) return std::nullopt;
    return status.st_mode & 07777u;
}

int replace(const std::string& target, std::string_view content) {
    std::string temporary;
    int error = writeBeside(target, content, temporary);
    if (error != 0) return error;
    error = renameIntoPlace(temporary, target, Replacing::theOld);
    if (error != 0) ::unlink(temporary.c_str());
    return error;
}

/// What keeps `target` from being replaced; `isOrdinary` becomes false when it is no ordinary file.
int refusal(const std::string& target, bool& isOrdinary) {
    struct stat status {};
    if (::lstat(target.c_str(), &status) != 0) return 0;
    // Renaming would put a file in the place of these, a link that leads nowhere included.
    if (S_ISDIR(status.st_mode)) return EISDIR;
    if (S_ISLNK(status.st_mode) && ::stat(target.c_str(), &status) != 0) return errno;
    isOrdinary = S_ISREG(status.st_mode);
    // Renaming needs only the folder's permission; a file its owner protected stays protected.
    return errnoIf(::access(target.c_str(), W_OK) != 0);
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

int writeBeside(const std::string& target, std::string_view content, std::string& temporary) {
    removeLeftovers(folderOf(target));
    std::string name;
    int descriptor = -1;
    int error = EEXIST;
    for (int tries = 0; error == EEXIST && tries < 100; ++tries) {
        name = folderOf(target) + temporaryName();
        error = steps().open(name, permissionsOf(target), descriptor);
    }
    if (error != 0) return error;
    markInUse(descriptor);
    error = writeBytes(descriptor, content);
    if (error == 0) error = steps().flush(descriptor);
    // Some disks report a failed write only here; the descriptor is gone either way.
    const int closeError = steps().close(descriptor);
    if (error == 0) error = closeError;
    if (error != 0) {
        ::unlink(name.c_str());
        return error;
    }
    temporary.swap(name);
    return 0;
}

int renameIntoPlace(const std::string& temporary, const std::string& target, Replacing replacing) {
    int error = 0;
    // Who changes a file in steps holds its folder. Others are waited for, but not for ever: what
    // this writes does not depend on what is there.
    const auto lock = FolderLock::take(folderOf(target), std::chrono::seconds(5), error);
    if (changedMeanwhile(target)) return fileHasChanged;
    if (replacing == Replacing::theOld && !isBegunAsNew(target))
        return steps().rename(temporary, target);
    error = steps().renameNew(temporary, target);
    return error == EEXIST ? fileHasChanged : error;
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

int WriteSteps::renameNew(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    // A disk without that may have links, which replace nothing either.
    if (::link(from.c_str(), to.c_str()) != 0) return errno;
    return errnoIf(::unlink(from.c_str()) != 0);
}

WriteSteps* installWriteSteps(WriteSteps* steps) {
    WriteSteps* before = installedSteps;
    installedSteps = steps;
    return before;
}

bool writeWhole(std::string_view path, std::string_view content, std::string& error) {
    const bool isName = !path.empty() && path.find('\0') == std::string_view::npos;
    const std::string target = isName ? finalPath(path) : std::string();
    bool isOrdinary = true;
    int code = isName ? refusal(target, isOrdinary) : ENOENT;
    if (!isOrdinary) {
        error = notOrdinaryText("write", path);
        return false;
    }
    if (code == 0) code = replace(target, content);
    if (code != 0) {
        error = errorText("write", path, code);
        return false;
    }
    noteWritten(target);
    flushFolder(folderOf(target));
    return true;
}

}  // namespace files
