// Opening the section library of 500 tables with 500 sizes each on one of its sizes, without a
// screen. The floor lists the folder and splits that one table's file into its fields.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "bench/claim.h"
#include "core_api/settings.h"
#include "sections/dialogs/library_dialog.h"

namespace {

namespace fs = std::filesystem;

constexpr int tables = 500;
constexpr int sizes = 500;
constexpr int values = 15;

std::string tableText() {
    std::string text = "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench";
    for (int i = 0; i < values; ++i) text += "\tValue" + std::to_string(i);
    text += "\n";
    for (int size = 1; size <= sizes; ++size) {
        const std::string name = std::to_string(size * 10);
        text += name + "\t1";
        for (int i = 0; i < languageCount; ++i) text += "\tHE " + name;
        for (int i = 0; i < values; ++i) text += "\t" + std::to_string(size + i) + ".5";
        text += "\n";
    }
    return text;
}

void makeLibrary(const fs::path& folder) {
    fs::create_directories(folder);
    const std::string text = tableText();
    for (int i = 0; i < tables; ++i)
        std::ofstream(folder / ("T" + std::to_string(i) + ".pr"), std::ios::binary) << text;
}

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
    const bool isOpen = dialog.create() && dialog.tablesPage()->sheet().nrRows() == sizes;
    if (!isOpen || dialog.data().tableNames.length() != tables) std::abort();
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "vormant-bench-sections";
    const fs::path folder = root / "prof";
    makeLibrary(folder);
    ::setenv("XDG_CONFIG_HOME", root.c_str(), 1);
    std::string inside = root.string();
    std::replace(inside.begin(), inside.end(), '/', '\\');
    gSettings.setLibDir(inside);
    std::vector<std::unique_ptr<LibraryDialog>> opened;
    const bool isGood = bench::compare(
        {"open a library of 500 x 500 sizes", 1, "openings", 2, 20}, [&] { openLibrary(opened); },
        [&] { bench::DoNotOptimize(listAndSplit(folder)); });
    opened.clear();
    fs::remove_all(root);
    return isGood ? 0 : 1;
}
