// A section table as another program hands it over: CSV with a line of column names and one of each
// size, or JSON as it is exported.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/line_source.h"
#include "sections/vor_prof_values_table.h"

namespace cli {

struct ImportedTable {
    Vor_ProfValuesTable table;  ///< has no name yet; only JSON may say how it is drawn
    std::vector<int> lines;     ///< as checkSectionTable wants them
};

struct ImportProblem {
    long long line = 0;   ///< 0: the whole file
    std::string message;  ///< UTF-8
};

/// Nothing, with the reason in `problem`, when the lines are no such table.
std::optional<ImportedTable> tableFromCsv(exchange::LineSource& source, ImportProblem& problem);
std::optional<ImportedTable> tableFromJson(exchange::LineSource& source, ImportProblem& problem);

}  // namespace cli
