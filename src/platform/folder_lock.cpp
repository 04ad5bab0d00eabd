#include "platform/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "platform/file_error.h"

namespace files {

namespace {

using Clock = std::chrono::steady_clock;

// A list through the locks themselves: the first object of a thread that has a destructor takes
// memory, and the system's library ends the program when there is none.
thread_local FolderLock* newestHeld = nullptr;

/// 0, an errno, or folderIsBusy. Not a wait without end: the other program may have been stopped.
int lockUntil(int descriptor, Clock::time_point end) {
    for (;;) {
        if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return 0;
        if (errno != EWOULDBLOCK && errno != EINTR) return errno;
        if (Clock::now() >= end) return folderIsBusy;
        std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
}

}  // namespace

std::shared_ptr<FolderLock> FolderLock::heldByThread(const struct stat& folder) {
    for (FolderLock* each = newestHeld; each; each = each->m_older)
        if (each->m_device == folder.st_dev && each->m_number == folder.st_ino)
            return each->shared_from_this();
    return nullptr;
}

std::shared_ptr<FolderLock> FolderLock::make(int descriptor, const struct stat& folder) {
    std::shared_ptr<FolderLock> lock(new FolderLock(descriptor, folder.st_dev, folder.st_ino));
    lock->m_older = newestHeld;
    newestHeld = lock.get();
    return lock;
}

std::shared_ptr<FolderLock> FolderLock::take(const std::string& folder,
                                             std::chrono::milliseconds patience, int& code) {
    const char* path = folder.empty() ? "." : folder.c_str();
    const Clock::time_point end = Clock::now() + patience;
    for (;;) {
        struct stat status {};
        if (::stat(path, &status) != 0) {
            code = errno;
            return nullptr;
        }
        if (auto held = heldByThread(status)) return held;
        const int descriptor = ::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        code = descriptor < 0 ? errno : lockUntil(descriptor, end);
        struct stat locked {};
        // Whoever held it may have removed the folder, and somebody else made a new one.
        if (code == 0 && (::fstat(descriptor, &locked) != 0 || ::stat(path, &status) != 0 ||
                          locked.st_ino != status.st_ino || locked.st_dev != status.st_dev)) {
            ::close(descriptor);
            continue;
        }
        if (code == 0) return make(descriptor, locked);
        if (descriptor >= 0) ::close(descriptor);
        if (code == ENOENT) continue;  // removed just now
        if (code == ENOTDIR || code == folderIsBusy) return nullptr;
        code = 0;
        return make(-1, status);  // it cannot be opened, or its disk has no locks
    }
}

FolderLock::~FolderLock() {
    FolderLock** held = &newestHeld;
    while (*held && *held != this) held = &(*held)->m_older;
    if (*held) *held = m_older;
    if (m_descriptor >= 0) ::close(m_descriptor);
}

}  // namespace files
