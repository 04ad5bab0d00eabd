// For programs that show how a run went (a trace, a report): what happened, as it happens. One
// observer a process; without one a run pays a single pointer test for each event.
#pragma once

#include <string_view>

#include "core_api/text/vor_string.h"
#include "platform/export.h"

class TwVarCells;

/// One cell of the equation area after its turn. Texts live until the call returns.
struct EquationReport {
    int row = 0;               ///< from 1
    int column = 0;            ///< from 1
    std::string_view text;     ///< as the cell showed it
    std::string_view name;     ///< the variable it assigns; empty when there is none
    std::string_view formula;  ///< with cell references; for a child call the call as written
    std::string_view value;    ///< what the equation cell shows; empty for a child call
    bool isChildCall = false;
    bool ok = false;
    std::string_view message;  ///< why it failed, and what to do; empty when it did not
};

class VORMANT_API RunObserver {
  public:
    virtual ~RunObserver() = default;

    /// The document is loaded; `depth` is 0 for the run that was asked for, 1 for its children.
    virtual void runStarted(std::string_view /*path*/, int /*depth*/) {}
    /// False: equations that succeed are not reported, and no texts are made for them.
    virtual bool wantsEveryEquation() const { return true; }
    virtual void equationDone(const EquationReport& /*equation*/) {}
    /// Around the runs of a child call. The equation of the call is reported after childEnded.
    virtual void childStarted(std::string_view /*path*/, int /*row*/, int /*column*/) {}
    virtual void childEnded(bool /*ok*/) {}
    /// The variables with the values that they start with, before any equation.
    virtual void valuesGiven(const TwVarCells& /*variables*/) {}
    /// An input that the macro does not have, or that nothing is mapped to: it is empty.
    virtual void inputUnread(std::string_view /*name*/) {}
    /// Results of a called standard come back in wrong places.
    virtual void resultsShifted(std::string_view text) { warning(text); }
    /// What does not fail a run but should be known: an output that holds an error, names that
    /// are declared twice.
    virtual void warning(std::string_view /*text*/) {}
    /// A data file that an equation asks for is missing or cannot be read: the function fails, and
    /// its result cannot say why. Told once in an outermost run.
    virtual void dataFileFailed(std::string_view text) { warning(text); }
    /// The sheet's variables with their final values, locals too; before runEnded, also of a run
    /// whose equations failed.
    virtual void variablesKnown(const TwVarCells& /*variables*/) {}
    /// Also for a run that failed before runStarted.
    virtual void runEnded(bool /*ok*/) {}
};

/// Installs `observer` (null for none) and gives the one before. The caller keeps it alive until
/// another is installed.
VORMANT_API RunObserver* setRunObserver(RunObserver* observer);
VORMANT_API RunObserver* runObserver();

/// Why the last run that failed did so: file, what, what to do. Empty after a run that succeeded.
VORMANT_API const Vor_String& lastRunFailure();
