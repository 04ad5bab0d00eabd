#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <optional>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

constexpr double undefined = std::numeric_limits<double>::quiet_NaN();
constexpr double exactLimit = 9007199254740992.0;  // 2^53: whole numbers above are not all stored

double factorial(double x) {
    const double n = std::trunc(x);
    if (n < 0 || n > 170) return undefined;
    double result = 1;
    for (double factor = 2; factor <= n; ++factor) result *= factor;
    return result;
}

double doubleFactorial(double x) {
    const double n = std::trunc(x);
    if (n < 0 || n > 300) return undefined;
    double result = 1;
    for (double factor = n; factor > 1; factor -= 2) result *= factor;
    return result;
}

/// n over k, for whole n >= k >= 0. Every product on the way is a whole number and exact as long as
/// it is below 2^53. The loop is short: with more than some 1030 steps the result overflows.
double binomial(double n, double k) {
    k = std::min(k, n - k);
    double result = 1;
    for (double i = 1; i <= k && std::isfinite(result); ++i) result = result * (n - k + i) / i;
    return result < exactLimit ? std::round(result) : result;
}

double combinations(double number, double chosen) {
    const double n = std::trunc(number);
    const double k = std::trunc(chosen);
    return k < 0 || n < k ? undefined : binomial(n, k);
}

double combinationsWithRepetition(double number, double chosen) {
    const double n = std::trunc(number);
    const double k = std::trunc(chosen);
    if (n < 0 || k < 0 || (n == 0 && k > 0)) return undefined;
    return k == 0 ? 1 : binomial(n + k - 1, k);
}

double permutations(double number, double chosen) {
    const double n = std::trunc(number);
    const double k = std::trunc(chosen);
    if (k < 0 || n < k) return undefined;
    double result = 1;
    for (double i = 0; i < k && std::isfinite(result); ++i) result *= n - i;
    return result;
}

double permutationsWithRepetition(double number, double chosen) {
    const double n = std::trunc(number);
    const double k = std::trunc(chosen);
    return n < 0 || k < 0 ? undefined : std::pow(n, k);
}

/// Calls add(n) for every argument and cell that is not empty, cut to a whole number. These
/// functions read texts in cells too; booleans and numbers below 0 or above 2^53 are refused.
template <class Add>
std::optional<ErrorCode> eachWholeNumber(const Calculation& c, std::span<const Value> args,
                                         Add&& add) {
    std::optional<ErrorCode> error;
    const auto visit = [&](const Value& value) {
        if (error || value.isEmpty()) return;
        const Result<double> number = strictNumber(value);
        if (!number)
            error = number.error();
        else if (*number < 0 || *number >= exactLimit)
            error = ErrorCode::num;
        else
            add(std::trunc(*number));
    };
    for (const Value& argument : args) {
        c.each(argument, visit);
        if (error) break;
    }
    return error;
}

template <double (*combine)(double, double)>
Value combined(Calculation& c, std::span<const Value> args) {
    std::optional<double> result;
    const auto error = eachWholeNumber(c, args, [&](double n) {
        if (!result)
            result = n;
        else if (*result < exactLimit)
            result = combine(*result, n);
    });
    if (error) return *error;
    return result.value_or(0) < exactLimit ? Value(result.value_or(0)) : Value(ErrorCode::num);
}

double greatestDivisor(double a, double b) {
    return static_cast<double>(std::gcd(static_cast<int64_t>(a), static_cast<int64_t>(b)));
}

double leastMultiple(double a, double b) {
    return a == 0 || b == 0 ? 0 : a / greatestDivisor(a, b) * b;
}

Value multinomial(Calculation& c, std::span<const Value> args) {
    double total = 0;
    double result = 1;
    const auto error = eachWholeNumber(c, args, [&](double n) {
        total += n;
        if (std::isfinite(result)) result *= binomial(total, n);
    });
    return error ? Value(*error) : numberOrError(result);
}

constexpr FunctionSpec rows[] = {
    {"FACT", 1, 1, "v", unary<factorial>, plain, "number",
     "The factorial 1 * 2 * … * number, up to 170."},
    {"FACTDOUBLE", 1, 1, "v", unary<doubleFactorial, strictNumber>, plain, "number",
     "The double factorial number * (number - 2) * (number - 4) * …."},
    {"COMBIN", 2, 2, "v", binary<combinations>, plain, "number, chosen",
     "In how many ways some of a number of things can be chosen."},
    {"COMBINA", 2, 2, "v", binary<combinationsWithRepetition>, plain, "number, chosen",
     "In how many ways some of a number of things can be chosen when each may be chosen again."},
    {"PERMUT", 2, 2, "v", binary<permutations>, plain, "number, chosen",
     "In how many orders some of a number of things can be chosen."},
    {"PERMUTATIONA", 2, 2, "v", binary<permutationsWithRepetition>, plain, "number, chosen",
     "In how many orders some of a number of things can be chosen when each may be chosen again."},
    {"GCD", 1, anyCount, "r", combined<greatestDivisor>, plain, "number1, [number2], …",
     "The greatest common divisor of whole numbers."},
    {"LCM", 1, anyCount, "r", combined<leastMultiple>, plain, "number1, [number2], …",
     "The least common multiple of whole numbers."},
    {"MULTINOMIAL", 1, anyCount, "r", multinomial, plain, "number1, [number2], …",
     "The factorial of the sum divided by the product of the factorials."},
};

}  // namespace

std::span<const FunctionSpec> wholeNumberFunctions() {
    return rows;
}

}  // namespace formula
