// What somebody who hands values in by position took a standard's inputs and outputs to be. The
// file may have been changed since; then a value would stand under another name, and a run fails
// instead.
#pragma once

#include <utility>

#include "mapping/tw_var_cells.h"

/// For the outermost runs that begin while it lives. The cells are borrowed.
class ExpectedVariables {
  public:
    explicit ExpectedVariables(const TwVarCells& cells)
        : m_before(std::exchange(s_cells, &cells)) {}
    ~ExpectedVariables() { s_cells = m_before; }
    ExpectedVariables(const ExpectedVariables&) = delete;
    ExpectedVariables& operator=(const ExpectedVariables&) = delete;

    /// Whether the inputs and outputs among `variables` are those that are expected, if any are.
    static bool areThose(const TwVarCells& variables) {
        if (!s_cells) return true;
        int position = 0;
        for (const TwVarCell& variable : variables) {
            if (variable.isLocal()) continue;
            if (position >= s_cells->length()) return false;
            const TwVarCell& expected = (*s_cells)[position++];
            if (expected.cellType() != variable.cellType() ||
                expected.valueType() != variable.valueType() ||
                expected.name().view() != variable.name().view())
                return false;
        }
        return position == s_cells->length();
    }

  private:
    const TwVarCells* m_before;
    static inline const TwVarCells* s_cells = nullptr;
};
