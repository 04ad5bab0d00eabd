#include "runs/library_standards.h"

#include "core_api/files.h"
#include "core_api/settings.h"
#include "mapping/mapping_file.h"

namespace runs {

namespace {

constexpr std::string_view extension = ".tws";

}  // namespace

std::vector<LibraryStandard> libraryStandards() {
    std::vector<LibraryStandard> standards;
    if (gSettings.libDir().isEmpty()) return standards;
    for (const Vor_String& path : ObjectExportFindFilesRecursive(standardsFolder(), "*.tws"))
        if (const auto name = nameInLibrary(path)) standards.push_back({*name, path});
    return standards;
}

std::optional<Vor_String> nameInLibrary(const Vor_String& path) {
    const Vor_String folder = standardsFolder();
    if (!path.beginsWith(folder) || !path.endsWith(extension)) return std::nullopt;
    const int length = path.length() - folder.length() - static_cast<int>(extension.size());
    return path.getSubStringAt(folder.length(), length);
}

}  // namespace runs
