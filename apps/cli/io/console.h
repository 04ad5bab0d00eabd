// What the program says to the person who called it: exit codes and the error stream. Messages go
// out as "vormant: file:line: message", in UTF-8, one call a line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class ExitCode {
    done = 0,
    failed = 1,     ///< the call was right, the work did not succeed
    wrongCall = 2,  ///< the call itself made no sense; nothing was begun
};

/// "vormant: message".
void complain(std::string_view message);
/// "vormant: file:line: message"; a line below 1 is left out.
void complainAt(std::string_view file, long long line, std::string_view message);

/// A message that the module made, in Windows-1252: "file:line: what: what to do".
void complainText(std::string_view windows1252);
/// The same for the lines of a message box.
void complainLines(const std::vector<std::string>& windows1252);

/// How many lines of a filter's input got an error record; nothing is said when none did.
void complainAboutLines(long long failed, long long lines);

}  // namespace cli
