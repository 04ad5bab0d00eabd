// Reading, changing and writing a file as one step, so that of two programs that do so neither
// loses what the other has written:
//
//     const auto change = files::ExclusiveChange::take(path, error);
//     if (!change) …                      // somebody else holds it; `error` says so
//     … read the file, change what was read, writeWhole …
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"
#include "platform/files.h"

namespace files {

/// While it lives, other programs and threads wait before their own change of a file in that
/// folder. Programs that know no such locks do not wait: when one has written the file meanwhile,
/// writeWhole and removeFile refuse, with the words "changed it meanwhile", and leave its file. A
/// file that was not there is created, never replaced. One change belongs to one thread.
class VORMANT_API ExclusiveChange {
  public:
    /// Waits some seconds at most. Makes the file's folder where it is missing; it goes again when
    /// it is still empty in the end. Nothing, with `error` set, when the folder cannot be had.
    static std::optional<ExclusiveChange> take(std::string_view path, std::string& error);
    ~ExclusiveChange();
    ExclusiveChange(ExclusiveChange&&) noexcept;
    ExclusiveChange& operator=(ExclusiveChange&&) noexcept;

    /// The file as it is: when it was taken, or after the last write. Nothing when there is none.
    /// Who has read the file before compares the stamp of that time with it.
    const std::optional<Stamp>& stamp() const;

  private:
    class State;
    explicit ExclusiveChange(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

}  // namespace files
