// A run on values that are given by name. A run itself takes them by position, in the order in
// which the sheet declares them; that order is known here alone.
#pragma once

#include <memory>
#include <vector>

#include "mapping/tw_dlg_standards_data.h"

namespace runs {

class NamedRequest {
  public:
    /// Nothing, with the reason in `failure`, when the standard cannot be read.
    static std::optional<NamedRequest> open(const Vor_String& path, Vor_String& failure);

    /// The inputs and outputs, each name once. Fill in the inputs, start, read the outputs.
    TwVarCells& cells() { return m_isPlain ? m_data.varCells : m_cells; }
    TwDlgStandardsData& data() { return m_data; }

    /// Runs the standard; see StartDlgStandardsSS. Fails when its file declares other inputs and
    /// outputs by now.
    bool start();

  private:
    void roundInts();
    void append(const TwVarCell& declared, bool isNew);

    TwDlgStandardsData m_data;
    /// No name is declared twice, so that the data's own cells serve as cells().
    bool m_isPlain = true;
    TwVarCells m_cells;
    std::vector<int> m_sources;  // which of m_cells gives each of the data's cells its value
};

}  // namespace runs
