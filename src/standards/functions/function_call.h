// The form in which custom functions are written: they read arguments by what they should be and
// give a number, a text or nothing. callback<function> is what the control calls.
#pragma once

#include <optional>
#include <variant>

#include "core_api/text/vor_string.h"
#include "spread/control/ss_api.h"

class FunctionArguments {
  public:
    FunctionArguments(SSValue* values, int count) : m_values(values), m_count(count) {}

    int count() const { return m_count; }
    /// Nothing when argument `index` (from 0) is missing or anything but a number.
    std::optional<double> number(int index) const;
    /// A number cut towards zero; nothing also when it is no int.
    std::optional<int> whole(int index) const;
    /// Without the double quotes around it. Nothing when it is missing or anything but a text.
    /// A text can be taken once.
    std::optional<Vor_String> text(int index);
    bool isEmpty(int index) const { return index < m_count && m_values[index].status == ssEmpty; }

  private:
    bool isValid(int index) const { return index < m_count && m_values[index].status == ssValid; }

    SSValue* m_values;
    int m_count;
};

/// Nothing is a failure; the empty text is an empty result.
using FunctionResult = std::optional<std::variant<double, Vor_String>>;
using StandardsFunction = FunctionResult (*)(FunctionArguments&);

int giveResult(const FunctionResult& result, SSValue& slot);

template <StandardsFunction function>
int callback(SSValue* result, SSValue* arguments, short count) {
    *result = SSValue();
    FunctionArguments call(arguments, count);
    return giveResult(function(call), *result);
}
