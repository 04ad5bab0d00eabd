#include "io/findings.h"
#include "io/output.h"
#include "io/typed_paths.h"
#include "standards/library.h"
#include "standards/standards_check.h"
#include "standards/standards_commands.h"

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
