// All that happened in one standards run, kept for showing: each equation in its order, child runs
// inside the equation that called them, and every message that a user would have seen.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "mapping/tw_var_cells.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "standards/run_observer.h"

namespace runs {

struct RunReport;

/// True for an error such as "#DIV/0!", which must not be taken for a result.
bool isErrorText(std::string_view value);

struct ReportedEquation {
    int row = 0;
    int column = 0;
    std::string text;  // all texts in Windows-1252
    std::string name;
    std::string formula;
    std::string value;
    bool ok = false;
    std::string message;               ///< why it failed
    std::unique_ptr<RunReport> child;  ///< of a child call that was begun
};

struct RunReport {
    struct Variable {
        std::string name;
        std::string value;
        /// Place among the inputs and outputs as declared, from 0: the one by which calls pass
        /// values. -1 for locals.
        int position = -1;
    };
    std::string path;
    bool ok = false;
    Vor_String failure;             ///< why the run, or what belongs to it, failed
    std::vector<Variable> inputs;   ///< with the values that were given
    std::vector<Variable> outputs;  ///< an Int's is whole, but for a child's, which hands on more
    std::vector<Variable> locals;
    std::vector<ReportedEquation> equations;
    /// Each a list of lines; a parent's hold those of its children too.
    std::vector<std::vector<std::string>> messages;
    /// Inputs that came without a value from the macro.
    std::vector<std::string> unreadInputs;

    /// The run and every equation in it succeeded, children too.
    bool equationsDone() const;
    /// And no output is an error. (A child's may be: its parent can make something of it.)
    bool outputsDone() const;
    /// And every input had a value.
    bool allWell() const { return outputsDone() && unreadInputs.empty(); }
};

/// Fills in a report while it exists; message boxes and printed lines go nowhere else.
class RunRecorder : private RunObserver, private Host {
  public:
    explicit RunRecorder(RunReport& report);
    ~RunRecorder() override;

  private:
    void runStarted(std::string_view path, int depth) override;
    void equationDone(const EquationReport& equation) override;
    void childStarted(std::string_view path, int row, int column) override;
    void childEnded(bool ok) override;
    void warning(std::string_view text) override;
    void valuesGiven(const TwVarCells& variables) override;
    void inputUnread(std::string_view name) override;
    void variablesKnown(const TwVarCells& variables) override;
    void runEnded(bool ok) override;
    void print(std::string_view text) override;

    RunReport& current() { return m_children.empty() ? m_report : *m_children.back(); }
    void addMessage(const std::vector<std::string>& lines);

    RunReport& m_report;
    std::vector<std::unique_ptr<RunReport>> m_children;  // running, the innermost last
    std::unique_ptr<RunReport> m_endedChild;             // its equation is reported next
    RunObserver* m_observerBefore;
    HostScope m_host;
    MessageListenerScope m_listener;
};

}  // namespace runs
