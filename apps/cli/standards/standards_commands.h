// The "standards" subcommands. The library is open when they are called (standards/library.h).
#pragma once

#include <string>
#include <vector>

#include "cli/io/console.h"

namespace cli {

ExitCode listStandards();

struct CheckRequest {
    std::vector<std::string> files;
};
ExitCode checkStandards(const CheckRequest& request);

struct TestRequest {
    std::vector<std::string> names;
    bool all = false;
};
ExitCode testStandards(const TestRequest& request);

struct RunRequest {
    std::string name;
    std::vector<std::string> values;     ///< "Name=Value"
    std::vector<std::string> genValues;  ///< "Name=Value"
    std::string macroFile;
    std::string mappingKey;
    /// The macro back into its file: not when empty, "always" also when inputs could not be read.
    std::string write;
    bool trace = false;
    bool json = false;
};
ExitCode runStandard(const RunRequest& request);

struct BatchRequest {
    std::string name;
    std::string input = "-";
    std::vector<std::string> genValues;
    bool jsonLines = false;
    bool header = true;  ///< write the line of names
};
ExitCode batchStandard(const BatchRequest& request);

}  // namespace cli
