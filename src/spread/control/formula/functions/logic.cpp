// The ordinary IF, IFERROR, IFNA and CHOOSE never get here: the engine jumps over the branch that
// is not taken. These rows check their arguments and serve formulas that compute with arrays.
#include <array>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/families.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// A chosen branch; one left out counts as 0.
Value branch(const Value& value) {
    return value.isMissing() ? Value(0.0) : value;
}

Value ifElse(Calculation&, Arguments args) {
    const Result<bool> truth = toBoolean(args[0]);
    if (!truth) return truth.error();
    if (*truth) return branch(args[1]);
    return args.size() > 2 ? branch(args[2]) : Value::boolean(false);
}

Value ifError(Calculation&, Arguments args) {
    return branch(args[0].isError() ? args[1] : args[0]);
}

Value ifNotAvailable(Calculation&, Arguments args) {
    return branch(args[0].isError() && args[0].error() == ErrorCode::na ? args[1] : args[0]);
}

Value ifs(Calculation&, Arguments args) {
    if (args.size() % 2 != 0) return ErrorCode::value;
    for (size_t i = 0; i < args.size(); i += 2) {
        const Result<bool> truth = toBoolean(args[i]);
        if (!truth) return truth.error();
        if (*truth) return branch(args[i + 1]);
    }
    return ErrorCode::na;
}

Value switchTo(Calculation&, Arguments args) {
    const Value& wanted = args[0];
    if (wanted.isError()) return wanted;
    size_t i = 1;
    for (; i + 1 < args.size(); i += 2) {
        if (args[i].isError()) return args[i];
        if (compareValues(wanted, args[i]) == 0) return branch(args[i + 1]);
    }
    return i < args.size() ? branch(args[i]) : Value(ErrorCode::na);
}

/// How many of the truths among some arguments hold.
struct Truths {
    size_t trues = 0;
    size_t falses = 0;
    bool failed = false;
    ErrorCode error = ErrorCode::value;

    void add(bool truth) { ++(truth ? trues : falses); }
    void fail(ErrorCode code) {
        if (!failed) error = code;
        failed = true;
    }
};

/// A cell or an element of an array: texts say nothing.
void addElement(Truths& truths, const Value& value) {
    if (value.isNumber()) truths.add(value.number() != 0);
    if (value.isBoolean()) truths.add(value.truth());
    if (value.isError()) truths.fail(value.error());
}

/// A value written as argument: a text must be TRUE or FALSE, only the empty one is passed over.
void addSingle(Truths& truths, const Value& value) {
    if (value.isBoolean()) return truths.add(value.truth());
    if (value.isText() && value.text().empty()) return;
    if (value.isEmpty()) return;
    const Result<bool> truth = toBoolean(value);
    if (truth)
        truths.add(*truth);
    else
        truths.fail(truth.error());
}

Truths countTruths(const Calculation& c, Arguments args) {
    Truths truths;
    for (const Value& argument : args) {
        if (argument.isSingle())
            addSingle(truths, argument);
        else
            c.each(argument, [&](const Value& value) { addElement(truths, value); });
    }
    if (truths.trues + truths.falses == 0) truths.fail(ErrorCode::value);
    return truths;
}

template <bool (*decide)(const Truths&)>
Value joined(Calculation& c, Arguments args) {
    const Truths truths = countTruths(c, args);
    if (truths.failed) return truths.error;
    return Value::boolean(decide(truths));
}

bool allHold(const Truths& truths) {
    return truths.falses == 0;
}
bool anyHolds(const Truths& truths) {
    return truths.trues > 0;
}
bool oddNumberHolds(const Truths& truths) {
    return truths.trues % 2 == 1;
}

Value negation(Calculation&, Arguments args) {
    const Result<bool> truth = toBoolean(args[0]);
    if (!truth) return truth.error();
    return Value::boolean(!*truth);
}

template <bool truth>
Value constant(Calculation&, Arguments) {
    return Value::boolean(truth);
}

constexpr std::array<FunctionSpec, 11> rows{{
    {"AND", 1, anyCount, "a", joined<allHold>, givesOne, "truth1, [truth2], …",
     "TRUE when every argument is true; texts and empty cells of ranges are passed over."},
    {"FALSE", 0, 0, "", constant<false>, plain, "", "The truth value FALSE."},
    {"IF", 2, 3, "v", ifElse, isLazy, "condition, then, [else]",
     "The second argument when the condition is true, else the third (FALSE when there is none)."},
    {"IFERROR", 2, 2, "v", ifError, isLazy, "value, fallback",
     "The value, or the fallback where the value is an error."},
    {"IFNA", 2, 2, "v", ifNotAvailable, isLazy, "value, fallback",
     "The value, or the fallback where the value is #N/A; other errors stay."},
    {"IFS", 2, anyCount, "v", ifs, plain, "condition1, result1, [condition2, result2], …",
     "The result behind the first condition that is true; #N/A when none is."},
    {"NOT", 1, 1, "v", negation, plain, "truth", "TRUE for FALSE or 0, FALSE for everything else."},
    {"OR", 1, anyCount, "a", joined<anyHolds>, givesOne, "truth1, [truth2], …",
     "TRUE when at least one argument is true."},
    {"SWITCH", 3, anyCount, "v", switchTo, plain,
     "value, case1, result1, [case2, result2], …, [default]",
     "The result behind the first case that equals the value, else the default or #N/A."},
    {"TRUE", 0, 0, "", constant<true>, plain, "", "The truth value TRUE."},
    {"XOR", 1, anyCount, "a", joined<oddNumberHolds>, plain, "truth1, [truth2], …",
     "TRUE when an odd number of the arguments is true."},
}};

}  // namespace

std::span<const FunctionSpec> logicFunctions() {
    return rows;
}

}  // namespace formula
