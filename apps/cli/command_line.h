// From the words of a call to the work: subcommands, options, help.
#pragma once

#include "cli/io/console.h"

namespace cli {

ExitCode runCommandLine(int argc, const char* const* argv);

}  // namespace cli
