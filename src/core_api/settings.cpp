#include "core_api/settings.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "platform/paths.h"

Vor_Settings gSettings;

namespace {

Vor_String folderPath(std::string_view folder) {
    std::string path(folder);
    std::replace(path.begin(), path.end(), '/', '\\');
    return ensureEndBSlash(path);
}

std::string_view libraryFolder() {
    return gSettings.libDir().view();
}

// Paths are made before and after any program sets the library.
[[maybe_unused]] const bool isLibraryKnown = (paths::setLibrary(libraryFolder), true);

}  // namespace

void Vor_Settings::setLibDir(std::string_view folder) {
    m_libDir = folderPath(folder);
}

void Vor_Settings::setVorDir(std::string_view folder) {
    m_vorDir = folderPath(folder);
}
