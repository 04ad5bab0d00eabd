#include <array>
#include <cmath>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/families.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

bool isEmpty(const Value& value) {
    return value.isEmpty();
}
bool isError(const Value& value) {
    return value.isError();
}
bool isNotAvailable(const Value& value) {
    return value.isError() && value.error() == ErrorCode::na;
}
bool isOtherError(const Value& value) {
    return value.isError() && value.error() != ErrorCode::na;
}
bool isLogical(const Value& value) {
    return value.isBoolean();
}
bool isNumber(const Value& value) {
    return value.isNumber();
}
bool isText(const Value& value) {
    return value.isText();
}
bool isNoText(const Value& value) {
    return !value.isText();
}
bool isReference(const Value& value) {
    return value.isArea();
}

template <bool (*test)(const Value&)>
Value isOf(Calculation&, Arguments args) {
    return Value::boolean(test(args[0]));
}

/// Whether the whole part of a number is odd, or nothing for what ISODD refuses.
Result<bool> oddness(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const double number = std::trunc(read.strictNumber(0));
    if (read.failed()) return read.error();
    return std::fmod(number, 2) != 0;
}

template <bool odd>
Value parity(Calculation& c, Arguments args) {
    const Result<bool> isOdd = oddness(c, args);
    if (!isOdd) return isOdd.error();
    return Value::boolean(*isOdd == odd);
}

Value isFormula(Calculation& c, Arguments args) {
    if (args[0].isError()) return args[0];
    if (!args[0].isArea()) return ErrorCode::value;
    const Area area = args[0].area();
    return Value::boolean(c.formulaText(area.col1, area.row1).has_value());
}

Value notAvailable(Calculation&, Arguments) {
    return ErrorCode::na;
}

/// Of an area or array its first element.
Value asNumber(Calculation& c, Arguments args) {
    const Value value = c.element(args[0], 0, 0);
    if (value.isNumber() || value.isError()) return value;
    return value.isBoolean() && value.truth() ? 1.0 : 0.0;
}

Value typeCode(Calculation& c, Arguments args) {
    if (c.rows(args[0]) > 1 || c.cols(args[0]) > 1) return 64.0;
    switch (c.element(args[0], 0, 0).type()) {
        case ValueType::text:
            return 2.0;
        case ValueType::boolean:
            return 4.0;
        case ValueType::error:
            return 16.0;
        default:
            return 1.0;
    }
}

Value errorNumber(Calculation&, Arguments args) {
    // The codes of value.h stand in the order that the programs number them in.
    if (!args[0].isError()) return ErrorCode::na;
    return static_cast<double>(args[0].error());
}

constexpr std::array<FunctionSpec, 16> rows{{
    {"ERROR.TYPE", 1, 1, "v", errorNumber, plain, "error",
     "The number of an error: 1 #NULL!, 2 #DIV/0!, 3 #VALUE!, 4 #REF!, 5 #NAME?, 6 #NUM!, 7 #N/A, "
     "8 #CIRC!; #N/A for anything else."},
    {"ISBLANK", 1, 1, "v", isOf<isEmpty>, plain, "value", "TRUE for an empty cell."},
    {"ISERR", 1, 1, "v", isOf<isOtherError>, plain, "value", "TRUE for every error but #N/A."},
    {"ISERROR", 1, 1, "v", isOf<isError>, plain, "value", "TRUE for every error."},
    {"ISEVEN", 1, 1, "v", parity<false>, plain, "number",
     "TRUE when the whole part of the number is even."},
    {"ISFORMULA", 1, 1, "p", isFormula, isVolatile, "cell", "TRUE when the cell holds a formula."},
    {"ISLOGICAL", 1, 1, "v", isOf<isLogical>, plain, "value", "TRUE for TRUE and FALSE."},
    {"ISNA", 1, 1, "v", isOf<isNotAvailable>, plain, "value", "TRUE for the error #N/A."},
    {"ISNONTEXT", 1, 1, "v", isOf<isNoText>, plain, "value",
     "TRUE for everything but a text; also for an empty cell."},
    {"ISNUMBER", 1, 1, "v", isOf<isNumber>, plain, "value", "TRUE for a number."},
    {"ISODD", 1, 1, "v", parity<true>, plain, "number",
     "TRUE when the whole part of the number is odd."},
    {"ISREF", 1, 1, "p", isOf<isReference>, plain, "value", "TRUE for a reference to cells."},
    {"ISTEXT", 1, 1, "v", isOf<isText>, plain, "value", "TRUE for a text."},
    {"N", 1, 1, "r", asNumber, plain, "value",
     "A number as it is, 1 for TRUE, 0 for FALSE and texts; errors stay."},
    {"NA", 0, 0, "", notAvailable, plain, "", "The error #N/A."},
    {"TYPE", 1, 1, "r", typeCode, plain, "value",
     "What a value is: 1 number, 2 text, 4 truth, 16 error, 64 several values."},
}};

}  // namespace

std::span<const FunctionSpec> informationFunctions() {
    return rows;
}

}  // namespace formula
