// What a spreadsheet function is to the engine: one row of a table. Functions lie by family in
// functions/*.cpp; each family hands out its rows, function_table.cpp joins them.
#pragma once

#include <span>
#include <string_view>

#include "platform/export.h"
#include "spread/control/formula/calculation.h"
#include "spread/control/formula/value.h"

namespace formula {

/// Computes from its arguments, which come as `params` of the row promises. Errors are results,
/// never exceptions. What it borrows from `c` ends with the calculation.
using Function = Value (*)(Calculation& c, std::span<const Value> args);

inline constexpr int anyCount = 255;

enum FunctionFlags : unsigned {
    plain = 0,
    isVolatile =
        1,  ///< its result may change without the cells it reads changing (NOW, OFFSET, ISFORMULA)
    givesOne = 2,  ///< one plain value whatever it is given: aggregates and tests
    isLazy = 4,    ///< the engine jumps over the arguments that are not chosen
};

struct FunctionSpec {
    std::string_view name;  ///< upper case
    int least;              ///< least and greatest count of arguments
    int most;
    /// How each argument arrives, one letter each; the last letter, or the last group in
    /// parentheses, repeats: "v", "rvv", "r(rv)".
    ///   v  one plain value: an area gives the cell in the formula's row or column (else #VALUE!),
    ///      an array its first element. In an array context the function is called once for each
    ///      element instead. Errors arrive as values; `missing` stays `missing`.
    ///   r  as it is: area, array or plain value.
    ///   a  as r, and the argument is calculated in an array context (A1:A3*2 gives an array).
    ///   p  as r, but only the place of an area matters, its cells are not read (ROW, COLUMNS).
    std::string_view params;
    Function call;
    unsigned flags;
    std::string_view arguments;  ///< for help: "number, [decimals]"
    std::string_view summary;    ///< for help: one sentence
};

/// The letter of argument `index` (from 0) in such a list.
VORMANT_API char parameterClass(std::string_view params, size_t index);

/// The row of `name`, letter case aside, or null.
VORMANT_API const FunctionSpec* findFunction(std::string_view name);
/// Every function, by family in the order of functions/families.h; for help and the manual.
VORMANT_API std::span<const FunctionSpec* const> allFunctions();

}  // namespace formula
