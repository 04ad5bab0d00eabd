// Bits of whole numbers below 2^48, the two steps, and the error function.

#include <cmath>
#include <cstdint>
#include <limits>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

constexpr double undefined = std::numeric_limits<double>::quiet_NaN();
constexpr double bitsLimit = 281474976710656.0;  // 2^48
constexpr double mostShift = 53;

bool hasBits(double x) {
    return x >= 0 && x < bitsLimit && x == std::trunc(x);
}

template <uint64_t (*combine)(uint64_t, uint64_t)>
double bitwise(double a, double b) {
    if (!hasBits(a) || !hasBits(b)) return undefined;
    return static_cast<double>(combine(static_cast<uint64_t>(a), static_cast<uint64_t>(b)));
}

uint64_t both(uint64_t a, uint64_t b) {
    return a & b;
}
uint64_t either(uint64_t a, uint64_t b) {
    return a | b;
}
uint64_t oneOf(uint64_t a, uint64_t b) {
    return a ^ b;
}

double shiftLeft(double x, double shift) {
    if (!hasBits(x) || std::fabs(shift) > mostShift) return undefined;
    const double result = std::floor(std::ldexp(x, static_cast<int>(shift)));
    return result < bitsLimit ? result : undefined;
}

double shiftRight(double x, double shift) {
    return shiftLeft(x, -shift);
}

double delta(double a, double b) {
    return a == b ? 1 : 0;
}

double step(double x, double threshold) {
    return x >= threshold ? 1 : 0;
}

double errorFunction(double x) {
    return std::erf(x);
}

double complement(double x) {
    return std::erfc(x);
}

Value errorBetween(Calculation& c, std::span<const Value> args) {
    if (args.size() < 2) return unary<errorFunction, strictNumber>(c, args);
    const Result<double> lower = strictNumber(args[0]);
    if (!lower) return lower.error();
    const Result<double> upper = strictNumber(args[1]);
    if (!upper) return upper.error();
    // Far from zero both are nearly 1: what they lack of it has more digits.
    if (*lower > 0 && *upper > 0) return numberOrError(std::erfc(*lower) - std::erfc(*upper));
    return numberOrError(std::erf(*upper) - std::erf(*lower));
}

constexpr FunctionSpec rows[] = {
    {"BITAND", 2, 2, "v", binary<bitwise<both>>, plain, "number1, number2",
     "The bits that both whole numbers have."},
    {"BITOR", 2, 2, "v", binary<bitwise<either>>, plain, "number1, number2",
     "The bits that one of two whole numbers or both have."},
    {"BITXOR", 2, 2, "v", binary<bitwise<oneOf>>, plain, "number1, number2",
     "The bits that just one of two whole numbers has."},
    {"BITLSHIFT", 2, 2, "v", binary<shiftLeft>, plain, "number, places",
     "The bits of a whole number moved to the left; places below 0 move them to the right."},
    {"BITRSHIFT", 2, 2, "v", binary<shiftRight>, plain, "number, places",
     "The bits of a whole number moved to the right; places below 0 move them to the left."},
    {"DELTA", 1, 2, "v", binary<delta, strictNumber>, plain, "number1, [number2]",
     "1 when two numbers are equal, else 0."},
    {"GESTEP", 1, 2, "v", binary<step, strictNumber>, plain, "number, [threshold]",
     "1 when the number reaches the threshold, else 0."},
    {"ERF", 1, 2, "v", errorBetween, plain, "lower, [upper]",
     "The error function from 0 to the number, or between two numbers."},
    {"ERF.PRECISE", 1, 1, "v", unary<errorFunction, strictNumber>, plain, "number",
     "The error function from 0 to the number."},
    {"ERFC", 1, 1, "v", unary<complement, strictNumber>, plain, "number",
     "The error function from the number to infinity."},
    {"ERFC.PRECISE", 1, 1, "v", unary<complement, strictNumber>, plain, "number",
     "The error function from the number to infinity."},
};

}  // namespace

std::span<const FunctionSpec> bitFunctions() {
    return rows;
}

}  // namespace formula
