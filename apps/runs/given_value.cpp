#include "runs/given_value.h"

#include "core_api/text/number_text.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "runs/report_words.h"

namespace runs {

const char* typeName(TwValueType type) {
    switch (type) {
        case TwValueType::Int:
            return "Int";
        case TwValueType::Double:
            return "Double";
        default:
            return "String";
    }
}

Vor_String refusal(const TwVarCell& variable, std::string_view value) {
    if (!isNumeric(variable.valueType()) || value.empty() || isNumber(value)) return {};
    Vor_String why = dialString(wordNeedsNumber);
    why.replaceSubString("%2", typeName(variable.valueType()));
    why.replaceSubString("%1", variable.name());
    return why;
}

VarValue handedOver(const TwVarCell& output) {
    VarValue value = output.typedValue();
    if (output.valueType() != TwValueType::Int) return value;
    if (const double* number = value.number())
        value.setNumber(roundAsWritten(*number, 0));
    else if (isNumber(value.text()))
        value.setNumber(roundAsWritten(textToDouble(value.text()), 0));
    return value;
}

}  // namespace runs
