// Parsing formulas, and setting 100,000 of them (parse, compile, calculate, note the links). The
// floor reads every character of the same texts once.
#include <vector>

#include "bench/claim.h"
#include "spread/control/sheet.h"

namespace {

size_t scan(const std::vector<std::string>& texts) {
    size_t sum = 0;
    for (const std::string& text : texts)
        for (const char c : text) sum = sum * 31 + static_cast<unsigned char>(c);
    return sum;
}

}  // namespace

int main() {
    constexpr int count = 100'000;
    std::vector<std::string> texts;
    for (int row = 2; row < count + 2; ++row) {
        const std::string r = std::to_string(row);
        texts.push_back("A" + r + "*B" + r + "+SUM(D" + r + ":D" + std::to_string(row + 9) + ")");
    }
    control::Sheet sheet;
    formula::ParseError error;
    const auto floor = [&] { bench::DoNotOptimize(scan(texts)); };
    bool isGood = bench::compare(
        {"parse formulas", count, "formulas", 2e6, 6e6},
        [&] {
            formula::ParseSettings settings = sheet.parseSettings(3, 2);
            for (const std::string& text : texts)
                bench::DoNotOptimize(formula::parse(text, settings, error));
        },
        floor);
    isGood &= bench::compare(
        {"set 100,000 formulas", count, "formulas", 1e6, 4e6},
        [&] {
            control::Sheet fresh;
            for (int row = 0; row < count; ++row)
                fresh.setFormula(3, row + 2, texts[static_cast<size_t>(row)], error);
            bench::DoNotOptimize(fresh.formulaCount());
        },
        floor);
    return isGood ? 0 : 1;
}
