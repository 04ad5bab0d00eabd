#include "core_api/settings.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"

Vor_Settings gSettings;

namespace {

Vor_String folderPath(std::string_view folder) {
    std::string path(folder);
    std::replace(path.begin(), path.end(), '/', '\\');
    return ensureEndBSlash(path);
}

}  // namespace

void Vor_Settings::setLibDir(std::string_view folder) {
    m_libDir = folderPath(folder);
}

void Vor_Settings::setVorDir(std::string_view folder) {
    m_vorDir = folderPath(folder);
}
