// Searching 500 tables with 500 sizes each for a section, from the start of the program to its end.
// The floor reads the same files and compares the same numbers. Before anything is timed, both have
// to find the same sections.
#include <charconv>
#include <iterator>
#include <string_view>

#include "bench/claim.h"
#include "bench/run_program.h"
#include "bench/section_library.h"

namespace {

using bench::SectionLibrary;

constexpr double height = 250.5, leastWidth = 200;

std::string contentOf(const std::filesystem::path& path) {
    std::string text(std::filesystem::file_size(path), '\0');
    std::ifstream(path, std::ios::binary).read(text.data(), std::ssize(text));
    return text;
}

void search(const SectionLibrary& library, const std::string& output) {
    bench::runProgram({VORMANT_PROGRAM, "--library", library.root(), "sections", "find", "h=250.5",
                       "b>=200", "--json"},
                      output);
}

/// Field `index` of a line, as a number.
double numberAt(std::string_view line, int index) {
    for (; index > 0; --index) line.remove_prefix(line.find('\t') + 1);
    double number = 0;
    std::from_chars(line.data(), line.data() + line.size(), number);
    return number;
}

int readAndCompare(const SectionLibrary& library) {
    constexpr int firstValue = 2 + languageCount;
    int found = 0;
    for (const auto& entry : std::filesystem::directory_iterator(library.prof())) {
        const std::string text = contentOf(entry.path());
        std::string_view rest = text;
        for (int line = 0; !rest.empty(); ++line) {
            const size_t end = rest.find('\n');
            const std::string_view size = rest.substr(0, end);
            rest.remove_prefix(end + 1);
            found += line >= 2 && numberAt(size, firstValue) == height &&
                     numberAt(size, firstValue + 1) >= leastWidth;
        }
    }
    return found;
}

}  // namespace

int main() {
    const SectionLibrary library;
    const std::string output = library.root() / "found.json";
    search(library, output);
    const std::string found = contentOf(output);
    const auto lines = std::count(found.begin(), found.end(), '\n');
    if (readAndCompare(library) != SectionLibrary::tables || lines != SectionLibrary::tables) {
        std::printf("%ld sections found\n", static_cast<long>(lines));
        return 1;
    }
    const bool isGood = bench::compare(
        {"search 500 x 500 sizes, start of the program included", 1, "searches", 5, 20},
        [&] { search(library, output); }, [&] { bench::DoNotOptimize(readAndCompare(library)); },
        2);
    return isGood ? 0 : 1;
}
