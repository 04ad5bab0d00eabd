// A new file that is written whole and flushed, but has no name of its own yet: what belongs to
// another file is staged before that is written and gets its name behind it, in one rename. A
// program that is killed in between leaves a temporary file, which the next write clears.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace files {

class VORMANT_API StagedFile {
  public:
    /// Nothing, with `error` set, when it cannot be written.
    static std::optional<StagedFile> write(std::string_view path, std::string_view content,
                                           std::string& error);
    /// Removes the file unless it was put in place.
    ~StagedFile();
    StagedFile(StagedFile&&) noexcept;
    StagedFile& operator=(StagedFile&&) noexcept;

    const std::string& path() const { return m_path; }
    /// False, with `error` set, when that failed or a file of this name came meanwhile, which
    /// stays.
    bool putInPlace(std::string& error);

  private:
    StagedFile(std::string_view path, std::string target, std::string temporary)
        : m_path(path), m_target(std::move(target)), m_temporary(std::move(temporary)) {}

    std::string m_path;
    std::string m_target;     // machine paths
    std::string m_temporary;  // empty when there is none any more
};

}  // namespace files
