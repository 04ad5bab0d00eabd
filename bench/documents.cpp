// Saving and loading a table of 100,000 rows and 8 columns of numbers. The floor writes and reads
// the same numbers as bare text without addresses, in memory.
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/claim.h"
#include "spread/control/document.h"
#include "spread/control/grid.h"

namespace {

constexpr int rows = 100'000;
constexpr int cols = 8;

double numberAt(int col, int row) {
    return row + col * 0.125;
}

std::string bareText() {
    std::string text;
    char buffer[32];
    for (int row = 1; row <= rows; ++row)
        for (int col = 1; col <= cols; ++col) {
            const auto end = std::to_chars(buffer, buffer + sizeof buffer, numberAt(col, row)).ptr;
            text.append(buffer, end);
            text += '\n';
        }
    return text;
}

double sumOf(const std::string& text) {
    double sum = 0, number = 0;
    for (const char *p = text.data(), *end = p + text.size(); p < end;) {
        p = std::from_chars(p, end, number).ptr + 1;
        sum += number;
    }
    return sum;
}

}  // namespace

int main() {
    control::Grid grid;
    grid.setCols(cols);
    grid.setRows(rows);
    for (int row = 1; row <= rows; ++row)
        for (int col = 1; col <= cols; ++col)
            grid.writeValue(col, row, formula::Value(numberAt(col, row)));

    const auto folder = std::filesystem::temp_directory_path() / "vormant-bench";
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "table.tws").string();
    std::string error;
    bool isGood = bench::compare(
        {"save a table of 100,000 x 8", rows, "rows", 1e6, 2.5e6},
        [&] {
            if (!control::saveDocument(grid, path, error)) std::abort();
        },
        [&] { bench::DoNotOptimize(bareText()); });
    const std::string text = control::writeDocument(grid);
    const std::string bare = bareText();
    isGood &= bench::compare(
        {"load a table of 100,000 x 8", rows, "rows", 1e6, 2.5e6},
        [&] {
            if (!control::readDocument(text, "table", error)) std::abort();
        },
        [&] { bench::DoNotOptimize(sumOf(bare)); });
    std::filesystem::remove_all(folder);
    return isGood ? 0 : 1;
}
