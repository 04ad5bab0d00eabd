#include "console.h"
#include "core_api/macros/macro_access.h"
#include "core_api/macros/macro_data.h"
#include "core_api/macros/macro_file.h"
#include "core_api/settings.h"
#include "io/output.h"
#include "io/texts.h"
#include "io/typed_paths.h"
#include "mapping/mapped_standard.h"
#include "mapping/mapping_file.h"
#include "mapping/start_dlg_standards_ss.h"
#include "platform/host/transaction.h"
#include "runs/named_request.h"
#include "standards/library.h"
#include "standards/run_report_output.h"
#include "standards/standards_commands.h"
#include "standards/variables.h"

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

/// The macro's file changes only when all went well.
bool writeMacro(const Vor_String& path, const runs::RunReport& report, Vor_DbMacro& macro,
                const MacroData& macroData, Vor_String& failure) {
    if (!report.allWell())
        failure = path + ": left as it was, since the run did not go well";
    else if (macroData.setAllToMacro(&macro) != Acad::eOk)
        failure = path + ": left as it was, since the macro refuses a value";
    else
        return saveMacro(path, macro, failure) == Acad::eOk;
    return false;
}

/// False, with the reason, when nothing of the macro would reach the standard under this key.
bool hasMapping(const StandardName& standard, const TwDlgStandardsData& data, Vor_String& failure) {
    if (!data.moduleName.isEmpty()) {
        Vor_StringArray modules;
        if (getModNamesOfGroup(data.macro->macroRead(), data.moduleName, modules) == Acad::eOk &&
            !modules.isEmpty())
            return true;
        failure = "--key " + data.mappingKey + ": the macro has no such group or module";
        return false;
    }
    const auto lines = readMappingLines(standard.mappingName(), &failure);
    if (!lines) return false;
    if (findMappingLine(*lines, data.mappingKey) >= 0) return true;
    failure = noSuchKey(standard.mappingName(), data.mappingKey, *lines);
    return false;
}

ExitCode runOnMacro(const RunRequest& request, const StandardName& standard,
                    runs::RunReport& report) {
    const auto path = insidePath(request.macroFile);
    std::string key, error;
    TwDlgStandardsData data;
    if (!path || !setGenValues(data, request.genValues)) return ExitCode::wrongCall;
    if (!fromUtf8(request.mappingKey, key, error)) {
        complain("--key " + request.mappingKey + ": " + error);
        return ExitCode::wrongCall;
    }
    Vor_DbMacro macro;
    if (loadMacro(*path, macro, report.failure) != Acad::eOk) return ExitCode::failed;

    MacroData macroData = makeMacroData(macro);
    AcTransaction transaction;
    transaction.remember(macro);
    data.initialize(&macro, standard.mappingName(), key, &macroData);
    data.transaction = &transaction;
    if (!hasMapping(standard, data, report.failure)) return ExitCode::failed;
    {
        runs::RunRecorder recorder(report);
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
    return written && result == ExitCode::done && report.allWell() ? ExitCode::done
                                                                   : ExitCode::failed;
}

}  // namespace cli
