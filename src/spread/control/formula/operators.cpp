#include "spread/control/formula/operators.h"

#include <cstring>

#include "spread/control/formula/coerce.h"

namespace formula {

namespace {

/// The text of a single value that is no error; numbers are written into `buffer`.
std::string_view textOf(const Value& value, char (&buffer)[numberTextSize]) {
    switch (value.type()) {
        case ValueType::number:
            return {buffer, writeNumber(value.number(), buffer)};
        case ValueType::boolean:
            return value.truth() ? "TRUE" : "FALSE";
        case ValueType::text:
            return value.text();
        default:
            return {};
    }
}

Value join(Calculation& c, const Value& a, const Value& b) {
    char first[numberTextSize];
    char second[numberTextSize];
    return joined(c, textOf(a, first), textOf(b, second));
}

}  // namespace

Value toText(Calculation& c, const Value& value) {
    if (value.isText() || value.isError()) return value;
    char buffer[numberTextSize];
    return c.text(textOf(value, buffer));
}

Value applyBinary(Calculation& c, Op op, const Value& a, const Value& b) {
    if (a.isError()) return a;
    if (b.isError()) return b;
    if (op == Op::concatenate) return join(c, a, b);
    if (op >= Op::equal) return Value::boolean(orderHolds(op, compareValues(a, b)));
    const auto left = toNumber(a);
    if (!left) return left.error();
    const auto right = toNumber(b);
    if (!right) return right.error();
    return arithmetic(op, *left, *right);
}

Value applyUnary(Op op, const Value& a) {
    if (a.isError()) return a;
    const auto number = toNumber(a);
    if (!number) return number.error();
    return op == Op::negate ? (*number == 0 ? 0.0 : -*number) : *number / 100;
}

}  // namespace formula
