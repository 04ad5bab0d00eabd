// What a set of numbers comes to as a whole: averages, variances and the shape of its distribution.

#include <cmath>
#include <numeric>
#include <vector>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

template <NonNumbers nonNumbers>
Value average(Calculation& c, std::span<const Value> args) {
    double sum = 0;
    double count = 0;
    const auto error = eachNumber(c, args, nonNumbers, [&](double x, int64_t times = 1) {
        sum += x * static_cast<double>(times);
        count += static_cast<double>(times);
    });
    if (error) return *error;
    return count > 0 ? numberOrError(sum / count) : Value(ErrorCode::div0);
}

using Numbers = std::vector<double>;

double mean(const Numbers& numbers) {
    const auto count = static_cast<double>(numbers.size());
    const double mean = std::accumulate(numbers.begin(), numbers.end(), 0.0) / count;
    // What rounding left over is small against the numbers, but not against their distances.
    double rest = 0;
    for (const double x : numbers) rest += x - mean;
    return mean + rest / count;
}

/// The sum of (x - mean)^power.
double centralSum(const Numbers& numbers, int power) {
    const double center = mean(numbers);
    double sum = 0;
    for (const double x : numbers) {
        const double distance = x - center;
        double term = distance;
        for (int i = 1; i < power; ++i) term *= distance;
        sum += term;
    }
    return sum;
}

/// A function of all numbers at once.
template <Value (*compute)(const Numbers&), NonNumbers nonNumbers = NonNumbers::ignored>
Value ofNumbers(Calculation& c, std::span<const Value> args) {
    Numbers numbers;
    if (const auto error = collectNumbers(c, args, numbers, nonNumbers)) return *error;
    return compute(numbers);
}

Value sampleVariance(const Numbers& numbers) {
    if (numbers.size() < 2) return ErrorCode::div0;
    return numberOrError(centralSum(numbers, 2) / static_cast<double>(numbers.size() - 1));
}

Value variance(const Numbers& numbers) {
    if (numbers.empty()) return ErrorCode::div0;
    return numberOrError(centralSum(numbers, 2) / static_cast<double>(numbers.size()));
}

template <Value (*square)(const Numbers&)>
Value rootOf(const Numbers& numbers) {
    const Value result = square(numbers);
    return result.isNumber() ? Value(std::sqrt(result.number())) : result;
}

Value squaredDeviations(const Numbers& numbers) {
    return numbers.empty() ? Value(ErrorCode::num) : numberOrError(centralSum(numbers, 2));
}

Value averageDeviation(const Numbers& numbers) {
    if (numbers.empty()) return ErrorCode::num;
    const double center = mean(numbers);
    double sum = 0;
    for (const double x : numbers) sum += std::fabs(x - center);
    return numberOrError(sum / static_cast<double>(numbers.size()));
}

Value geometricMean(const Numbers& numbers) {
    double sum = 0;  // of logarithms: the product itself soon overflows
    for (const double x : numbers) {
        if (x <= 0) return ErrorCode::num;
        sum += std::log(x);
    }
    if (numbers.empty()) return ErrorCode::num;
    return numberOrError(std::exp(sum / static_cast<double>(numbers.size())));
}

Value harmonicMean(const Numbers& numbers) {
    double sum = 0;
    for (const double x : numbers) {
        if (x <= 0) return ErrorCode::num;
        sum += 1 / x;
    }
    if (numbers.empty()) return ErrorCode::num;
    return numberOrError(static_cast<double>(numbers.size()) / sum);
}

Value skewness(const Numbers& numbers) {
    const auto n = static_cast<double>(numbers.size());
    if (n < 3) return ErrorCode::div0;
    const double deviation = std::sqrt(centralSum(numbers, 2) / (n - 1));
    if (deviation == 0) return ErrorCode::div0;
    const double cubes = centralSum(numbers, 3) / (deviation * deviation * deviation);
    return numberOrError(cubes * n / ((n - 1) * (n - 2)));
}

Value kurtosis(const Numbers& numbers) {
    const auto n = static_cast<double>(numbers.size());
    if (n < 4) return ErrorCode::div0;
    const double square = centralSum(numbers, 2) / (n - 1);
    if (square == 0) return ErrorCode::div0;
    const double fourths = centralSum(numbers, 4) / (square * square);
    const double scale = n * (n + 1) / ((n - 1) * (n - 2) * (n - 3));
    return numberOrError(scale * fourths - 3 * (n - 1) * (n - 1) / ((n - 2) * (n - 3)));
}

