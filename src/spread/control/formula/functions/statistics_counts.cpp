#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

Value count(Calculation& c, std::span<const Value> args) {
    double numbers = 0;
    for (const Value& argument : args) {
        if (isMany(argument))
            c.each(argument, [&](const Value& value, int64_t times = 1) {
                numbers += value.isNumber() ? static_cast<double>(times) : 0;
            });
        else if (!argument.isEmpty() && toNumber(argument))
            ++numbers;
    }
    return numbers;
}

Value countFilled(Calculation& c, std::span<const Value> args) {
    double filled = 0;
    for (const Value& argument : args)
        c.each(argument, [&](const Value& value, int64_t times = 1) {
            filled += value.isEmpty() ? 0 : static_cast<double>(times);
        });
    return filled;
}

Value countBlank(Calculation& c, std::span<const Value> args) {
    double blank = static_cast<double>(Calculation::rows(args[0])) * Calculation::cols(args[0]);
    c.each(args[0], [&](const Value& value) {
        if (!value.isEmpty() && !(value.isText() && value.text().empty())) --blank;
    });
    return blank;
}

constexpr FunctionSpec rows[] = {
    {"COUNT", 1, anyCount, "a", count, givesOne, "value1, [value2], …",
     "How many numbers there are."},
    {"COUNTA", 1, anyCount, "a", countFilled, plain, "value1, [value2], …",
     "How many values there are; only empty cells are left out."},
    {"COUNTBLANK", 1, 1, "r", countBlank, plain, "area",
     "How many cells are empty or hold an empty text."},
};

}  // namespace

std::span<const FunctionSpec> countFunctions() {
    return rows;
}

}  // namespace formula
