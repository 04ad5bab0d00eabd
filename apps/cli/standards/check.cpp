#include "io/output.h"
#include "io/typed_paths.h"
#include "standards/library.h"
#include "standards/standards_check.h"
#include "standards/standards_commands.h"

namespace cli {

namespace {

void appendFinding(std::string& text, const std::string& file, const StandardsFinding& finding) {
    text += file + ":";
    if (finding.row > 0) text += std::to_string(finding.row) + ":";
    if (finding.column > 0) text += std::to_string(finding.column) + ":";
    text += finding.severity == StandardsFinding::Severity::error ? " error: " : " warning: ";
    text += shownMessage(finding.message);
    text += '\n';
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
