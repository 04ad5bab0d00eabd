#include "core_api/numbers.h"
#include "core_api/text/text_helpers.h"
#include "standards/functions/families.h"

namespace {
FunctionResult truth(bool is) {
    return is ? 1.0 : 0.0;
}
}  // namespace

FunctionResult roundTo(FunctionArguments& arguments) {
    const auto value = arguments.number(0);
    const auto step = arguments.number(1);
    if (!value || !step) return std::nullopt;
    return ObjectExportRoundTo(*value, *step);
}

FunctionResult getArrayItem(FunctionArguments& arguments) {
    const auto list = arguments.text(0);
    const auto index = arguments.whole(1);
    if (!list || !index) return std::nullopt;
    const Vor_StringArray items = strToArr(*list, ';');
    return items.isIndex(*index - 1) ? items[*index - 1] : Vor_String();
}

FunctionResult toNumber(FunctionArguments& arguments) {
    const auto text = arguments.text(0);
    if (!text) return std::nullopt;
    return textToDouble(*text);
}

FunctionResult isNull(FunctionArguments& arguments) {
    if (arguments.isEmpty(0)) return truth(true);
    if (const auto text = arguments.text(0)) return truth(text->isEmpty());
    if (const auto number = arguments.number(0)) return truth(*number == 0.0);
    return std::nullopt;
}

FunctionResult isPositive(FunctionArguments& arguments) {
    if (arguments.isEmpty(0)) return truth(false);
    if (const auto text = arguments.text(0)) return truth(textToDouble(*text) > 0);
    if (const auto number = arguments.number(0)) return truth(*number > 0);
    return std::nullopt;
}
