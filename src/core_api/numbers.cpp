#include "core_api/numbers.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace {

constexpr double exactLimit = 9007199254740992.0;  // 2^53: whole numbers below it are exact

// A step as people write it: units / scale, scale a power of ten (0.05 is 5 / 100). Multiples made
// from it are one exact product and one division, so they never drift.
struct DecimalStep {
    double units = 0;
    double scale = 1;
};

std::optional<DecimalStep> decimalStep(double step) {
    double scale = 1;
    for (int decimals = 0; decimals <= 12; ++decimals, scale *= 10) {
        const double units = std::nearbyint(step * scale);
        if (units > 0 && units < 1e12 && units / scale == step) return DecimalStep{units, scale};
    }
    return std::nullopt;
}

// count * step. The plain product is all there is for steps like 1/3 or beyond exact range.
double multiple(double count, double step, const std::optional<DecimalStep>& decimal) {
    const double product = decimal ? count * decimal->units : exactLimit;
    if (std::fabs(product) >= exactLimit) return count * step + 0.0;
    return product / decimal->scale + 0.0;  // + 0.0: never -0
}

}  // namespace

double ObjectExportRoundTo(double value, double step) {
    if (!(step > 0) || !std::isfinite(step) || !std::isfinite(value)) return value;
    const double magnitude = std::fabs(value);
    const auto decimal = decimalStep(step);
    double count = std::floor(magnitude / step);
    if (!std::isfinite(count)) return value;
    // The tie above `count` as the nearest double: `value` is written as the tie, or above it,
    // exactly when it is not below that double.
    const double tie = decimal ? ((2 * count + 1) * decimal->units * 5) / (decimal->scale * 10)
                               : (count + 0.5) * step;
    if (magnitude >= tie) ++count;
    return multiple(std::copysign(count, value), step, decimal);
}

double ObjectExportRoundUp(double value, double step, double /*upTolerance*/) {
    if (!(step > 0) || !std::isfinite(step) || !std::isfinite(value)) return value;
    const double count = std::ceil(value / step - 1e-9);
    return std::isfinite(count) ? multiple(count, step, decimalStep(step)) : value;
}

void ObjectExportSort(Vor_Array<double>& numbers, Vor_Array<int>& indexes) {
    indexes.setLength(numbers.length());
    std::iota(indexes.begin(), indexes.end(), 0);
    std::stable_sort(indexes.begin(), indexes.end(), [&](int a, int b) {
        const double x = numbers[a];
        const double y = numbers[b];
        return x < y || (std::isnan(y) && !std::isnan(x));
    });
    Vor_Array<double> sorted;
    sorted.reserve(numbers.length());
    for (const int index : indexes) sorted.append(numbers[index]);
    numbers = std::move(sorted);
}
