#include "runs/calculation.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "standards/native_functions.h"
#include "standards/words.h"

namespace runs {

namespace {

/// The values of a standard's variables while its equations are gone through again.
class Values {
  public:
    Values(const RunReport& report, const DeclaredStandard& standard) : m_standard(standard) {
        for (const auto& input : report.inputs) set(input.name, input.value);
        for (const auto& output : report.outputs) set(output.name, "");
        for (const auto& local : report.locals) set(local.name, "");
    }
    void set(std::string_view name, std::string_view value) {
        m_values[encodings::lowered(name)] = isInt(name) && isNumber(value)
                                                 ? Vor_String(textToDouble(value), 0).str()
                                                 : std::string(value);
    }
    /// What a call gives back for a variable: only outputs of the caller take it.
    void give(std::string_view name, std::string_view value) {
        const DeclaredVariable* variable = m_standard.find(name);
        if (!variable || variable->kind == TwCellType::output) set(name, value);
    }
    const std::string* find(std::string_view name) const {
        const auto found = m_values.find(encodings::lowered(name));
        return found == m_values.end() ? nullptr : &found->second;
    }

  private:
    /// The cell of an Int, which equations read, holds a whole number.
    bool isInt(std::string_view name) const {
        const DeclaredVariable* variable = m_standard.find(name);
        return variable && variable->type == TwValueType::Int;
    }

    const DeclaredStandard& m_standard;
    std::map<std::string, std::string> m_values;
};

std::string rounded(const std::string& value) {
    if (!isNumber(value)) return value;
    constexpr int figures = 6;
    const double number = textToDouble(value);
    const double magnitude = std::fabs(number);
    const int whole = magnitude < 1 ? 1 : static_cast<int>(std::log10(magnitude)) + 1;
    // Below 1 the zeros behind the point are no figures.
    const int leading =
        magnitude > 0 && magnitude < 1 ? static_cast<int>(std::floor(-std::log10(magnitude))) : 0;
    const int decimals = std::clamp(figures - whole + leading + (magnitude < 1 ? 1 : 0), 0, 12);
    return Vor_String(number, decimals).str();
}

std::string written(const std::string& value) {
    if (value.empty()) return "0";
    if (isNumber(value)) return value.front() == '-' ? "(" + rounded(value) + ")" : rounded(value);
    return isErrorText(value) ? value : "\"" + value + "\"";
}

/// The expression with values for names; texts in quotes stay as they are.
std::string withNumbers(std::string_view expression, const Values& values) {
    std::string numbers;
    bool isQuoted = false;
    eachWord(
        expression,
        [&](std::string_view word) {
            const std::string* value = isQuoted ? nullptr : values.find(word);
            numbers += value ? written(*value) : std::string(word);
        },
        [&](std::string_view between) {
            if (std::count(between.begin(), between.end(), '"') % 2 == 1) isQuoted = !isQuoted;
            numbers += between;
        });
    return numbers;
}

/// Results travel back by position.
void takeResults(const ReportedEquation& call, Values& values) {
    ChildCall parsed;
    Vor_String function, reason;
    if (!call.child || !findNativeFunction(call.text, function) ||
        !parseChildCall(call.text, function, parsed, reason))
        return;
    for (const auto& output : call.child->outputs)
        if (output.position >= 0 && output.position < parsed.variables.length())
            values.give(parsed.variables[output.position], output.value);
}

CalculationLine lineOf(const ReportedEquation& equation, const DeclaredStandard& standard,
                       Values& values) {
    CalculationLine line;
    line.row = equation.row;
    line.column = equation.column;
    line.ok = equation.ok;
    line.message = equation.message;
    const size_t symbol = equation.text.find('=');
    if (equation.child || equation.name.empty() || symbol == std::string::npos) {
        line.symbols = equation.text;
        if (equation.child)
            line.child = std::make_unique<Calculation>(makeCalculation(*equation.child));
        takeResults(equation, values);
        return line;
    }
    line.name = equation.name;
    line.symbols = trimmed(std::string_view(equation.text).substr(symbol + 1));
    line.numbers = withNumbers(line.symbols, values);
    line.result = equation.value;
    line.isError = isErrorText(equation.value);
    if (const DeclaredVariable* target = standard.find(equation.name)) {
        line.unit = target->unit;
        line.rule = target->rule;
    }
    if (equation.ok) values.set(equation.name, equation.value);
    return line;
}

}  // namespace

std::string shownValue(const std::string& value, const std::string& unit) {
    const std::string shown = rounded(value);
    return unit.empty() || value.empty() ? shown : shown + " " + unit;
}

Calculation makeCalculation(const RunReport& report, const DeclaredStandard* known) {
    Calculation calculation;
    Vor_String failure;
    if (known)
        calculation.standard = *known;
    else if (auto declared = readDeclared(Vor_String(report.path), failure))
        calculation.standard = std::move(*declared);
    calculation.standard.path = report.path;
    calculation.inputs = report.inputs;
    calculation.outputs = report.outputs;
    calculation.ok = report.ok;
    calculation.failure = report.failure.str();
    calculation.messages = report.messages;
    Values values(report, calculation.standard);
    for (const ReportedEquation& equation : report.equations)
        calculation.lines.push_back(lineOf(equation, calculation.standard, values));
    return calculation;
}

}  // namespace runs
