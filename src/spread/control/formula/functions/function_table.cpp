#include <string_view>
#include <unordered_map>
#include <vector>

#include "spread/control/formula/function.h"

namespace formula {
namespace {

struct FunctionTable {
    std::vector<const FunctionSpec*> all;
    std::unordered_map<std::string_view, const FunctionSpec*> byName;

    FunctionTable() {
        for (const auto family : {mathFunctions, trigonometryFunctions, statisticsFunctions,
                                  matrixFunctions, logicFunctions, lookupFunctions, textFunctions,
                                  informationFunctions, dateFunctions, engineeringFunctions}) {
            for (const FunctionSpec& spec : family()) {
                all.push_back(&spec);
                byName.emplace(spec.name, &spec);
            }
        }
    }
};

const FunctionTable& table() {
    static const FunctionTable instance;
    return instance;
}

}  // namespace

const FunctionSpec* findFunction(std::string_view name) {
    const auto& byName = table().byName;
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

std::span<const FunctionSpec* const> allFunctions() {
    return table().all;
}

}  // namespace formula
