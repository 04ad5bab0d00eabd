// Two sets of numbers side by side: covariance, correlation and the straight line through them.

#include <cmath>
#include <vector>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"
#include "spread/control/formula/functions/pairs.h"

namespace formula {
namespace {

struct Moments {
    double n = 0;
    double meanX = 0, meanY = 0;
    double xx = 0, yy = 0, xy = 0;  // sums of products of the distances from the means
};

Moments momentsOf(const std::vector<std::pair<double, double>>& pairs) {
    Moments m;
    m.n = static_cast<double>(pairs.size());
    for (const auto& [x, y] : pairs) {
        m.meanX += x;
        m.meanY += y;
    }
    m.meanX /= m.n;
    m.meanY /= m.n;
    for (const auto& [x, y] : pairs) {
        m.xx += (x - m.meanX) * (x - m.meanX);
        m.yy += (y - m.meanY) * (y - m.meanY);
        m.xy += (x - m.meanX) * (y - m.meanY);
    }
    return m;
}

/// The moments of the pairs of `xs` and `ys`, or the error that stands in their way: #DIV/0! for
/// less than `least` pairs.
Result<Moments> readMoments(const Calculation& c, const Value& xs, const Value& ys, size_t least) {
    std::vector<std::pair<double, double>> pairs;
    const auto error = eachPair(c, xs, ys, [&](double x, double y) { pairs.emplace_back(x, y); });
    if (error) return *error;
    if (pairs.size() < least) return ErrorCode::div0;
    return momentsOf(pairs);
}

using OfMoments = Value (*)(const Moments&);

/// The known y come first, as in SLOPE(y, x); where the order does not matter it is the same.
template <OfMoments compute, size_t least>
Value ofPairs(Calculation& c, std::span<const Value> args) {
    const Result<Moments> moments = readMoments(c, args[1], args[0], least);
    return moments ? compute(*moments) : Value(moments.error());
}

Value covariance(const Moments& m) {
    return numberOrError(m.xy / m.n);
}
Value sampleCovariance(const Moments& m) {
    return numberOrError(m.xy / (m.n - 1));
}
Value correlation(const Moments& m) {
    const double scale = std::sqrt(m.xx) * std::sqrt(m.yy);
    return scale > 0 ? numberOrError(m.xy / scale) : Value(ErrorCode::div0);
}
Value determination(const Moments& m) {
    const Value r = correlation(m);
    return r.isNumber() ? Value(r.number() * r.number()) : r;
}
Value slope(const Moments& m) {
    return m.xx > 0 ? numberOrError(m.xy / m.xx) : Value(ErrorCode::div0);
}
Value intercept(const Moments& m) {
    return m.xx > 0 ? numberOrError(m.meanY - m.xy / m.xx * m.meanX) : Value(ErrorCode::div0);
}
Value standardError(const Moments& m) {
    if (!(m.xx > 0)) return ErrorCode::div0;
    const double rest = m.yy - m.xy * m.xy / m.xx;
    return numberOrError(std::sqrt(std::max(rest, 0.0) / (m.n - 2)));
}

Value forecast(Calculation& c, std::span<const Value> args) {
    const Result<double> x = numberOf(args[0]);
    if (!x) return x.error();
    const Result<Moments> m = readMoments(c, args[2], args[1], 1);
    if (!m) return m.error();
    if (!(m->xx > 0)) return ErrorCode::div0;
    return numberOrError(m->meanY + m->xy / m->xx * (*x - m->meanX));
}

constexpr FunctionSpec rows[] = {
    {"COVARIANCE.P", 2, 2, "a", ofPairs<covariance, 1>, plain, "values1, values2",
     "The covariance of two whole populations."},
    {"COVARIANCE.S", 2, 2, "a", ofPairs<sampleCovariance, 2>, plain, "values1, values2",
     "The covariance of two populations, estimated from samples."},
    {"COVAR", 2, 2, "a", ofPairs<covariance, 1>, plain, "values1, values2",
     "The covariance of two whole populations."},
    {"CORREL", 2, 2, "a", ofPairs<correlation, 1>, plain, "values1, values2",
     "How closely two sets of numbers go together, from -1 to 1."},
    {"PEARSON", 2, 2, "a", ofPairs<correlation, 1>, plain, "values1, values2",
     "How closely two sets of numbers go together, from -1 to 1."},
    {"RSQ", 2, 2, "a", ofPairs<determination, 1>, plain, "y values, x values",
     "The square of the correlation."},
    {"SLOPE", 2, 2, "a", ofPairs<slope, 1>, plain, "y values, x values",
     "The slope of the straight line that fits the points best."},
    {"INTERCEPT", 2, 2, "a", ofPairs<intercept, 1>, plain, "y values, x values",
     "Where the straight line that fits the points best meets the y axis."},
    {"FORECAST", 3, 3, "vaa", forecast, plain, "x, y values, x values",
     "The y at x on the straight line that fits the points best."},
    {"FORECAST.LINEAR", 3, 3, "vaa", forecast, plain, "x, y values, x values",
     "The y at x on the straight line that fits the points best."},
    {"STEYX", 2, 2, "a", ofPairs<standardError, 3>, plain, "y values, x values",
     "The standard error of the y that the best straight line gives."},
};

}  // namespace

std::span<const FunctionSpec> pairFunctions() {
    return rows;
}

}  // namespace formula
