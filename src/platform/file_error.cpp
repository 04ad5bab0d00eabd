#include "platform/file_error.h"

#include <cerrno>
#include <system_error>

namespace files {

namespace {

std::string_view adviceFor(int error) {
    switch (error) {
        case ENOENT:
            return "check the name and its folder";
        case EACCES:
        case EPERM:
            return "check the permissions of the file and its folder";
        case EROFS:
            return "choose a folder that can be written to";
        case ENOSPC:
        case EDQUOT:
            return "make room on the disk and try again";
        case EISDIR:
            return "name a file, not a folder";
        case ENOTDIR:
            return "a part of the path is a file, not a folder";
        case ENAMETOOLONG:
            return "choose a shorter name";
        case folderIsBusy:
            return "try again when it is done";
        case fileHasChanged:
            return "read it again and repeat the change";
        case EMFILE:
        case ENFILE:
            return "close other files and try again";
        default:
            return "try again, or check the disk";
    }
}

std::string whatHappened(int error) {
    if (error == folderIsBusy) return "another program is writing in its folder";
    if (error == fileHasChanged) return "another program has changed it meanwhile";
    return std::generic_category().message(error);
}

}  // namespace

bool isMissingFile(int error) {
    return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP;
}

std::string errorText(std::string_view action, std::string_view path, int error) {
    std::string text = "cannot ";
    text.append(action).append(" ").append(path).append(": ");
    text.append(whatHappened(error)).append("; ").append(adviceFor(error));
    return text;
}

std::string notOrdinaryText(std::string_view action, std::string_view path) {
    std::string text = "cannot ";
    text.append(action).append(" ").append(path);
    return text.append(": it is not an ordinary file; name a file");
}

}  // namespace files
