// What the single checks of a standard (check_*.cpp) share: the opened standard, what was seen of
// its variables so far, and the findings.
#pragma once

#include <vector>

#include "standards/check/standards_check.h"
#include "standards/prepared_standard.h"
#include "standards/tw_standards_ss.h"

/// A standard opened for reading, not for a run.
class OpenedStandard {
  public:
    /// False, with the reason in lastRunFailure(), when it cannot be loaded. A missing marker
    /// leaves it without variables.
    bool open(const Vor_String& name);

    /// Equations as they would be evaluated. Names that begin with "gen_" and are not declared
    /// stand for a number.
    std::vector<PreparedEquation> equations();

    TwStandardsSS sheet;
    /// Without namesakes.
    TwVarCells variables;
};

struct StandardCheck : OpenedStandard {
    using Severity = StandardsFinding::Severity;

    bool open(const Vor_String& name);
    void add(control::CellAddress cell, Severity severity, const Vor_String& message) {
        findings.push_back({cell.row, cell.col, severity, message});
    }
    void error(control::CellAddress cell, const Vor_String& message) {
        add(cell, Severity::error, message);
    }
    void warn(control::CellAddress cell, const Vor_String& message) {
        add(cell, Severity::warning, message);
    }

    /// What the equations do with a variable.
    struct Use {
        bool isRead = false;
        bool isAssigned = false;
        control::CellAddress readTooEarly;  ///< the first cell that reads it while it has no value
        control::CellAddress dropsResult;   ///< the first call whose result a local does not keep
    };
    std::vector<Use> uses;  ///< by variable
    void read(int variable, control::CellAddress cell);

    std::vector<StandardsFinding> findings;
};

void checkMarkers(StandardCheck& check);
void checkNames(StandardCheck& check);
/// Also notes the uses of the variables.
void checkEquations(StandardCheck& check);
void checkChildCall(StandardCheck& check, const PreparedEquation& equation);
void checkUse(StandardCheck& check);
