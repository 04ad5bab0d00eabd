// Runs of a standard by the engine, on a sheet that is shown and on hidden ones, against the
// literal reading of the same run.
#pragma once

#include <functional>
#include <utility>

#include "mapping/start_dlg_standards_ss.h"
#include "platform/window/message_box.h"
#include "standards/run_chain.h"
#include "standards/run_observer.h"
#include "standards/standards_dialog.h"
#include "support/literal_run.h"
#include "support/shown_cells.h"

/// What came of a run, to be compared line by line.
struct RunResult {
    bool done = false;
    std::string variables;
    std::string outputs;  ///< as they came back
    std::string told;     ///< message boxes
    std::string cells;    ///< all that a sheet that is shown shows

    /// The first part that differs, or the empty text. Cells count where both have them.
    std::string difference(const RunResult& other) const {
        const auto compared = [](const char* what, const std::string& a, const std::string& b) {
            return a == b ? std::string() : std::string(what) + ":\n" + a + "\nbut\n" + b;
        };
        std::string text = done == other.done ? "" : "one of them failed\n";
        text += compared("messages", told, other.told);
        if (!done || !other.done) return text;
        text += compared("variables", variables, other.variables);
        text += compared("outputs", outputs, other.outputs);
        if (!cells.empty() && !other.cells.empty()) text += compared("cells", cells, other.cells);
        return text;
    }
};

class CompareRuns : private RunObserver {
  public:
    /// `others` are other values for the same variables, by position.
    CompareRuns(const Vor_String& path, const std::vector<LiteralVariable>& given,
                const GenValues& gen, const std::vector<Vor_String>& others = {})
        : m_path(path), m_given(given), m_gen(gen), m_others(others) {}

    /// How the engine differs from the literal reading, or the empty text.
    std::string difference() {
        gSettings.current().diagnostics = true;
        const RunResult literal = runLiteral();
        m_wentWell = literal.done;
        // The first hidden run prepares the document, the second finds it prepared; who wants to
        // hear of every equation gets them another way.
        const std::pair<const char*, RunResult> others[] = {{"hidden", runHidden(false)},
                                                            {"hidden, again", runHidden(false)},
                                                            {"observed", runHidden(true)},
                                                            {"shown", runShown()}};
        for (const auto& [way, result] : others)
            if (const std::string text = result.difference(literal); !text.empty())
                return std::string(way) + " differs from the literal reading in " + text;
        return m_others.empty() ? std::string() : differenceOfTurns();
    }

    /// The literal run came to its end.
    bool wentWell() const { return m_wentWell; }

  private:
    /// Hidden runs find the sheet as the one before left it: what that gave must not show.
    std::string differenceOfTurns() {
        const std::vector<LiteralVariable> first = m_given;
        const GenValues gen = std::exchange(m_gen, {});
        const auto takeOthers = [&] {
            for (size_t i = 0; i < m_given.size() && i < m_others.size(); ++i)
                m_given[i].value = m_others[i];
        };
        const std::function<void()> turns[] = {[] {}, takeOthers, [] {}, [&] { m_given = first; },
                                               [&] { m_gen = gen; }};
        int number = 0;
        for (const auto& change : turns) {
            change();
            ++number;
            const RunResult literal = runLiteral();
            if (const std::string text = runHidden(false).difference(literal); !text.empty())
                return "turn " + std::to_string(number) + " differs from the literal reading in " +
                       text;
        }
        return {};
    }

    static std::string line(const Vor_String& name, const Vor_String& value) {
        return name.str() + " = " + value.str() + "\n";
    }

    /// Without what all messages about equations say.
    static std::string shortened(const std::string& text) {
        return text.substr(0, text.find("\nHere's a tip")) + "\n";
    }

    RunResult runLiteral() {
        RunResult result;
        std::vector<std::string> told;
        std::vector<LiteralVariable> given = m_given;
        LiteralRun run(m_gen, told);
        result.done = run.start(m_path, given);
        for (const std::string& text : told) result.told += shortened(text);
        for (const LiteralVariable& variable : run.variables)
            result.variables += line(variable.name, variable.value);
        for (const LiteralVariable& variable : given)
            result.outputs += line(variable.name, variable.value);
        result.cells = shownCells(run);
        return result;
    }

    TwDlgStandardsData data() const {
        TwDlgStandardsData data;
        data.mode = TwDlgStandardsData::Mode::variables;
        data.standardsName = m_path;
        data.genNames = m_gen.names;
        data.genValues = m_gen.values;
        for (const LiteralVariable& variable : m_given)
            data.varCells.append(
                TwVarCell(variable.name, variable.kind, variable.type, variable.value));
        return data;
    }

    template <class Run>
    RunResult observed(Run&& run) {
        RunResult result;
        const MessageListenerScope listener([&](const MessageBox& box) {
            result.told += shortened(box.text);
            return true;
        });
        RunObserver* before = setRunObserver(this);
        m_variables.clear();
        TwDlgStandardsData data = this->data();
        result.done = run(data, result);
        setRunObserver(before);
        result.variables = m_variables;
        for (const TwVarCell& variable : data.varCells)
            result.outputs += line(variable.name(), variable.value());
        return result;
    }

    RunResult runHidden(bool wantsEvery) {
        m_wantsEvery = wantsEvery;
        return observed(
            [](TwDlgStandardsData& data, RunResult&) { return StartDlgStandardsSS(data); });
    }

    RunResult runShown() {
        m_wantsEvery = true;
        return observed([](TwDlgStandardsData& data, RunResult& result) {
            const auto dialog = StandardsDialog::make();
            dialog->spread().setFillsEquationCells(true);
            dialog->data() = data;
            RunningStandard running;
            const bool done = dialog->run(running) == Acad::eOk;
            data = dialog->data();
            result.cells = shownCells(dialog->spread());
            return done;
        });
    }

    bool wantsEveryEquation() const override { return m_wantsEvery; }
    // The outermost run tells last.
    void variablesKnown(const TwVarCells& variables) override {
        m_variables.clear();
        for (const TwVarCell& variable : variables)
            m_variables += line(variable.name(), variable.value());
    }

    const Vor_String m_path;
    std::vector<LiteralVariable> m_given;
    GenValues m_gen;
    const std::vector<Vor_String> m_others;
    bool m_wentWell = false;
    bool m_wantsEvery = false;
    std::string m_variables;
};
