#include "runs/run_report.h"

#include <algorithm>

#include "spread/control/formula/value.h"

namespace runs {

bool isErrorText(std::string_view value) {
    return value.starts_with('#') && formula::errorFromText(value).has_value();
}

bool RunReport::equationsDone() const {
    return ok && std::all_of(equations.begin(), equations.end(), [](const auto& equation) {
               return equation.ok && (!equation.child || equation.child->equationsDone());
           });
}

bool RunReport::outputsDone() const {
    return equationsDone() && std::none_of(outputs.begin(), outputs.end(), [](const auto& output) {
               return isErrorText(output.value);
           });
}

}  // namespace runs
