#include "spread/control/formula/functions/families.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

std::vector<FunctionSpec> joined(std::initializer_list<std::span<const FunctionSpec>> parts) {
    std::vector<FunctionSpec> rows;
    for (const auto part : parts) rows.insert(rows.end(), part.begin(), part.end());
    return rows;
}

}  // namespace

std::span<const FunctionSpec> mathFunctions() {
    static const auto rows =
        joined({sumFunctions(), elementaryFunctions(), roundingFunctions(), wholeNumberFunctions(),
                numeralFunctions(), subtotalFunctions()});
    return rows;
}

std::span<const FunctionSpec> statisticsFunctions() {
    static const auto rows = joined({averageFunctions(), orderFunctions(), countFunctions(),
                                     conditionalFunctions(), pairFunctions()});
    return rows;
}

std::span<const FunctionSpec> engineeringFunctions() {
    static const auto rows = joined({unitFunctions(), baseFunctions(), bitFunctions()});
    return rows;
}

}  // namespace formula
