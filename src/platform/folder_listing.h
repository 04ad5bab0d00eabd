// The entries of a folder of this machine, one after the other.
#pragma once

#include <dirent.h>

#include <memory>
#include <string>

namespace files {

class FolderListing {
  public:
    /// `folder` is a machine path, empty for the current folder. One that cannot be listed has no
    /// entries.
    explicit FolderListing(const std::string& folder)
        : m_listing(::opendir(folder.empty() ? "." : folder.c_str())) {}

    /// The next name, "." and ".." among them, until the following call; null at the end.
    const char* next() {
        const dirent* entry = m_listing ? ::readdir(m_listing.get()) : nullptr;
        return entry ? entry->d_name : nullptr;
    }

  private:
    struct Close {
        void operator()(DIR* listing) const { ::closedir(listing); }
    };
    std::unique_ptr<DIR, Close> m_listing;  // closed also when a caller runs out of memory
};

}  // namespace files
