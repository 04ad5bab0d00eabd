// Two arguments of the same count walked side by side: SUMXMY2, CORREL, SLOPE and their kin.
#pragma once

#include <optional>

#include "spread/control/formula/functions/arguments.h"

namespace formula {

/// Calls visit(x, y) for every place where both arguments hold a number; places are counted row by
/// row, so that a column pairs with a row. #N/A when the counts differ, else the first error in
/// `xs`, then in `ys`. Costs what is stored, not what the areas span.
template <class Visit>
std::optional<ErrorCode> eachPair(const Calculation& c, const Value& xs, const Value& ys,
                                  Visit&& visit) {
    const int64_t cols = Calculation::cols(xs);
    const int64_t otherCols = Calculation::cols(ys);
    if (cols * Calculation::rows(xs) != otherCols * Calculation::rows(ys)) return ErrorCode::na;
    for (const Value* argument : {&xs, &ys})
        if (const auto error = firstError(c, *argument)) return error;
    c.eachAt(xs, [&](int row, int col, const Value& x) {
        if (!x.isNumber()) return;
        c.spend(30);
        const int64_t place = row * cols + col;
        const Value y =
            c.element(ys, static_cast<int>(place / otherCols), static_cast<int>(place % otherCols));
        if (y.isNumber()) visit(x.number(), y.number());
    });
    return std::nullopt;
}

}  // namespace formula
