// Just enough of the zip format to look into a workbook.
#pragma once

#include <string>
#include <string_view>

/// The content of one entry; empty, with a failed test, when it is not there.
std::string zipEntry(std::string_view archive, std::string_view name);
