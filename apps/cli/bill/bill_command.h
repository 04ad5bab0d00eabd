// Bills of macros and tables.
#pragma once

#include <string>
#include <vector>

#include "cli/io/console.h"

namespace cli {

struct BillRequest {
    std::vector<std::string> sources;  ///< macros by name or file, or one CSV file
    std::string output;                ///< empty: CSV on the standard output
    std::string columns;               ///< separated by commas
    std::string group;
    std::string title;
    std::string settings;
    std::string language;  ///< a code (language_codes.h); empty: the usual one
    bool pictures = false;
    int pictureHeight = 0;
    bool json = false;
};
ExitCode makeBill(const BillRequest& request);

}  // namespace cli
