// An advisory lock on a folder, which every program takes that replaces a file in it. It is the
// folder that is locked, not the file: a file that is replaced is another one afterwards, and one
// that does not exist yet cannot be locked. The system drops the lock of a program that dies.
#pragma once

#include <sys/stat.h>

#include <chrono>
#include <memory>
#include <string>

namespace files {

class FolderLock : public std::enable_shared_from_this<FolderLock> {
  public:
    /// Waits up to `patience` for the folder (a machine path, empty for the current one). One
    /// thread may take the same folder again and again. Null, with an errno or folderIsBusy
    /// (platform/file_error.h) in `code`, when the folder cannot be had. On a disk that has no
    /// locks the lock is an empty one. The thread that took it lets it go.
    static std::shared_ptr<FolderLock> take(const std::string& folder,
                                            std::chrono::milliseconds patience, int& code);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

  private:
    FolderLock() = default;
    static std::shared_ptr<FolderLock> heldByThread(const struct stat& folder);
    void hold(const struct stat& folder);
    void close();

    int m_descriptor = -1;
    dev_t m_device = 0;
    ino_t m_number = 0;
    FolderLock* m_older = nullptr;  ///< that the thread holds too
};

}  // namespace files
