// A standard that is run on values again and again: check problems and batches. Everything that a
// run needs is made once; a run itself fills in values and looks at what came back.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/standards/library.h"
#include "platform/window/message_box.h"
#include "runs/named_request.h"
#include "standards/run_observer.h"

namespace cli {

/// Notes the first equation that failed in a run or in a child of it.
class FailureWatch : public RunObserver {
  public:
    FailureWatch() : m_before(setRunObserver(this)) {}
    ~FailureWatch() override { setRunObserver(m_before); }
    FailureWatch(const FailureWatch&) = delete;
    FailureWatch& operator=(const FailureWatch&) = delete;

    void reset() {
        m_failure.clear();
        m_missing.clear();
    }
    /// "row 9: Width=Gap+: why", with its file in front when it is a child's; empty when all went
    /// well.
    const std::string& failure() const { return m_failure; }
    /// The first data file that could not be read, and why; empty when there was none.
    const std::string& missing() const { return m_missing; }

  private:
    bool wantsEveryEquation() const override { return false; }
    void equationDone(const EquationReport& equation) override;
    void dataFileFailed(std::string_view text) override;
    void resultsShifted(std::string_view text) override;
    void childStarted(std::string_view path, int, int) override { m_children.push_back(path); }
    void childEnded(bool) override { m_children.pop_back(); }

    RunObserver* m_before;
    std::string m_failure;                     // UTF-8
    std::string m_missing;                     // UTF-8
    std::vector<std::string> m_shifted;        // UTF-8, each told once
    std::vector<std::string_view> m_children;  // paths of those running, the innermost last
};

/// Message boxes of runs that are alike: each text is told once.
class ReportedOnce {
  public:
    ReportedOnce();

  private:
    std::vector<std::string> m_messages;
    MessageListenerScope m_listener;
};

class ValueRun {
  public:
    /// Nothing, after telling why, when the standard cannot be read.
    static std::unique_ptr<ValueRun> open(const StandardName& standard);

    /// Inputs and outputs. Fill in the inputs, run, read the outputs.
    TwVarCells& cells() { return m_request.cells(); }
    TwDlgStandardsData& data() { return m_request.data(); }

    /// False with the reason (UTF-8) when the run or an equation in it failed, or when an output
    /// came back as an error.
    bool run(std::string& error);

  private:
    explicit ValueRun(runs::NamedRequest request) : m_request(std::move(request)) {}

    runs::NamedRequest m_request;
    FailureWatch m_watch;
    ReportedOnce m_messages;
};

}  // namespace cli
