#include "workbench/shell/library_kinds.h"

#include <algorithm>

#include "core_api/settings.h"
#include "workbench/words/workbench_words.h"

namespace {

// Templates end like any text, and a file of cutting stock says only by its folder whose it is.
constexpr LibraryFolder folders[] = {
    {LibraryKind::standard, wordStandards, "Connection Standards\\", {".tws"}, true},
    {LibraryKind::macro, wordMacros, "Macros\\", {".macro"}, true},
    {LibraryKind::sectionTable, wordSectionTables, "prof\\", {".pr"}, true},
    {LibraryKind::dialogTemplate,
     wordTemplates,
     "Dialog Templates\\Dialog Design\\",
     {".txt"},
     false},
    {LibraryKind::cuttingStock,
     wordCuttingStock,
     "Cutting Stock\\",
     {".shp", ".buy", ".dat"},
     false},
};

}  // namespace

Vor_String LibraryFolder::path() const {
    return gSettings.libDir() + folder;
}

bool LibraryFolder::hasExtension(const Vor_String& file) const {
    return std::any_of(extensions.begin(), extensions.end(), [&](std::string_view extension) {
        return !extension.empty() && file.endsWith(extension);
    });
}

std::span<const LibraryFolder> libraryFolders() {
    return folders;
}

std::optional<LibraryKind> libraryKindOf(const Vor_String& file) {
    for (const LibraryFolder& each : folders)
        if (each.hasExtension(file) && (each.opensElsewhere || file.beginsWith(each.path())))
            return each.kind;
    return std::nullopt;
}
