// How much a process grows with a million cells: plain numbers, and formulas beyond their text.
#include <unistd.h>
#include <cstdio>
#include <string>

#include "spread/control/sheet.h"

namespace {

double residentBytes() {
    long pages = 0, resident = 0;
    FILE* file = std::fopen("/proc/self/statm", "r");
    if (!file) return 0;
    if (std::fscanf(file, "%ld %ld", &pages, &resident) != 2) resident = 0;
    std::fclose(file);
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

constexpr int rows = 250'000;
constexpr int cols = 4;
constexpr double cells = 1.0 * rows * cols;

bool report(const char* what, double bytes, double must) {
    std::printf("%-44s %6.1f bytes a cell, at most %.0f  %s\n", what, bytes / cells, must,
                bytes / cells <= must ? "must" : "MISSED");
    return bytes / cells <= must;
}

}  // namespace

int main() {
    const double start = residentBytes();
    control::Sheet numbers;
    for (int col = 1; col <= cols; ++col)
        for (int row = 1; row <= rows; ++row) numbers.setValue(col, row, formula::Value(1.5 * row));
    const double withNumbers = residentBytes();
    bool isGood = report("1,000,000 numbers", withNumbers - start, 32);

    control::Sheet formulas;
    formula::ParseError error;
    double textBytes = 0;
    for (int col = 1; col <= cols; ++col)
        for (int row = 1; row <= rows; ++row) {
            const std::string text = row == 1 ? "1" : "B" + std::to_string(row - 1) + "+1";
            textBytes += static_cast<double>(text.size());
            formulas.setFormula(col, row, text, error);
        }
    formulas.setValue(6, 1, formula::Value(1.0));
    formulas.setAutomatic(true);  // makes the links as well
    isGood &= report("1,000,000 formulas beyond their text",
                     residentBytes() - withNumbers - textBytes, 100);
    return isGood ? 0 : 1;
}
