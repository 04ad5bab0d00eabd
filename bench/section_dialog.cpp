// Opening the section library of 500 tables with 500 sizes each on one of its sizes, without a
// screen. The floor lists the folder and splits that one table's file into its fields.
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "bench/claim.h"
#include "bench/section_library.h"
#include "core_api/settings.h"
#include "sections/dialogs/library_dialog.h"

namespace {

namespace fs = std::filesystem;
using bench::SectionLibrary;

size_t listAndSplit(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path());
    std::sort(names.begin(), names.end());
    std::ifstream file(names[0], std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::vector<std::string> fields;
    for (size_t at = 0; at < text.size();) {
        const size_t end = text.find_first_of("\t\n", at);
        fields.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return names.size() + fields.size();
}

/// Opened dialogs go at the end: closing one writes its place into the registry.
void openLibrary(std::vector<std::unique_ptr<LibraryDialog>>& opened) {
    LibraryDialog& dialog = *opened.emplace_back(std::make_unique<LibraryDialog>());
    dialog.setSection("T250-2500");
    const bool isOpen =
        dialog.create() && dialog.tablesPage()->sheet().nrRows() == SectionLibrary::sizes;
    if (!isOpen || dialog.data().tableNames.length() != SectionLibrary::tables) std::abort();
}

}  // namespace

int main() {
    const SectionLibrary library;
    ::setenv("XDG_CONFIG_HOME", library.root().c_str(), 1);
    std::string inside = library.root().string();
    std::replace(inside.begin(), inside.end(), '/', '\\');
    gSettings.setLibDir(inside);
    std::vector<std::unique_ptr<LibraryDialog>> opened;
    const bool isGood = bench::compare(
        {"open a library of 500 x 500 sizes", 1, "openings", 2, 20}, [&] { openLibrary(opened); },
        [&] { bench::DoNotOptimize(listAndSplit(library.prof())); });
    opened.clear();
    return isGood ? 0 : 1;
}
