// The operators of formulas over single values; areas and arrays are the evaluator's business.
#pragma once

#include <cmath>

#include "spread/control/formula/calculation.h"
#include "spread/control/formula/program.h"

namespace formula {

/// Arithmetic over two numbers: #DIV/0! for a division by zero, #NUM! beyond what a double holds.
inline Value arithmetic(Op op, double a, double b) {
    double result;
    switch (op) {
        case Op::add:
            result = a + b;
            break;
        case Op::subtract:
            result = a - b;
            break;
        case Op::multiply:
            result = a * b;
            break;
        case Op::divide:
            if (b == 0) [[unlikely]]
                return ErrorCode::div0;
            result = a / b;
            break;
        default:
            if (a == 0 && b == 0) return ErrorCode::num;
            if (a == 0 && b < 0) return ErrorCode::div0;
            result = b == 2 ? a * a : std::pow(a, b);
            break;
    }
    if (!std::isfinite(result)) [[unlikely]]
        return ErrorCode::num;
    return result;
}

/// Whether a comparison holds for values that stand in this order (below, at or above 0).
inline bool orderHolds(Op op, int order) {
    switch (op) {
        case Op::equal:
            return order == 0;
        case Op::notEqual:
            return order != 0;
        case Op::less:
            return order < 0;
        case Op::lessEqual:
            return order <= 0;
        case Op::greater:
            return order > 0;
        default:
            return order >= 0;
    }
}

/// #VALUE! when that is longer than what a cell holds: the programs refuse to make longer ones.
inline Value joined(Calculation& c, std::string_view a, std::string_view b) {
    constexpr size_t longest = 32767;
    return a.size() + b.size() > longest ? Value(ErrorCode::value) : c.text(a, b);
}

/// Any binary operator over two single values, errors first.
Value applyBinary(Calculation& c, Op op, const Value& a, const Value& b);
/// Minus and percent.
Value applyUnary(Op op, const Value& a);

/// A single value as text, kept until the calculation ends; errors come back as they are.
Value toText(Calculation& c, const Value& value);

}  // namespace formula
