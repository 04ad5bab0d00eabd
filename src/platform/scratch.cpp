#include "platform/scratch.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <new>
#include <utility>

#include "platform/file_error.h"
#include "platform/paths.h"
#include "platform/write_bytes.h"

namespace files {

std::optional<ScratchFolder> ScratchFolder::make(std::string& error) {
    std::error_code failure;
    std::string name = (std::filesystem::temp_directory_path(failure) / "vormant-XXXXXX").string();
    const auto known = failure ? std::nullopt : paths::toInside(name);
    if (!known || !::mkdtemp(name.data())) {
        error = "there is no folder for temporary files; check TMPDIR";
        return std::nullopt;
    }
    return ScratchFolder(name, *paths::toInside(name));
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    try {
        if (!m_machine.empty()) std::filesystem::remove_all(m_machine, ignored);
    } catch (const std::bad_alloc&) {
        // It stays, as after a program that was ended from outside.
    }
}

ScratchFolder::ScratchFolder(ScratchFolder&& other) noexcept
    : m_machine(std::exchange(other.m_machine, {})), m_inside(std::move(other.m_inside)) {}

ScratchFolder& ScratchFolder::operator=(ScratchFolder&& other) noexcept {
    std::swap(m_machine, other.m_machine);
    std::swap(m_inside, other.m_inside);
    return *this;
}

bool writeScratch(std::string_view path, std::string_view content, std::string& error) {
    const std::string machine = paths::toMachine(path);
    const int descriptor = ::open(machine.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        error = errorText("write", path, errno);
        return false;
    }
    int failure = writeBytes(descriptor, content);
    if (::close(descriptor) != 0 && failure == 0) failure = errno;
    if (failure == 0) return true;
    ::unlink(machine.c_str());
    error = errorText("write", path, failure);
    return false;
}

}  // namespace files
