// The nearest size that is kept, out of a size list of the library.
#include <algorithm>
#include <vector>

#include "standards/data_files.h"
#include "standards/functions/families.h"
#include "standards/functions/standard_sizes.h"
#include "standards/standards_messages.h"

namespace {

struct Wanted {
    double step;
    double value;
    Tolerances tolerances;
};

/// The arguments that follow `first`: value, down and up tolerance; the step stands before.
std::optional<Wanted> readWanted(const FunctionArguments& arguments, int first) {
    const auto step = arguments.number(1);
    const auto value = arguments.number(first);
    const auto down = arguments.number(first + 1);
    const auto up = arguments.number(first + 2);
    if (!step || !value || !down || !up) return std::nullopt;
    return Wanted{*step, *value, {*down, *up}};
}

double chooseOrRound(std::span<const double> candidates, const Wanted& wanted) {
    const auto chosen = chooseStandard(candidates, wanted.tolerances, wanted.value);
    return chosen ? *chosen : roundWithinTolerance(wanted.value, wanted.step, wanted.tolerances);
}

/// `candidates(list)` picks from the size list; a file that is missing leaves none.
template <class Candidates>
FunctionResult choose(FunctionArguments& arguments, int first, Candidates&& candidates) {
    const auto file = arguments.text(0);
    const auto wanted = readWanted(arguments, first);
    if (!file || !wanted) return std::nullopt;
    const auto [down, up] = wanted->tolerances;
    if (down + up <= 0) reportInvalidTolerances(down, up);
    const auto list = readSizeList(*file);
    return list ? chooseOrRound(candidates(*list), *wanted) : chooseOrRound({}, *wanted);
}

}  // namespace

FunctionResult stdWidthWithTolerance(FunctionArguments& arguments) {
    const auto key = arguments.number(2);
    if (!key) return std::nullopt;
    std::vector<double> widths;
    return choose(arguments, 3, [&](const SizeList& list) {
        for (size_t i = 0; i < list.first.size(); ++i)
            if (list.second[i] == 0 || list.second[i] == *key) widths.push_back(list.first[i]);
        std::sort(widths.begin(), widths.end());
        return std::span<const double>(widths);
    });
}

FunctionResult stdThicknessWithTolerance(FunctionArguments& arguments) {
    return choose(arguments, 2,
                  [](const SizeList& list) { return std::span<const double>(list.second); });
}

FunctionResult stdSizeWithTolerance(FunctionArguments& arguments) {
    return choose(arguments, 2,
                  [](const SizeList& list) { return std::span<const double>(list.first); });
}
