// What a batch writes for each of its lines, in order: the outputs, or why there are none.
#pragma once

#include <string>
#include <string_view>

#include "mapping/tw_var_cells.h"

namespace cli {

class BatchOutput {
  public:
    /// CSV with a column "error" behind the outputs, or JSON objects.
    BatchOutput(bool jsonLines, std::string& text) : m_jsonLines(jsonLines), m_text(text) {}

    void writeHeader(const TwVarCells& cells);
    void writeOutputs(const TwVarCells& cells);
    void writeError(const TwVarCells& cells, std::string_view message);

  private:
    void appendCsvValue(const TwVarCell& cell);
    void appendJsonValue(const TwVarCell& cell);

    bool m_jsonLines;
    std::string& m_text;
};

}  // namespace cli
