// The few lines that every function would otherwise repeat: reading numbers from arguments,
// walking all numbers of an argument list, and handing out results.
#pragma once

#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "spread/control/formula/calculation.h"
#include "spread/control/formula/coerce.h"
#include "spread/control/formula/function.h"

namespace formula {

/// A computed number as a result; overflow and the undefined become #NUM!, -0 becomes 0.
inline Value numberOrError(double x) {
    return std::isfinite(x) ? Value(x + 0.0) : Value(ErrorCode::num);
}

/// toNumber, with the ordinary case in line.
inline Result<double> numberOf(const Value& argument) {
    if (argument.isNumber()) [[likely]]
        return argument.number();
    return toNumber(argument);
}

/// A number as those functions take it that once came as an add-in: booleans are refused with
/// #VALUE!, an argument left out with #N/A.
inline Result<double> strictNumber(const Value& argument) {
    if (argument.isBoolean()) return ErrorCode::value;
    if (argument.isMissing()) return ErrorCode::na;
    return numberOf(argument);
}

using ReadNumber = Result<double> (*)(const Value&);

inline Value asResult(double x) {
    return numberOrError(x);
}
inline Value asResult(const Value& value) {
    return value;
}

/// A function of one number; `compute` gives a double (NaN for #NUM!) or a Value.
template <auto compute, ReadNumber read = numberOf>
Value unary(Calculation&, std::span<const Value> args) {
    const Result<double> x = read(args[0]);
    if (!x) return x.error();
    return asResult(compute(*x));
}

/// A function of two numbers; `otherwise` stands for the second when it is not written at all.
template <auto compute, ReadNumber read = numberOf, int otherwise = 0>
Value binary(Calculation&, std::span<const Value> args) {
    const Result<double> x = read(args[0]);
    if (!x) return x.error();
    const Result<double> y = args.size() > 1 ? read(args[1]) : Result<double>(otherwise);
    if (!y) return y.error();
    return asResult(compute(*x, *y));
}

inline bool isMany(const Value& argument) {
    return argument.isArea() || argument.isArray();
}

/// What cells and array elements that hold no number count for.
enum class NonNumbers {
    ignored,
    counted,  ///< booleans as 1 and 0, texts as 0: the functions whose name ends in A
};

/// Calls add(double) for every number in `args`, or once add(double, int64_t times) for equal ones
/// that are not stored if `add` takes that. Numbers, booleans and texts written as arguments
/// themselves count as numbers (a text that reads as none is #VALUE!). The first error met ends it
/// and is the result.
template <class Add>
std::optional<ErrorCode> eachNumber(const Calculation& c, std::span<const Value> args,
                                    NonNumbers nonNumbers, Add&& add) {
    std::optional<ErrorCode> error;
    const auto addNumber = [&](double number, int64_t times) {
        if constexpr (std::is_invocable_v<Add&, double, int64_t>) {
            add(number, times);
        } else if (times == 1 || c.spend(times)) {
            for (; times > 0; --times) add(number);
        }
    };
    const auto visit = [&](const Value& value, int64_t times = 1) {
        if (value.isNumber()) [[likely]] {
            addNumber(value.number(), times);
        } else if (value.isError()) {
            if (!error) error = value.error();
        } else if (nonNumbers == NonNumbers::counted && !value.isEmpty()) {
            addNumber(value.isBoolean() && value.truth() ? 1.0 : 0.0, times);
        }
    };
    for (const Value& argument : args) {
        if (argument.isNumber()) [[likely]] {
            addNumber(argument.number(), 1);
        } else if (isMany(argument)) {
            c.each(argument, visit);
            if (error) return error;
        } else if (!argument.isEmpty()) {
            const Result<double> number = toNumber(argument);
            if (!number) return number.error();
            addNumber(*number, 1);
        }
    }
    return std::nullopt;
}

/// The numbers of `args` as eachNumber finds them, added to `numbers`.
inline std::optional<ErrorCode> collectNumbers(const Calculation& c, std::span<const Value> args,
                                               std::vector<double>& numbers,
                                               NonNumbers nonNumbers = NonNumbers::ignored) {
    const auto error = eachNumber(c, args, nonNumbers, [&](double x) { numbers.push_back(x); });
    c.spend(20 * static_cast<int64_t>(numbers.size()));  // whoever collects them puts them in order
    return error;
}

/// The first error in `argument`, if any.
inline std::optional<ErrorCode> firstError(const Calculation& c, const Value& argument) {
    std::optional<ErrorCode> error;
    c.each(argument, [&](const Value& value, int64_t = 1) {
        if (value.isError() && !error) error = value.error();
    });
    return error;
}

}  // namespace formula
