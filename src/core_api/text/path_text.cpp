// Paths as texts. Inside, folders are separated by backslashes; a slash is understood too, since a
// path typed on a command line may hold one.
#include "core_api/text/text_helpers.h"

namespace {

constexpr std::string_view separators = "\\/";

size_t nameStart(std::string_view path) {
    const size_t separator = path.find_last_of(separators);
    return separator == std::string_view::npos ? 0 : separator + 1;
}

// Where the dot of the extension stands, or the end. A leading dot starts a name, no extension.
size_t extensionDot(std::string_view path) {
    const size_t dot = path.rfind('.');
    return dot == std::string_view::npos || dot <= nameStart(path) ? path.size() : dot;
}

}  // namespace

Vor_String getPath(std::string_view path) {
    return path.substr(0, nameStart(path));
}

Vor_String getFileName(std::string_view path) {
    return path.substr(nameStart(path));
}

Vor_String removeExtension(std::string_view path) {
    return path.substr(0, extensionDot(path));
}

Vor_String changeExtension(std::string_view path, std::string_view extension) {
    return removeExtension(path) + "." + extension;
}

Vor_String ensureNoStartBSlash(std::string_view path) {
    const size_t first = path.find_first_not_of(separators);
    return first == std::string_view::npos ? std::string_view() : path.substr(first);
}

Vor_String ensureEndBSlash(std::string_view path) {
    Vor_String folder(path);
    if (!path.empty() && separators.find(path.back()) == std::string_view::npos) folder += "\\";
    return folder;
}
