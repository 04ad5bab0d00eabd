// Files that only the running program needs: they lie in a folder of its own, which goes with the
// program's need for it. None of them is flushed to disk, as nobody asks for them after a crash.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace files {

class VORMANT_API ScratchFolder {
  public:
    /// A new, empty folder among the system's temporary ones, which only this user may enter.
    /// Nothing, with the reason in `error`, when there can be none.
    static std::optional<ScratchFolder> make(std::string& error);
    /// Removes it with all that is in it.
    ~ScratchFolder();
    ScratchFolder(ScratchFolder&& other) noexcept;
    ScratchFolder& operator=(ScratchFolder&& other) noexcept;

    /// The inside path (platform/paths.h) of what is called `name` in it.
    std::string inside(std::string_view name) const { return m_inside + "\\" + std::string(name); }

  private:
    ScratchFolder(std::string machine, std::string inside)
        : m_machine(std::move(machine)), m_inside(std::move(inside)) {}

    std::string m_machine;  ///< empty when it has moved
    std::string m_inside;
};

/// Writes a file, over the one that is there. False, with `error` set and no file left, on any
/// failure. An inside path.
VORMANT_API bool writeScratch(std::string_view path, std::string_view content, std::string& error);

}  // namespace files
