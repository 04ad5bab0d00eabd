// A run's report as the program writes it.
#pragma once

#include <string>

#include "runs/run_report.h"

namespace cli {

std::string reportAsJson(const runs::RunReport& report);

/// Inputs, with `trace` every equation, and outputs.
std::string reportAsText(const runs::RunReport& report, bool trace);

/// Tells on the error stream what went wrong in the run and its children.
void complainAbout(const runs::RunReport& report);

}  // namespace cli
