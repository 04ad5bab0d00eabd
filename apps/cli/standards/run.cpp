#include "core_api/macros/macro_data.h"
#include "core_api/macros/macro_file.h"
#include "core_api/settings.h"
#include "io/output.h"
#include "io/typed_paths.h"
#include "mapping/start_dlg_standards_ss.h"
#include "platform/host/transaction.h"
#include "standards/declarations.h"
#include "standards/library.h"
#include "standards/run_report.h"
#include "standards/standards_commands.h"
#include "standards/variables.h"

namespace cli {

namespace {

/// A run on values. wrongCall when the values are not those that the standard takes.
ExitCode runOnValues(const RunRequest& request, const StandardName& standard, RunReport& report) {
    Vor_String failure;
    const auto declared = listDeclarations(standard.path, failure);
    if (!declared) {
        report.failure = failure;
        return ExitCode::failed;
    }
    TwDlgStandardsData data = requestFor(standard.path, *declared);
    if (!setInputs(data.varCells, request.values) || !setGenValues(data, request.genValues))
        return ExitCode::wrongCall;
    RunRecorder recorder(report);
    StartDlgStandardsSS(data);
    return ExitCode::done;
}

/// The macro's file changes only when all went well.
bool writeMacro(const Vor_String& path, const RunReport& report, Vor_DbMacro& macro,
                const MacroData& macroData, Vor_String& failure) {
    if (!report.allWell())
        failure = path + ": left as it was, since the run did not go well";
    else if (macroData.setAllToMacro(&macro) != Acad::eOk)
        failure = path + ": left as it was, since the macro refuses a value";
    else
        return saveMacro(path, macro, failure) == Acad::eOk;
    return false;
}

ExitCode runOnMacro(const RunRequest& request, const StandardName& standard, RunReport& report) {
    const auto path = insidePath(request.macroFile);
    const auto key = insidePath(request.mappingKey);
    TwDlgStandardsData data;
    if (!path || !key || !setGenValues(data, request.genValues)) return ExitCode::wrongCall;
    Vor_DbMacro macro;
    if (loadMacro(*path, macro, report.failure) != Acad::eOk) return ExitCode::failed;

    MacroData macroData = makeMacroData(macro);
    AcTransaction transaction;
    transaction.remember(macro);
    data.initialize(&macro, standard.path, *key, &macroData);
    data.transaction = &transaction;
    {
        RunRecorder recorder(report);
        StartDlgStandardsSS(data);
    }
    if (request.write && !writeMacro(*path, report, macro, macroData, report.failure))
        return ExitCode::failed;
    transaction.commit();
    return ExitCode::done;
}

}  // namespace

ExitCode runStandard(const RunRequest& request) {
    const auto standard = findStandard(request.name);
    if (!standard) return ExitCode::failed;
    gSettings.current().diagnostics = true;
    RunReport report;
    report.path = standard->path.str();
    const ExitCode result = request.macroFile.empty() ? runOnValues(request, *standard, report)
                                                      : runOnMacro(request, *standard, report);
    if (result == ExitCode::wrongCall) return result;

    Output output;
    output.write(request.json ? reportAsJson(report) + "\n" : reportAsText(report, request.trace));
    const bool written = output.close();
    complainAbout(report);
    return written && result == ExitCode::done && report.allWell() ? ExitCode::done
                                                                   : ExitCode::failed;
}

}  // namespace cli
