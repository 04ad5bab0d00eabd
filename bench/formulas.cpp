// Parsing formulas: products with a sum, and a mix of some 37 characters each as standards have
// them, with functions, comparisons and texts. Setting 100,000 of them (parse, compile, calculate,
// note the links). The floor reads every character of the same texts once.
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

constexpr int count = 100'000;
/// Parsed in one turn: short enough to be undisturbed now and then on a busy machine.
constexpr int parsedCount = 4'000;

std::vector<std::string> sums(int count) {
    std::vector<std::string> texts;
    for (int row = 2; row < count + 2; ++row) {
        const std::string r = std::to_string(row);
        texts.push_back("A" + r + "*B" + r + "+SUM(D" + r + ":D" + std::to_string(row + 9) + ")");
    }
    return texts;
}

/// Each "#" of a pattern is a row of two digits.
std::vector<std::string> mixed() {
    constexpr std::string_view patterns[] = {
        "IF(A#>B#,ROUND(C#*1.5,1),MAX(D#,E#))",   "ROUND(SQRT(A#^2+B#^2)/(C#+1.5),3)*D#",
        "IF(AND(A#>=235,B#<=460),C#,MIN(D#,5))",  "\"M\"&ROUND(A#,0)&\"x\"&INT(B#*2)&IF(C#,D#)",
        "MAX(2,INT(A#/(B#*B#*0.3))+1)*ABS(C#)",   "SUM(A#:A99)*0.9/IF(B#=0,1,MIN(B#,C#))",
        "MAX(A#,1.2*B#,ROUND(2.25*C#,0))/(D#-1)", "IF(OR(A#=\"HEA\",B#>K#),C#*D#,E#/2.5)+F#"};
    std::vector<std::string> texts;
    for (int i = 0; i < parsedCount; ++i) {
        const std::string row = std::to_string(10 + i / 8 % 89);
        std::string text;
        for (const char c : patterns[i % 8]) c == '#' ? text += row : text += c;
        texts.push_back(text);
    }
    return texts;
}

bool parsing(const char* work, const std::vector<std::string>& texts) {
    const control::Sheet sheet;
    formula::ParseError error;
    for (const std::string& text : texts)
        if (!formula::parse(text, sheet.parseSettings(30, 2), error)) {
            std::printf("%s: %s\n", text.c_str(), error.message.c_str());
            return false;
        }
    return bench::compare(
        {work, parsedCount, "formulas", 3.5e6, 6e6},
        [&] {
            formula::ParseSettings settings = sheet.parseSettings(30, 2);
            for (const std::string& text : texts)
                bench::DoNotOptimize(formula::parse(text, settings, error));
        },
        [&] { bench::DoNotOptimize(scan(texts)); });
}

}  // namespace

int main() {
    const std::vector<std::string> texts = sums(count);
    bool isGood = parsing("parse formulas", sums(parsedCount));
    isGood &= parsing("parse formulas of 37 characters", mixed());
    isGood &= bench::compare(
        {"set 100,000 formulas", count, "formulas", 1e6, 4e6},
        [&] {
            formula::ParseError error;
            control::Sheet fresh;
            for (int row = 0; row < count; ++row)
                fresh.setFormula(3, row + 2, texts[static_cast<size_t>(row)], error);
            bench::DoNotOptimize(fresh.formulaCount());
        },
        [&] { bench::DoNotOptimize(scan(texts)); });
    return isGood ? 0 : 1;
}
