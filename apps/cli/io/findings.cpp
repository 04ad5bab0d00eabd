#include "cli/io/findings.h"

#include <algorithm>

#include "cli/io/typed_paths.h"
#include "exchange/texts.h"

namespace cli {

void appendFinding(std::string& text, const std::string& file, const Finding& finding) {
    std::string place = file + ":";
    if (finding.row > 0) place += std::to_string(finding.row) + ":";
    if (finding.column > 0) place += std::to_string(finding.column) + ":";
    std::string message = shownMessage(finding.message);
    if (message.starts_with(place)) {
        // A damaged file: the message itself begins with the place, the line included.
        const size_t end = std::min(message.find(' ', place.size()), message.size());
        place = message.substr(0, end);
        message.erase(0, end + 1);
    }
    const bool isError = finding.severity == Finding::Severity::error;
    text += exchange::shortened(place + (isError ? " error: " : " warning: ") + message + '\n');
}

}  // namespace cli
