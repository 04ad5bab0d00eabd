#include "platform/staged_file.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/changed_files.h"
#include "platform/file_error.h"
#include "platform/folders.h"
#include "platform/write_bytes.h"

namespace files {

std::optional<StagedFile> StagedFile::write(std::string_view path, std::string_view content,
                                            std::string& error) {
    StagedFile staged(path, finalPath(path), {});
    const int code = writeBeside(staged.m_target, content, staged.m_temporary);
    if (code == 0) return staged;
    error = errorText("write", path, code);
    return std::nullopt;
}

StagedFile::~StagedFile() {
    if (!m_temporary.empty()) ::unlink(m_temporary.c_str());
}

StagedFile::StagedFile(StagedFile&& other) noexcept
    : m_path(std::move(other.m_path)),
      m_target(std::move(other.m_target)),
      m_temporary(std::exchange(other.m_temporary, {})) {}

StagedFile& StagedFile::operator=(StagedFile&& other) noexcept {
    std::swap(m_path, other.m_path);
    std::swap(m_target, other.m_target);
    std::swap(m_temporary, other.m_temporary);
    return *this;
}

bool StagedFile::putInPlace(std::string& error) {
    if (const int code = renameIntoPlace(m_temporary, m_target, Replacing::nothing); code != 0) {
        error = errorText("write", m_path, code);
        return false;
    }
    m_temporary.clear();
    noteWritten(m_target);
    flushFolder(folderOf(m_target));
    return true;
}

}  // namespace files
