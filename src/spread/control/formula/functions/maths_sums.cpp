#include <cmath>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"
#include "spread/control/formula/functions/pairs.h"

namespace formula {
namespace {

Value sum(Calculation& c, std::span<const Value> args) {
    double total = 0;
    const auto error = eachNumber(c, args, NonNumbers::ignored, [&](double x, int64_t times = 1) {
        total += x * static_cast<double>(times);
    });
    return error ? Value(*error) : numberOrError(total);
}

Value sumOfSquares(Calculation& c, std::span<const Value> args) {
    double total = 0;
    const auto error = eachNumber(c, args, NonNumbers::ignored, [&](double x, int64_t times = 1) {
        total += x * x * static_cast<double>(times);
    });
    return error ? Value(*error) : numberOrError(total);
}

Value product(Calculation& c, std::span<const Value> args) {
    double total = 1;
    bool isAny = false;
    const auto error = eachNumber(c, args, NonNumbers::ignored, [&](double x) {
        total *= x;
        isAny = true;
    });
    if (error) return *error;
    return numberOrError(isAny ? total : 0);
}

/// The sum of `term` over all pairs of numbers.
template <double (*term)(double, double)>
Value sumOfPairs(Calculation& c, std::span<const Value> args) {
    double total = 0;
    bool isAny = false;
    const auto error = eachPair(c, args[0], args[1], [&](double x, double y) {
        total += term(x, y);
        isAny = true;
    });
    if (error) return *error;
    return isAny ? numberOrError(total) : Value(ErrorCode::div0);
}

double squareMinusSquare(double x, double y) {
    return x * x - y * y;
}
double squarePlusSquare(double x, double y) {
    return x * x + y * y;
}
double differenceSquared(double x, double y) {
    return (x - y) * (x - y);
}

Value seriesSum(Calculation& c, std::span<const Value> args) {
    double numbers[3];
    for (size_t i = 0; i < 3; ++i) {
        const Result<double> number = strictNumber(args[i]);
        if (!number) return number.error();
        numbers[i] = *number;
    }
    const double x = numbers[0];
    const double first = numbers[1];
    const double step = numbers[2];
    const double cols = Calculation::cols(args[3]);
    std::optional<ErrorCode> error;
    double total = 0;
    c.eachAt(args[3], [&](int row, int col, const Value& value) {
        const Result<double> coefficient = strictNumber(value);
        if (!coefficient && !error) error = coefficient.error();
        total += *coefficient * std::pow(x, first + step * (row * cols + col));
    });
    if (error) return *error;
    return numberOrError(total);
}

constexpr FunctionSpec rows[] = {
    {"SUM", 1, anyCount, "a", sum, givesOne, "number1, [number2], …",
     "The sum of all numbers; texts, booleans and empty cells in areas are left out."},
    {"SUMSQ", 1, anyCount, "a", sumOfSquares, plain, "number1, [number2], …",
     "The sum of the squares of all numbers."},
    {"PRODUCT", 1, anyCount, "a", product, plain, "number1, [number2], …",
     "All numbers multiplied; 0 when there is none."},
    {"SUMX2MY2", 2, 2, "a", sumOfPairs<squareMinusSquare>, plain, "x values, y values",
     "The sum of x^2 - y^2 over all pairs."},
    {"SUMX2PY2", 2, 2, "a", sumOfPairs<squarePlusSquare>, plain, "x values, y values",
     "The sum of x^2 + y^2 over all pairs."},
    {"SUMXMY2", 2, 2, "a", sumOfPairs<differenceSquared>, plain, "x values, y values",
     "The sum of (x - y)^2 over all pairs."},
    {"SERIESSUM", 4, 4, "vvva", seriesSum, plain, "x, first exponent, step, coefficients",
     "The power series of x with these coefficients; the exponent grows by the step."},
};

}  // namespace

std::span<const FunctionSpec> sumFunctions() {
    return rows;
}

}  // namespace formula
