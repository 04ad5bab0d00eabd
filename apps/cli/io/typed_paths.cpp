#include "cli/io/typed_paths.h"

#include <algorithm>
#include <vector>

#include "cli/io/console.h"
#include "platform/encodings.h"
#include "platform/paths.h"
#include "platform/readable_paths.h"

namespace cli {

namespace {

/// The inside forms of everything typed in this call.
std::vector<std::string>& typedPaths() {
    static std::vector<std::string> paths;
    return paths;
}

}  // namespace

std::string shownPath(std::string_view inside) {
    return paths::toMachine(inside);
}

std::optional<Vor_String> insidePath(const std::string& typed) {
    auto inside = paths::toInside(typed);
    if (!inside) {
        complain("\"" + typed + "\" holds a character that Windows-1252 lacks");
        return std::nullopt;
    }
    const bool isBare = inside->find('\\') == inside->npos;
    typedPaths().push_back(isBare ? *inside + '\\' : *inside);
    return Vor_String(std::move(*inside));
}

std::string shownMessage(std::string_view message) {
    std::string shown = paths::readable(message);
    for (const auto& path : typedPaths()) {
        for (size_t at = shown.find(path); at != shown.npos; at = shown.find(path, at + 1)) {
            const size_t end = std::min(shown.find_first_of(":\"\n", at), shown.size());
            std::replace(shown.begin() + static_cast<std::ptrdiff_t>(at),
                         shown.begin() + static_cast<std::ptrdiff_t>(end), '\\', '/');
        }
    }
    return encodings::toUtf8(shown);
}

}  // namespace cli
