#include "platform/readable_paths.h"

#include <sys/stat.h>

#include <algorithm>

#include "platform/encodings.h"

namespace paths {

namespace {

bool canPrecedePath(char before) {
    return std::string_view(" \t\r\n\"'([{<=").find(before) != std::string_view::npos;
}

bool isFolderInRoot(const std::string& utf8Name) {
    struct stat status {};
    return !utf8Name.empty() && ::stat(("/" + utf8Name).c_str(), &status) == 0 &&
           S_ISDIR(status.st_mode);
}

/// Whether a path of this machine begins at the backslash `at`.
template <class ToUtf8>
bool isPath(std::string_view text, size_t at, ToUtf8 toUtf8) {
    if (at > 0 && !canPrecedePath(text[at - 1])) return false;
    const size_t end = text.find('\\', at + 1);
    return end != text.npos && isFolderInRoot(toUtf8(text.substr(at + 1, end - at - 1)));
}

template <class ToUtf8>
std::string withSlashes(std::string_view text, ToUtf8 toUtf8) {
    std::string shown(text);
    for (size_t at = text.find('\\'); at != text.npos; at = text.find('\\', at + 1)) {
        if (!isPath(text, at, toUtf8)) continue;
        const size_t end = std::min(text.find_first_of(":\"\n", at), text.size());
        std::replace(shown.begin() + static_cast<std::ptrdiff_t>(at),
                     shown.begin() + static_cast<std::ptrdiff_t>(end), '\\', '/');
        at = end - 1;
    }
    return shown;
}

}  // namespace

std::string readable(std::string_view text) {
    return withSlashes(text, [](std::string_view name) { return encodings::toUtf8(name); });
}

std::string readableUtf8(std::string_view text) {
    return withSlashes(text, [](std::string_view name) { return std::string(name); });
}

}  // namespace paths
