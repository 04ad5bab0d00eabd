// Reads pages of the manual, so that tests can hold them to the program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace manual {

/// A file of the source tree, by its path from the root.
std::string read(std::string_view path);

/// The rows of all tables of a page, their cells without the blanks around them.
std::vector<std::vector<std::string>> tableRows(std::string_view page);

/// What stands between the backquotes of a cell.
std::string code(std::string_view cell);

}  // namespace manual
