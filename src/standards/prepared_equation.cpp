#include "standards/prepared_equation.h"

#include "core_api/text/text_helpers.h"
#include "mapping/run_timers.h"
#include "standards/native_functions.h"

namespace {

bool split(PreparedEquation& equation) {
    const Vor_FunctionTimer timer(gCalcCellSplitSymbol);
    const std::string_view text = equation.text.view();
    const size_t symbol = text.find('=');
    if (symbol == std::string_view::npos) {
        equation.expression = text;
        return false;
    }
    equation.name = trimmed(text.substr(0, symbol));
    equation.expression = trimmed(text.substr(symbol + 1));
    return true;
}

int findTarget(const PreparedEquation& equation, const VariableReferences& references) {
    const Vor_FunctionTimer timer(gCalcCellFindVarCell);
    return references.find(equation.name);
}

bool findNative(PreparedEquation& equation) {
    const Vor_FunctionTimer timer(gCalcCellFindFunctions);
    Vor_String function;
    if (!findNativeFunction(equation.expression, function)) return false;
    equation.detail = std::make_unique<Vor_String>(std::move(function));
    return true;
}

std::string_view translated(std::string_view expression, const VariableReferences& references) {
    const Vor_FunctionTimer timer(gCalcCellReplaceVariables);
    static std::string buffer;
    return references.translate(expression, buffer);
}

/// Nothing when the names have to be replaced in the text first.
formula::ProgramRef parsedWithNames(std::string_view expression,
                                    const formula::ParseSettings& settings,
                                    const VariableReferences& references) {
    const Vor_FunctionTimer timer(gCalcCellReplaceVariables);  // both in one
    if (!references.areCells()) return {};
    return formula::parseWithNames(expression, settings, references);
}

void compile(PreparedEquation& equation, const VariableReferences& references,
             const control::Sheet& sheet) {
    const auto [col, row] = equation.cell;
    formula::ParseSettings settings = sheet.parseSettings(col, row);
    settings.isShared = false;
    equation.program = parsedWithNames(equation.expression, settings, references);
    formula::ParseError error;
    if (!equation.program)
        equation.program =
            formula::parse(translated(equation.expression, references), settings, error);
    equation.kind =
        equation.program ? PreparedEquation::Kind::ordinary : PreparedEquation::Kind::refused;
    if (!equation.program) equation.detail = std::make_unique<Vor_String>(error.message);
}

}  // namespace

const SharedText& PreparedEquation::formula(const VariableReferences& references) const {
    if (!m_formula.block()) m_formula = SharedText(translated(expression, references));
    return m_formula;
}

Vor_String coordinateName(const TwVarCell& variable) {
    return getAlfabet(variable.column()) + std::to_string(variable.row());
}

VariableReferences makeReferences(const TwVarCells& variables) {
    Vor_StringArray names;
    {
        const Vor_FunctionTimer timer(gCalcCellGetVarNames);
        names.reserve(variables.length());
        for (const TwVarCell& variable : variables) names.append(variable.name());
    }
    const Vor_FunctionTimer timer(gCalcCellGetVarCoords);
    Vor_StringArray references;
    references.reserve(names.length());
    for (const TwVarCell& variable : variables) {
        const Vor_FunctionTimer nameTimer(gCalcCellGetVarCoordName);
        references.append(coordinateName(variable));
    }
    return VariableReferences(std::move(names), std::move(references),
                              VariableReferences::Namesakes::asFirst);
}

PreparedEquation prepareEquation(SharedText text, control::CellAddress cell,
                                 const TwVarCells& variables, const VariableReferences& references,
                                 const control::Sheet& sheet) {
    PreparedEquation equation;
    equation.cell = cell;
    equation.text = std::move(text);
    const bool hasSymbol = split(equation);
    equation.target = findTarget(equation, references);
    if (findNative(equation)) {
        equation.kind = PreparedEquation::Kind::childCall;
    } else if (!hasSymbol) {
        equation.detail = std::make_unique<Vor_String>(
            "there is no \"=\" in it: write Name=expression, or move labels out "
            "of the rows below \"Calc\"");
    } else if (equation.target < 0) {
        equation.detail = std::make_unique<Vor_String>(
            Vor_String("no variable \"") + equation.name +
            "\" is declared: declare it below \"Input\", \"Output\" or \"Local\"");
    } else {
        const Vor_FunctionTimer timer(gCalcCellCalcFunctionsPrepare);
        equation.givesText = variables[equation.target].valueType() == TwValueType::String;
        compile(equation, references, sheet);
    }
    return equation;
}
