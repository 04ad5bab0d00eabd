#include "platform/exclusive_change.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "platform/changed_files.h"
#include "platform/file_error.h"
#include "platform/folder_lock.h"
#include "platform/folders.h"
#include "platform/paths.h"
#include "platform/temporary_files.h"

namespace files {

namespace {

constexpr std::chrono::milliseconds patience{10'000};

/// A file that is being changed, as this thread knows it.
struct KnownFile {
    std::string target;
    std::optional<Stamp> stamp;
    KnownFile* older = nullptr;
};

// A list through the files themselves, so that none of it takes memory.
thread_local KnownFile* newestBegun = nullptr;

template <class Condition>
bool anyBegun(const std::string& target, Condition&& holds) {
    for (const KnownFile* each = newestBegun; each; each = each->older)
        if (each->target == target && holds(*each)) return true;
    return false;
}

void removeEmpty(std::vector<std::string>& folders) {
    while (!folders.empty() && ::rmdir(folders.back().c_str()) == 0) folders.pop_back();
}

std::optional<std::string> realPath(const std::string& machine) {
    // Freed also when there is no memory for the copy.
    const std::unique_ptr<char, void (*)(void*)> real(
        ::realpath(machine.empty() ? "." : machine.c_str(), nullptr), std::free);
    if (!real) return std::nullopt;
    return std::string(real.get());
}

}  // namespace

class ExclusiveChange::State {
  public:
    State(const std::string& target, std::shared_ptr<FolderLock> lock,
          std::vector<std::string> made)
        : m_lock(std::move(lock)),
          m_made(std::move(made)),
          m_file{target, machineStampOf(target), newestBegun} {
        newestBegun = &m_file;
    }
    ~State() {
        KnownFile** begun = &newestBegun;
        while (*begun && *begun != &m_file) begun = &(*begun)->older;
        if (*begun) *begun = m_file.older;
        removeEmpty(m_made);
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    const std::optional<Stamp>& stamp() const { return m_file.stamp; }

  private:
    std::shared_ptr<FolderLock> m_lock;
    std::vector<std::string> m_made;
    KnownFile m_file;
};

std::optional<ExclusiveChange> ExclusiveChange::take(std::string_view path, std::string& error) {
    const bool isName = !path.empty() && path.find('\0') == std::string_view::npos;
    int code = isName ? 0 : ENOENT;
    std::vector<std::string> made;
    // A folder that was made may go again with the change of another program that made it too.
    for (int tries = 0; isName && tries < 100; ++tries) {
        const std::string target = finalPath(path);
        if (auto lock = FolderLock::take(folderOf(target), patience, code)) {
            removeLeftovers(folderOf(target));
            return ExclusiveChange(
                std::make_unique<State>(target, std::move(lock), std::move(made)));
        }
        if (code != ENOENT) break;
        code = makeFolders(folderOf(target), made);
        if (code != 0) break;
    }
    removeEmpty(made);
    error = errorText("write", path, code);
    return std::nullopt;
}

ExclusiveChange::ExclusiveChange(std::unique_ptr<State> state) : m_state(std::move(state)) {}
ExclusiveChange::~ExclusiveChange() = default;
ExclusiveChange::ExclusiveChange(ExclusiveChange&&) noexcept = default;
ExclusiveChange& ExclusiveChange::operator=(ExclusiveChange&&) noexcept = default;

const std::optional<Stamp>& ExclusiveChange::stamp() const {
    return m_state->stamp();
}

bool changedMeanwhile(const std::string& target) {
    return anyBegun(target,
                    [&](const KnownFile& each) { return each.stamp != machineStampOf(target); });
}

bool isBegunAsNew(const std::string& target) {
    return anyBegun(target, [](const KnownFile& each) { return !each.stamp; });
}

void noteWritten(const std::string& target) {
    for (KnownFile* each = newestBegun; each; each = each->older)
        if (each->target == target) each->stamp = machineStampOf(target);
}

std::string finalPath(std::string_view path) {
    const std::string machine = paths::toMachine(path);
    if (const auto real = realPath(machine)) return *real;
    // Of a file that does not exist yet the folder is known.
    const std::string folder = folderOf(machine);
    const auto real = realPath(folder);
    return real ? (*real == "/" ? *real : *real + "/") + machine.substr(folder.size()) : machine;
}

}  // namespace files
