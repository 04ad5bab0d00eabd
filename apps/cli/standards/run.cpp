#include "cli/io/console.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/library.h"
#include "cli/standards/run_report_output.h"
#include "cli/standards/standards_commands.h"
#include "cli/standards/variables.h"
#include "core_api/settings.h"
#include "exchange/texts.h"
#include "runs/macro_run.h"
#include "runs/named_request.h"

namespace cli {

namespace {

/// A run on values. wrongCall when the values are not those that the standard takes.
ExitCode runOnValues(const RunRequest& request, const StandardName& standard,
                     runs::RunReport& report) {
    auto named = runs::NamedRequest::open(standard.path, report.failure);
    if (!named) return ExitCode::failed;
    if (!setInputs(named->cells(), request.values) ||
        !setGenValues(named->data(), request.genValues))
        return ExitCode::wrongCall;
    runs::RunRecorder recorder(report);
    named->start();
    return ExitCode::done;
}

ExitCode runOnMacro(const RunRequest& request, const StandardName& standard,
                    runs::RunReport& report) {
    const auto path = insidePath(request.macroFile);
    std::string key, error;
    TwDlgStandardsData data;
    if (!path || !setGenValues(data, request.genValues)) return ExitCode::wrongCall;
    if (!exchange::fromUtf8(request.mappingKey, key, error)) {
        complain("--key " + request.mappingKey + ": " + error);
        return ExitCode::wrongCall;
    }
    const auto run = !request.write.empty() ? runs::MacroRun::openToChange(*path, report.failure)
                                            : runs::MacroRun::open(*path, report.failure);
    if (!run) return ExitCode::failed;
    if (!run->run(standard.mappingName(), key, data.genNames, data.genValues, report))
        return ExitCode::failed;
    const auto unread = request.write == "always" ? runs::MacroRun::Unread::written
                                                  : runs::MacroRun::Unread::refused;
    if (!request.write.empty() && run->save(report, unread, report.failure) != OpenFile::Saved::yes)
        return ExitCode::failed;
    return ExitCode::done;
}

}  // namespace

ExitCode runStandard(const RunRequest& request) {
    const auto standard = findStandard(request.name);
    if (!standard) return ExitCode::failed;
    gSettings.current().diagnostics = true;
    runs::RunReport report;
    report.path = standard->path.str();
    const ExitCode result = request.macroFile.empty() ? runOnValues(request, *standard, report)
                                                      : runOnMacro(request, *standard, report);
    if (result == ExitCode::wrongCall) return result;

    Output output;
    if (request.json)
        output.write(reportAsJson(report) + "\n");
    else if (result == ExitCode::done || !report.equations.empty())
        output.write(reportAsText(report, request.trace));
    const bool written = output.close();
    complainAbout(report);
    const bool isWell = request.write == "always" ? report.outputsDone() : report.allWell();
    return written && result == ExitCode::done && isWell ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
