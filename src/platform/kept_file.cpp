#include "platform/kept_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/changed_files.h"
#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/temporary_files.h"

namespace files {

std::unique_ptr<KeptFile> KeptFile::keep(std::string_view path, std::string& error) {
    std::unique_ptr<KeptFile> kept(new KeptFile(path, finalPath(path)));
    if (!exists(path)) return kept;
    const std::string link = folderOf(kept->m_target) + temporaryName();
    if (::link(kept->m_target.c_str(), link.c_str()) == 0)
        kept->m_link = link;
    else if (!(kept->m_content = readWhole(path, error)))
        return nullptr;
    return kept;
}

KeptFile::~KeptFile() {
    if (!m_link.empty()) ::unlink(m_link.c_str());
}

bool KeptFile::putBack(std::string& error) {
    if (m_content) return writeWhole(m_path, *m_content, error);
    if (m_link.empty()) return removeFile(m_path, error);
    const int code = std::rename(m_link.c_str(), m_target.c_str()) != 0 ? errno : 0;
    if (code != 0) error = errorText("write", m_path, code);
    noteWritten(m_target);
    return code == 0;
}

}  // namespace files
