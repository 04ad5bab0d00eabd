#include "standards/functions/function_call.h"

#include <limits>

std::optional<double> FunctionArguments::number(int index) const {
    if (!isValid(index)) return std::nullopt;
    const SSValue& value = m_values[index];
    if (value.kind == ssWhole) return static_cast<double>(value.whole);
    if (value.kind == ssDouble) return value.number;
    return std::nullopt;
}

std::optional<int> FunctionArguments::whole(int index) const {
    const auto value = number(index);
    constexpr double limit = std::numeric_limits<int>::max();
    if (!value || !(*value > -limit && *value < limit)) return std::nullopt;
    return static_cast<int>(*value);
}

std::optional<Vor_String> FunctionArguments::text(int index) {
    if (!isValid(index) || m_values[index].kind != ssText) return std::nullopt;
    Vor_String text;
    getGlobalStr(m_values[index].text, text);
    if (text.beginsWith("\"")) text.removeAt(0);
    if (text.endsWith("\"")) text.removeAt(text.length() - 1);
    return text;
}

int giveResult(const FunctionResult& result, SSValue& slot) {
    if (!result) return 0;
    if (const double* number = std::get_if<double>(&*result)) {
        slot.status = ssValid;
        slot.kind = ssDouble;
        slot.number = *number;
    } else if (const Vor_String& text = std::get<Vor_String>(*result); !text.isEmpty()) {
        slot.status = ssValid;
        slot.kind = ssText;
        slot.text = setGlobalStr(text);
    }
    return 1;
}
