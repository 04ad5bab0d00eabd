// Findings of a check as editors can jump to them: "file:row:column: error: message".
#pragma once

#include <string>

#include "core_api/finding.h"

namespace cli {

/// `file` as people write it.
void appendFinding(std::string& text, const std::string& file, const Finding& finding);

}  // namespace cli
