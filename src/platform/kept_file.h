// A file as it was before a change of several files, to be put back when a later one fails, on a
// full disk too: it keeps its bytes under a second name for so long.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace files {

class VORMANT_API KeptFile {
  public:
    /// Null, with `error` set, when the file can be neither linked nor read.
    static std::unique_ptr<KeptFile> keep(std::string_view path, std::string& error);
    /// Leaves the file as it is now.
    ~KeptFile();
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;

    /// The file is as it was, or gone when there was none. False, with `error` set, when that
    /// failed.
    bool putBack(std::string& error);

  private:
    KeptFile(std::string_view path, std::string target)
        : m_path(path), m_target(std::move(target)) {}

    std::string m_path;
    std::string m_target;
    std::string m_link;                    // the second name; empty when there is none
    std::optional<std::string> m_content;  // where the disk knows no second names
};

}  // namespace files
