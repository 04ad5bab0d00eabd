#include <cmath>
#include <limits>
#include <numbers>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/families.h"

namespace formula {
namespace {

using std::numbers::pi;

constexpr double undefined = std::numeric_limits<double>::quiet_NaN();
constexpr double greatestAngle = 134217728;  // 2^27: the programs refuse angles from here on

/// `compute` for an angle that is not too great, else #NUM!.
template <double (*compute)(double)>
double ofAngle(double x) {
    return std::fabs(x) < greatestAngle ? compute(x) : undefined;
}

/// 1 / compute(x); #DIV/0! where that is 0, 0 where it overflows.
template <double (*compute)(double)>
Value inverse(double x) {
    const double y = compute(x);
    return y == 0 ? Value(ErrorCode::div0) : numberOrError(1 / y);
}

double sine(double x) {
    return std::sin(x);
}
double cosine(double x) {
    return std::cos(x);
}
double tangent(double x) {
    return std::tan(x);
}
double hyperbolicSine(double x) {
    return std::sinh(x);
}
double hyperbolicCosine(double x) {
    return std::cosh(x);
}
double hyperbolicTangent(double x) {
    return std::tanh(x);
}
double arcSine(double x) {
    return std::asin(x);
}
double arcCosine(double x) {
    return std::acos(x);
}
double arcTangent(double x) {
    return std::atan(x);
}
double areaSine(double x) {
    return std::asinh(x);
}
double areaCosine(double x) {
    return std::acosh(x);
}
double areaTangent(double x) {
    return std::atanh(x);
}

/// From 0 to pi.
double arcCotangent(double x) {
    if (x == 0) return pi / 2;
    return x > 0 ? std::atan(1 / x) : pi + std::atan(1 / x);
}

double areaCotangent(double x) {
    return std::fabs(x) > 1 ? std::atanh(1 / x) : undefined;
}

/// x comes first in spreadsheets.
Value arcTangentOfTwo(double x, double y) {
    return x == 0 && y == 0 ? Value(ErrorCode::div0) : numberOrError(std::atan2(y, x));
}

double degrees(double radians) {
    return radians / pi * 180;
}
double radians(double degrees) {
    return degrees / 180 * pi;
}

constexpr FunctionSpec rows[] = {
    {"SIN", 1, 1, "v", unary<ofAngle<sine>>, plain, "angle", "The sine of an angle in radians."},
    {"COS", 1, 1, "v", unary<ofAngle<cosine>>, plain, "angle",
     "The cosine of an angle in radians."},
    {"TAN", 1, 1, "v", unary<ofAngle<tangent>>, plain, "angle",
     "The tangent of an angle in radians."},
    {"COT", 1, 1, "v", unary<inverse<ofAngle<tangent>>>, plain, "angle",
     "The cotangent of an angle in radians."},
    {"SEC", 1, 1, "v", unary<inverse<ofAngle<cosine>>>, plain, "angle",
     "The secant of an angle in radians."},
    {"CSC", 1, 1, "v", unary<inverse<ofAngle<sine>>>, plain, "angle",
     "The cosecant of an angle in radians."},
    {"ASIN", 1, 1, "v", unary<arcSine>, plain, "number",
     "The angle in radians, from -pi/2 to pi/2, whose sine is the number."},
    {"ACOS", 1, 1, "v", unary<arcCosine>, plain, "number",
     "The angle in radians, from 0 to pi, whose cosine is the number."},
    {"ATAN", 1, 1, "v", unary<arcTangent>, plain, "number",
     "The angle in radians, between -pi/2 and pi/2, whose tangent is the number."},
    {"ATAN2", 2, 2, "v", binary<arcTangentOfTwo>, plain, "x, y",
     "The angle in radians, above -pi up to pi, from the x axis to the point (x, y)."},
    {"ACOT", 1, 1, "v", unary<arcCotangent>, plain, "number",
     "The angle in radians, between 0 and pi, whose cotangent is the number."},
    {"SINH", 1, 1, "v", unary<hyperbolicSine>, plain, "number", "The hyperbolic sine."},
    {"COSH", 1, 1, "v", unary<hyperbolicCosine>, plain, "number", "The hyperbolic cosine."},
    {"TANH", 1, 1, "v", unary<hyperbolicTangent>, plain, "number", "The hyperbolic tangent."},
    {"COTH", 1, 1, "v", unary<inverse<hyperbolicTangent>>, plain, "number",
     "The hyperbolic cotangent."},
    {"SECH", 1, 1, "v", unary<inverse<hyperbolicCosine>>, plain, "number",
     "The hyperbolic secant."},
    {"CSCH", 1, 1, "v", unary<inverse<hyperbolicSine>>, plain, "number",
     "The hyperbolic cosecant."},
    {"ASINH", 1, 1, "v", unary<areaSine>, plain, "number",
     "The number whose hyperbolic sine is given."},
    {"ACOSH", 1, 1, "v", unary<areaCosine>, plain, "number",
     "The number, at least 0, whose hyperbolic cosine is given."},
    {"ATANH", 1, 1, "v", unary<areaTangent>, plain, "number",
     "The number whose hyperbolic tangent is given."},
    {"ACOTH", 1, 1, "v", unary<areaCotangent>, plain, "number",
     "The number whose hyperbolic cotangent is given."},
    {"DEGREES", 1, 1, "v", unary<degrees>, plain, "angle", "An angle in radians as degrees."},
    {"RADIANS", 1, 1, "v", unary<radians>, plain, "angle", "An angle in degrees as radians."},
};

}  // namespace

std::span<const FunctionSpec> trigonometryFunctions() {
    return rows;
}

}  // namespace formula
