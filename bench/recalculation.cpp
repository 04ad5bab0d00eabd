// 100,000 formulas, each a product plus a SUM over ten cells, as a chain (each reads the one
// above) and wide (each reads plain cells): all of them, and after one changed input.
// The floor is the same arithmetic over plain arrays of doubles.
#include <numeric>
#include <vector>

#include "bench/claim.h"
#include "spread/control/sheet.h"

namespace {

constexpr int count = 100'000;
using control::Sheet;
using formula::Value;

// Columns: A inputs, B factors, C the formulas; D holds what is summed.
void fill(Sheet& sheet, bool chain) {
    for (int row = 1; row <= count + 10; ++row) {
        sheet.setValue(1, row, Value(1.0 / row));
        sheet.setValue(2, row, Value(0.5));
        sheet.setValue(4, row, Value(0.001 * (row % 7)));
    }
    formula::ParseError error;
    sheet.setValue(3, 1, Value(1.0));
    for (int row = 2; row <= count; ++row) {
        const std::string r = std::to_string(row);
        const std::string first = chain ? "C" + std::to_string(row - 1) : "A" + r;
        sheet.setFormula(
            3, row, first + "*B" + r + "+SUM(D" + r + ":D" + std::to_string(row + 9) + ")", error);
    }
}

struct Plain {
    std::vector<double> a, b, c, d;
    explicit Plain() : a(count + 12), b(count + 12), c(count + 12), d(count + 12) {
        for (size_t i = 1; i < a.size(); ++i) {
            a[i] = 1.0 / static_cast<double>(i);
            b[i] = 0.5;
            d[i] = 0.001 * static_cast<double>(i % 7);
        }
        c[1] = 1;
    }
    void run(bool chain) {
        for (size_t i = 2; i <= count; ++i)
            c[i] = (chain ? c[i - 1] : a[i]) * b[i] + std::accumulate(&d[i], &d[i] + 10, 0.0);
        bench::DoNotOptimize(c.data());
    }
};

bool allFormulas(bool chain, double must, double aim) {
    Sheet sheet;
    fill(sheet, chain);
    Plain plain;
    return bench::compare(
        {chain ? "recalculate 100,000, chain" : "recalculate 100,000, wide", count, "cells", must,
         aim},
        [&] { sheet.recalculate(); }, [&] { plain.run(chain); });
}

// One input that 100,000 formulas read, then one that 10 read.
bool oneInput(int dependents, double mustSeconds, double aimSeconds) {
    Sheet sheet;
    formula::ParseError error;
    for (int row = 1; row <= count; ++row) {
        sheet.setValue(2, row, Value(0.5));
        sheet.setFormula(3, row, (row <= dependents ? "$A$1*B" : "$A$2*B") + std::to_string(row),
                         error);
    }
    sheet.setAutomatic(true);
    std::vector<double> b(count, 0.5), c(count);
    double x = 0;
    return bench::compare(
        {"one input, " + std::to_string(dependents) + " dependents", 1, "changes", 1 / mustSeconds,
         1 / aimSeconds},
        [&] { sheet.setValue(1, 1, Value(++x)); },
        [&] {
            for (int i = 0; i < dependents; ++i)
                c[static_cast<size_t>(i)] = x * b[static_cast<size_t>(i)];
            bench::DoNotOptimize(c.data());
        });
}

}  // namespace

int main() {
    bool isGood = allFormulas(true, 20e6, 40e6);
    isGood &= allFormulas(false, 40e6, 50e6);
    isGood &= oneInput(count, 10e-3, 4e-3);
    isGood &= oneInput(10, 20e-6, 4e-6);
    return isGood ? 0 : 1;
}
