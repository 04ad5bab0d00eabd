#include "platform/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <utility>

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
        // Before the folder is open, so that no memory that runs out leaves it locked.
        std::shared_ptr<FolderLock> lock(new FolderLock);
        lock->m_descriptor = ::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        code = lock->m_descriptor < 0 ? errno : lockUntil(lock->m_descriptor, end);
        struct stat locked {};
        // Whoever held it may have removed the folder, and somebody else made a new one.
        if (code == 0 && (::fstat(lock->m_descriptor, &locked) != 0 || ::stat(path, &status) != 0 ||
                          locked.st_ino != status.st_ino || locked.st_dev != status.st_dev))
            continue;
        if (code == ENOENT) continue;  // removed just now
        if (code == ENOTDIR || code == folderIsBusy) return nullptr;
        if (code != 0) lock->close();  // it cannot be opened, or its disk has no locks
        code = 0;
        lock->hold(status);
        return lock;
    }
}

void FolderLock::hold(const struct stat& folder) {
    m_device = folder.st_dev;
    m_number = folder.st_ino;
    m_older = std::exchange(newestHeld, this);
}

void FolderLock::close() {
    if (m_descriptor >= 0) ::close(m_descriptor);
    m_descriptor = -1;
}

FolderLock::~FolderLock() {
    FolderLock** held = &newestHeld;
    while (*held && *held != this) held = &(*held)->m_older;
    if (*held) *held = m_older;
    close();
}

}  // namespace files
