#include "io/typed_paths.h"

#include "console.h"
#include "platform/paths.h"

namespace cli {

std::string shownPath(std::string_view inside) {
    return paths::toMachine(inside);
}

std::optional<Vor_String> insidePath(const std::string& typed) {
    auto inside = paths::toInside(typed);
    if (!inside) {
        complain("\"" + typed + "\" holds a character that Windows-1252 lacks");
        return std::nullopt;
    }
    return Vor_String(std::move(*inside));
}

}  // namespace cli
