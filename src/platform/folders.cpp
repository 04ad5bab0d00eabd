#include "platform/folders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace files {

namespace {

bool isFolderThere(const std::string& machine) {
    struct stat status {};
    return ::stat(machine.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

std::string folderOf(const std::string& machine) {
    const std::size_t slash = machine.rfind('/');
    return slash == std::string::npos ? std::string() : machine.substr(0, slash + 1);
}

int makeFolders(const std::string& machine, std::vector<std::string>& made) {
    for (std::size_t end = 0; end < machine.size();) {
        end = machine.find('/', end + 1);
        const std::string part = machine.substr(0, end);
        if (isFolderThere(part)) continue;
        if (::mkdir(part.c_str(), 0777) == 0) {
            made.push_back(part);
            flushFolder(folderOf(part));
        } else if (errno != EEXIST || !isFolderThere(part)) {  // nobody else made it just now
            return errno;
        }
    }
    return 0;
}

void flushFolder(const std::string& machine) {
    const int descriptor =
        ::open(machine.empty() ? "." : machine.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace files
