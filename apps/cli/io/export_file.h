// What the export commands write: CSV or JSON, to a file or the standard output ("-").
#pragma once

#include <string>

#include "cli/io/console.h"
#include "core_api/text/vor_string_array.h"

namespace cli {

/// A record of a CSV file, its fields in UTF-8.
void appendRecord(std::string& text, const Vor_StringArray& fields);

struct ExportTarget {
    std::string file = "-";
    bool json = false;  ///< asked for; a .json file says so itself

    bool isJson() const;
    /// False, after telling it, when the name of the file says neither CSV nor JSON.
    bool isValid() const;
    ExitCode write(const std::string& text) const;
};

}  // namespace cli
