#include <algorithm>

#include "io/output.h"
#include "io/texts.h"
#include "io/typed_paths.h"
#include "standards/library.h"
#include "standards/standards_check.h"
#include "standards/standards_commands.h"

namespace cli {

namespace {

void appendFinding(std::string& text, const std::string& file, const StandardsFinding& finding) {
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
    const bool isError = finding.severity == StandardsFinding::Severity::error;
    text += shortened(place + (isError ? " error: " : " warning: ") + message + '\n');
}

}  // namespace

ExitCode checkStandards(const CheckRequest& request) {
    Output output;
    bool clean = true;
    for (const auto& typed : request.files) {
        const auto standard = findStandard(typed);
        if (!standard) {
            clean = false;
            continue;
        }
        for (const auto& finding : checkStandard(standard->path)) {
            appendFinding(output.text(), shownPath(standard->path), finding);
            if (finding.severity == StandardsFinding::Severity::error) clean = false;
        }
        output.written();
    }
    return output.close() && clean ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
