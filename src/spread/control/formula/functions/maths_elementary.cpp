#include <cmath>
#include <limits>
#include <numbers>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"
#include "spread/control/formula/functions/rounding.h"

namespace formula {
namespace {

constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

double magnitude(double x) {
    return std::fabs(x);
}

double sign(double x) {
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

double squareRoot(double x) {
    return std::sqrt(x);
}

double squareRootOfPi(double x) {
    return std::sqrt(x * std::numbers::pi);
}

Value power(double base, double exponent) {
    if (base == 0 && exponent == 0) return ErrorCode::num;
    if (base == 0 && exponent < 0) return ErrorCode::div0;
    return numberOrError(std::pow(base, exponent));
}

double exponential(double x) {
    return std::exp(x);
}

double naturalLogarithm(double x) {
    return x > 0 ? std::log(x) : undefined;
}

double decimalLogarithm(double x) {
    return x > 0 ? std::log10(x) : undefined;
}

Value logarithm(double x, double base) {
    if (x <= 0 || base <= 0) return ErrorCode::num;
    if (base == 1) return ErrorCode::div0;
    // The quotient of two logarithms misses whole results by a bit: LOG(1000) must be 3.
    if (base == 10) return numberOrError(std::log10(x));
    if (base == 2) return numberOrError(std::log2(x));
    return numberOrError(std::log(x) / std::log(base));
}

Value pi(Calculation&, std::span<const Value>) {
    return std::numbers::pi;
}

Value random(Calculation& c, std::span<const Value>) {
    return c.random();
}

Value randomBetween(Calculation& c, std::span<const Value> args) {
    const Result<double> bottom = strictNumber(args[0]);
    if (!bottom) return bottom.error();
    const Result<double> top = strictNumber(args[1]);
    if (!top) return top.error();
    const double first = std::ceil(*bottom);
    const double last = std::floor(*top);
    if (first > last) return ErrorCode::num;
    return numberOrError(first + std::floor(c.random() * (last - first + 1)));
}

constexpr FunctionSpec rows[] = {
    {"ABS", 1, 1, "v", unary<magnitude>, plain, "number", "The number without its sign."},
    {"SIGN", 1, 1, "v", unary<sign>, plain, "number",
     "1 for a positive number, -1 for a negative one, 0 for zero."},
    {"SQRT", 1, 1, "v", unary<squareRoot>, plain, "number",
     "The square root; #NUM! for a negative number."},
    {"SQRTPI", 1, 1, "v", unary<squareRootOfPi, strictNumber>, plain, "number",
     "The square root of the number times pi."},
    {"POWER", 2, 2, "v", binary<power>, plain, "number, exponent",
     "The number raised to a power, as number^exponent."},
    {"EXP", 1, 1, "v", unary<exponential>, plain, "number", "e raised to the power of the number."},
    {"LN", 1, 1, "v", unary<naturalLogarithm>, plain, "number",
     "The natural logarithm of a positive number."},
    {"LOG", 1, 2, "v", binary<logarithm, numberOf, 10>, plain, "number, [base]",
     "The logarithm of a positive number to a base, 10 when none is given."},
    {"LOG10", 1, 1, "v", unary<decimalLogarithm>, plain, "number",
     "The logarithm of a positive number to base 10."},
    {"PI", 0, 0, "", pi, plain, "", "The number pi, 3.14159265358979."},
    {"RAND", 0, 0, "", random, isVolatile, "",
     "A random number from 0 up to but not including 1, new at every calculation."},
    {"RANDBETWEEN", 2, 2, "v", randomBetween, isVolatile, "bottom, top",
     "A random whole number from bottom to top, both included, new at every calculation."},
};

}  // namespace

std::span<const FunctionSpec> elementaryFunctions() {
    return rows;
}

}  // namespace formula
