// Equations that would fail, and what they do with the variables.
#include "standards/check/standard_check.h"
#include "standards/words.h"

namespace {

/// Finds variables in expressions: plain words through an index, the others one by one.
class NamesInText {
  public:
    explicit NamesInText(const TwVarCells& variables)
        : m_variables(variables), m_words(variables.length()) {
        for (int i = 0; i < variables.length(); ++i) {
            const Vor_String& name = variables[i].name();
            if (!isPlainWord(name))
                m_others.push_back(i);
            else if (!name.isEmpty())
                m_words.add(name, i);
        }
    }

    /// Calls visit(variable, quoted) for each that occurs; `quoted`: inside a text.
    template <class Visit>
    void each(std::string_view text, Visit&& visit) const {
        bool quoted = false;
        eachWord(
            text,
            [&](std::string_view word) {
                const int index = m_words.find(word);
                if (index >= 0) visit(index, quoted);
            },
            [&](std::string_view other) {
                for (const char c : other) quoted ^= c == '"';
            });
        for (const int index : m_others) {
            Vor_String replaced(text);
            if (replaceVariables(replaced, {m_variables[index].name()}, {"0"}, false))
                visit(index, false);
        }
    }

  private:
    const TwVarCells& m_variables;
    TextIndex m_words;
    std::vector<int> m_others;
};

Vor_String describeRefusal(StandardCheck& check, const PreparedEquation& equation) {
    if (equation.kind == PreparedEquation::Kind::irregular) return *equation.detail;
    return "the equation would be refused: " + *equation.detail + " (in " +
           Vor_String(check.sheet.prepared()->formulaOf(equation).view()) + ")";
}

void checkLocal(StandardCheck& check, const TwVarCell& variable, const StandardCheck::Use& use) {
    const control::CellAddress cell{variable.column(), variable.row()};
    const Vor_String quoted = "\"" + variable.name() + "\"";
    const bool dropsResult = use.dropsResult.row > 0;
    if (!use.isRead && !use.isAssigned) {
        // A local that only stands in calls takes results that are not wanted.
        if (!dropsResult) check.warn(cell, "nothing uses the local " + quoted);
        return;
    }
    if (dropsResult)
        check.warn(use.dropsResult, "the child's result is lost: " + quoted +
                                        " is a local; declare it as an output");
    if (!use.isRead)
        check.warn(cell, "the local " + quoted + " is assigned and never used");
    else if (!use.isAssigned)
        check.warn(cell, "the local " + quoted + " is used and never assigned: it is empty");
    else if (use.readTooEarly.row > 0)
        check.warn(use.readTooEarly,
                   "the local " + quoted + " is used before the equation that assigns it");
}

void checkQuoted(StandardCheck& check, const PreparedEquation& equation, int variable) {
    const Vor_String& name = check.variables[variable].name();
    check.warn(equation.cell, "the text in quotes holds the variable name \"" + name +
                                  "\", which is replaced by a cell even there: rename one of them");
}

}  // namespace

void checkEquations(StandardCheck& check) {
    const NamesInText names(check.variables);
    for (const PreparedEquation& equation : check.equations()) {
        switch (equation.kind) {
            case PreparedEquation::Kind::childCall:
                checkChildCall(check, equation);
                continue;
            case PreparedEquation::Kind::irregular:
            case PreparedEquation::Kind::refused:
                check.error(equation.cell, describeRefusal(check, equation));
                if (equation.name().empty()) continue;  // a label uses nothing
                break;
            case PreparedEquation::Kind::ordinary:
                break;
        }
        names.each(equation.expression(), [&](int variable, bool quoted) {
            check.read(variable, equation.cell);
            if (quoted) checkQuoted(check, equation, variable);
        });
        if (equation.target >= 0)
            check.uses[static_cast<size_t>(equation.target)].isAssigned = true;
    }
}

void checkUse(StandardCheck& check) {
    for (int i = 0; i < check.variables.length(); ++i) {
        const TwVarCell& variable = check.variables[i];
        const StandardCheck::Use& use = check.uses[static_cast<size_t>(i)];
        const control::CellAddress cell{variable.column(), variable.row()};
        const Vor_String quoted = "\"" + variable.name() + "\"";
        if (variable.isOutput() && !use.isAssigned)
            check.warn(cell, "no equation assigns the output " + quoted);
        if (variable.isInput() && !use.isRead)
            check.warn(cell, "no equation uses the input " + quoted);
        if (variable.isLocal()) checkLocal(check, variable, use);
    }
}
