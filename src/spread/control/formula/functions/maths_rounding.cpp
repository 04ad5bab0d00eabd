#include <algorithm>
#include <cmath>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"
#include "spread/control/formula/functions/rounding.h"

namespace formula {
namespace {

template <double (*round)(double, int)>
double toDecimals(double x, double decimals) {
    return round(x, static_cast<int>(std::clamp(decimals, -400.0, 400.0)));
}

/// The multiple of `step` that `whole` chooses for x / step.
template <double (*whole)(double)>
double toMultiple(double x, double step) {
    return whole(x / step) * step;
}

Value ceiling(double x, double step) {
    if (x == 0 || step == 0) return 0.0;
    if (x > 0 && step < 0) return ErrorCode::num;
    return numberOrError(toMultiple<wholeAbove>(x, step));
}

Value floor(double x, double step) {
    if (x == 0) return 0.0;
    if (step == 0) return ErrorCode::div0;
    if (x > 0 && step < 0) return ErrorCode::num;
    return numberOrError(toMultiple<wholeBelow>(x, step));
}

double ceilingPrecise(double x, double step) {
    return x == 0 || step == 0 ? 0 : toMultiple<wholeAbove>(x, std::fabs(step));
}

double floorPrecise(double x, double step) {
    return x == 0 || step == 0 ? 0 : toMultiple<wholeBelow>(x, std::fabs(step));
}

/// `toward` for every number; with a third argument other than 0 negative numbers go the other way.
template <double (*toward)(double, double), double (*otherWay)(double, double)>
Value withMode(Calculation&, std::span<const Value> args) {
    const Result<double> x = numberOf(args[0]);
    if (!x) return x.error();
    const bool hasStep = args.size() > 1 && !args[1].isMissing();
    const Result<double> step = hasStep ? numberOf(args[1]) : Result<double>(1);
    if (!step) return step.error();
    const Result<double> mode = args.size() > 2 ? numberOf(args[2]) : Result<double>(0);
    if (!mode) return mode.error();
    return numberOrError(*x < 0 && *mode != 0 ? otherWay(*x, *step) : toward(*x, *step));
}

Value roundToMultiple(double x, double step) {
    if (x == 0 || step == 0) return 0.0;
    if ((x < 0) != (step < 0)) return ErrorCode::num;
    return numberOrError(toMultiple<wholeNearest>(x, step));
}

double even(double x) {
    return std::copysign(2 * wholeAbove(std::fabs(x) / 2), x);
}

double odd(double x) {
    const double magnitude = std::fabs(x);
    if (magnitude <= 1) return x < 0 ? -1 : 1;
    return std::copysign(2 * wholeAbove((magnitude - 1) / 2) + 1, x);
}

Value modulo(double x, double divisor) {
    if (divisor == 0) return ErrorCode::div0;
    const double quotient = x / divisor;
    const bool isWhole = x == std::trunc(x) && divisor == std::trunc(divisor);
    // 1 / 0.1 is 10 as written, so nothing is left, though 0.1 is stored a little above 0.1.
    if (!isWhole && std::fabs(quotient) < rounding::noFraction) {
        const double nearest = wholeNearest(quotient);
        if (nearest != 0 && wholeBelow(quotient) == nearest && wholeAbove(quotient) == nearest)
            return 0.0;
    }
    const double remainder = std::fmod(x, divisor);
    const bool mustTurn = remainder != 0 && (remainder < 0) != (divisor < 0);
    return numberOrError(mustTurn ? remainder + divisor : remainder);
}

Value quotient(double x, double divisor) {
    if (divisor == 0) return ErrorCode::div0;
    return numberOrError(roundTowardZero(x / divisor, 0));
}

constexpr FunctionSpec rows[] = {
    {"ROUND", 1, 2, "v", binary<toDecimals<roundHalfAway>>, plain, "number, [decimals]",
     "The number rounded to that many decimals, halves away from zero; decimals below 0 round to "
     "tens, hundreds and so on."},
    {"ROUNDUP", 1, 2, "v", binary<toDecimals<roundAwayFromZero>>, plain, "number, [decimals]",
     "The number rounded away from zero to that many decimals."},
    {"ROUNDDOWN", 1, 2, "v", binary<toDecimals<roundTowardZero>>, plain, "number, [decimals]",
     "The number rounded toward zero to that many decimals."},
    {"TRUNC", 1, 2, "v", binary<toDecimals<roundTowardZero>>, plain, "number, [decimals]",
     "The number cut off after that many decimals, none when not given."},
    {"INT", 1, 1, "v", unary<wholeBelow>, plain, "number",
     "The whole number at or below the number."},
    {"MROUND", 2, 2, "v", binary<roundToMultiple, strictNumber>, plain, "number, multiple",
     "The number rounded to the nearest multiple; both must have the same sign."},
    {"CEILING", 2, 2, "v", binary<ceiling>, plain, "number, step",
     "The number rounded up to a multiple of the step; with a negative step a negative number is "
     "rounded away from zero."},
    {"FLOOR", 2, 2, "v", binary<floor>, plain, "number, step",
     "The number rounded down to a multiple of the step; with a negative step a negative number is "
     "rounded toward zero."},
    {"CEILING.MATH", 1, 3, "v", withMode<ceilingPrecise, floorPrecise>, plain,
     "number, [step], [mode]",
     "The number rounded up to a multiple of the step; mode other than 0 rounds negative numbers "
     "away from zero."},
    {"FLOOR.MATH", 1, 3, "v", withMode<floorPrecise, ceilingPrecise>, plain,
     "number, [step], [mode]",
     "The number rounded down to a multiple of the step; mode other than 0 rounds negative numbers "
     "toward zero."},
    {"CEILING.PRECISE", 1, 2, "v", binary<ceilingPrecise, numberOf, 1>, plain, "number, [step]",
     "The number rounded up to a multiple of the step, whose sign does not matter."},
    {"ISO.CEILING", 1, 2, "v", binary<ceilingPrecise, numberOf, 1>, plain, "number, [step]",
     "The number rounded up to a multiple of the step, whose sign does not matter."},
    {"FLOOR.PRECISE", 1, 2, "v", binary<floorPrecise, numberOf, 1>, plain, "number, [step]",
     "The number rounded down to a multiple of the step, whose sign does not matter."},
    {"EVEN", 1, 1, "v", unary<even>, plain, "number",
     "The number rounded away from zero to an even whole number."},
    {"ODD", 1, 1, "v", unary<odd>, plain, "number",
     "The number rounded away from zero to an odd whole number."},
    {"MOD", 2, 2, "v", binary<modulo>, plain, "number, divisor",
     "What is left of the number after division; it has the sign of the divisor."},
    {"QUOTIENT", 2, 2, "v", binary<quotient, strictNumber>, plain, "number, divisor",
     "The whole part of a division."},
};

}  // namespace

std::span<const FunctionSpec> roundingFunctions() {
    return rows;
}

}  // namespace formula
