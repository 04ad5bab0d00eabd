#include <string_view>
#include <vector>

#include "core_api/text/text_index.h"
#include "spread/control/formula/function.h"

namespace formula {
namespace {

struct FunctionTable {
    std::vector<const FunctionSpec*> all;
    TextIndex byName;

    FunctionTable() {
        for (const auto family : {mathFunctions, trigonometryFunctions, statisticsFunctions,
                                  matrixFunctions, logicFunctions, lookupFunctions, textFunctions,
                                  informationFunctions, dateFunctions, engineeringFunctions}) {
            for (const FunctionSpec& spec : family()) {
                byName.add(spec.name, static_cast<int>(all.size()));
                all.push_back(&spec);
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
    const int index = table().byName.find(name);
    return index < 0 ? nullptr : table().all[static_cast<size_t>(index)];
}

std::span<const FunctionSpec* const> allFunctions() {
    return table().all;
}

}  // namespace formula
