#include "cli/io/findings.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/library.h"
#include "cli/standards/standards_commands.h"
#include "standards/check/standards_check.h"

namespace cli {

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
