// Texts inside tab-separated lines: tab, line end, carriage return and backslash are written
// \t \n \r \\, so that any text fits into one field of one line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

void appendEscaped(std::string& line, std::string_view text);

/// The text that `field` stands for. Nothing when a backslash is followed by anything else.
std::optional<std::string> unescaped(std::string_view field);

/// Takes the part before the next `separator` (or all) from `rest`, and the separator with it.
std::string_view takePart(std::string_view& rest, char separator);

/// As takePart for lines; a carriage return before the line end goes too.
std::string_view takeLine(std::string_view& rest);
