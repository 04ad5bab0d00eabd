// Reads pages of the manual, so that tests can hold them to the program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace manual {

/// A file of the source tree, by its path from the root.
std::string read(std::string_view path);

/// Every page, by its path from the root.
std::vector<std::string> pages();

std::vector<std::string> linesOf(std::string_view text);

/// The rows of all tables of a page, their cells without the blanks around them.
std::vector<std::vector<std::string>> tableRows(std::string_view page);

/// An example of a table: a cell `=FORMULA` and, in the next, the result. Empty for other rows.
struct Example {
    std::string formula;  ///< without "="
    std::string result;
};
Example exampleIn(const std::vector<std::string>& row);

/// What a page shows of a terminal (its "console" blocks): calls and all that they print. The line
/// "…" stands for lines that are left out.
struct Call {
    std::string command;
    std::vector<std::string> output;
};
std::vector<Call> calls(std::string_view page);

}  // namespace manual
