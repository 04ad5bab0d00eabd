// The "sheet" subcommands: documents and formulas without standards.
#pragma once

#include <string>
#include <vector>

#include "cli/io/console.h"

namespace cli {

struct ShowRequest {
    std::string file;
    bool formulas = false;  ///< formulas instead of their results
};
ExitCode showSheet(const ShowRequest& request);

struct EvalRequest {
    std::string formula;
    std::vector<std::string> cells;  ///< "A1=10"
    bool jsonLines = false;
    std::string input = "-";  ///< of a filter
};
ExitCode evalFormula(const EvalRequest& request);

struct ConvertRequest {
    std::string from;
    std::string to;
};
ExitCode convertSheet(const ConvertRequest& request);

}  // namespace cli