Value standardize(Calculation&, std::span<const Value> args) {
    const Result<double> x = numberOf(args[0]);
    if (!x) return x.error();
    const Result<double> center = numberOf(args[1]);
    if (!center) return center.error();
    const Result<double> deviation = numberOf(args[2]);
    if (!deviation) return deviation.error();
    if (*deviation <= 0) return ErrorCode::num;
    return numberOrError((*x - *center) / *deviation);
}

constexpr auto counted = NonNumbers::counted;
constexpr std::string_view numbers = "number1, [number2], …";
constexpr std::string_view values = "value1, [value2], …";

constexpr FunctionSpec rows[] = {
    {"AVERAGE", 1, anyCount, "a", average<NonNumbers::ignored>, givesOne, numbers,
     "The average of all numbers."},
    {"AVERAGEA", 1, anyCount, "a", average<counted>, plain, values,
     "The average of all values; texts count as 0, TRUE as 1."},
    {"VAR.S", 1, anyCount, "a", ofNumbers<sampleVariance>, plain, numbers,
     "The variance of a population, estimated from a sample."},
    {"VAR", 1, anyCount, "a", ofNumbers<sampleVariance>, plain, numbers,
     "The variance of a population, estimated from a sample."},
    {"VARA", 1, anyCount, "a", ofNumbers<sampleVariance, counted>, plain, values,
     "As VAR; texts count as 0, TRUE as 1."},
    {"VAR.P", 1, anyCount, "a", ofNumbers<variance>, plain, numbers,
     "The variance of a whole population."},
    {"VARP", 1, anyCount, "a", ofNumbers<variance>, plain, numbers,
     "The variance of a whole population."},
    {"VARPA", 1, anyCount, "a", ofNumbers<variance, counted>, plain, values,
     "As VARP; texts count as 0, TRUE as 1."},
    {"STDEV.S", 1, anyCount, "a", ofNumbers<rootOf<sampleVariance>>, plain, numbers,
     "The standard deviation of a population, estimated from a sample."},
    {"STDEV", 1, anyCount, "a", ofNumbers<rootOf<sampleVariance>>, plain, numbers,
     "The standard deviation of a population, estimated from a sample."},
    {"STDEVA", 1, anyCount, "a", ofNumbers<rootOf<sampleVariance>, counted>, plain, values,
     "As STDEV; texts count as 0, TRUE as 1."},
    {"STDEV.P", 1, anyCount, "a", ofNumbers<rootOf<variance>>, plain, numbers,
     "The standard deviation of a whole population."},
    {"STDEVP", 1, anyCount, "a", ofNumbers<rootOf<variance>>, plain, numbers,
     "The standard deviation of a whole population."},
    {"STDEVPA", 1, anyCount, "a", ofNumbers<rootOf<variance>, counted>, plain, values,
     "As STDEVP; texts count as 0, TRUE as 1."},
    {"DEVSQ", 1, anyCount, "a", ofNumbers<squaredDeviations>, plain, numbers,
     "The sum of the squared distances from the average."},
    {"AVEDEV", 1, anyCount, "a", ofNumbers<averageDeviation>, plain, numbers,
     "The average distance from the average."},
    {"GEOMEAN", 1, anyCount, "a", ofNumbers<geometricMean>, plain, numbers,
     "The geometric mean of positive numbers."},
    {"HARMEAN", 1, anyCount, "a", ofNumbers<harmonicMean>, plain, numbers,
     "The harmonic mean of positive numbers."},
    {"SKEW", 1, anyCount, "a", ofNumbers<skewness>, plain, numbers,
     "How much the distribution leans to one side of its average."},
    {"KURT", 1, anyCount, "a", ofNumbers<kurtosis>, plain, numbers,
     "How peaked the distribution is, compared with the normal one."},
    {"STANDARDIZE", 3, 3, "v", standardize, plain, "x, average, standard deviation",
     "The distance from the average in standard deviations."},
};

}  // namespace

std::span<const FunctionSpec> averageFunctions() {
    return rows;
}

}  // namespace formula
