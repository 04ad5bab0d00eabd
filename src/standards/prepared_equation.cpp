#include "standards/prepared_equation.h"

#include "core_api/text/text_helpers.h"
#include "mapping/run_timers.h"
#include "standards/native_functions.h"

namespace {

struct Parts {
    std::string_view name, expression;
    bool hasSymbol = false;
};

Parts split(std::string_view text) {
    const size_t symbol = text.find('=');
    if (symbol == std::string_view::npos) return {{}, text, false};
    return {trimmed(text.substr(0, symbol)), trimmed(text.substr(symbol + 1)), true};
}

int findTarget(std::string_view name, const VariableReferences& references) {
    const Vor_FunctionTimer timer(gCalcCellFindVarCell);
    return references.find(name);
}

bool findNative(std::string_view expression, PreparedEquation& equation) {
    const Vor_FunctionTimer timer(gCalcCellFindFunctions);
    Vor_String function;
    if (!findNativeFunction(expression, function)) return false;
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

void compile(std::string_view expression, PreparedEquation& equation,
             const VariableReferences& references, const control::Sheet& sheet) {
    const auto [col, row] = equation.cell;
    formula::ParseSettings settings = sheet.parseSettings(col, row);
    settings.style = formula::ReferenceStyle::a1;  // variables become A1 references in every sheet
    settings.isShared = false;
    equation.program = parsedWithNames(expression, settings, references);
    formula::ParseError error;
    if (!equation.program)
        equation.program = formula::parse(translated(expression, references), settings, error);
    equation.kind =
        equation.program ? PreparedEquation::Kind::ordinary : PreparedEquation::Kind::refused;
    if (!equation.program) equation.detail = std::make_unique<Vor_String>(error.message);
}

}  // namespace

std::string_view PreparedEquation::name() const {
    return split(text.view()).name;
}

std::string_view PreparedEquation::expression() const {
    return split(text.view()).expression;
}

const SharedText& PreparedEquation::formula(const VariableReferences& references) const {
    if (!m_formula.block()) m_formula = SharedText(translated(expression(), references));
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
    Parts parts;
    {
        const Vor_FunctionTimer timer(gCalcCellSplitSymbol);
        parts = split(equation.text.view());
    }
    equation.target = findTarget(parts.name, references);
    if (findNative(parts.expression, equation)) {
        equation.kind = PreparedEquation::Kind::childCall;
    } else if (!parts.hasSymbol) {
        equation.detail = std::make_unique<Vor_String>(
            "there is no \"=\" in it: write Name=expression, or move labels out "
            "of the rows below \"Calc\"");
    } else if (equation.target < 0) {
        equation.detail = std::make_unique<Vor_String>(
            Vor_String("no variable \"") + parts.name +
            "\" is declared: declare it below \"Input\", \"Output\" or \"Local\"");
    } else {
        const Vor_FunctionTimer timer(gCalcCellCalcFunctionsPrepare);
        equation.givesText = variables[equation.target].valueType() == TwValueType::String;
        compile(parts.expression, equation, references, sheet);
    }
    return equation;
}
