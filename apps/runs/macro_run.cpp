#include "runs/macro_run.h"

#include "core_api/macros/macro_access.h"
#include "core_api/macros/macro_file.h"
#include "mapping/mapping_file.h"
#include "mapping/start_dlg_standards_ss.h"

namespace runs {

namespace {

Vor_StringArray keysOf(const Vor_StringArray& lines) {
    Vor_StringArray keys;
    for (const Vor_String& line : lines)
        if (const Vor_String key = mappingLineKey(line); !key.isEmpty()) keys.append(key);
    return keys;
}

/// False, with the reason, when nothing of the macro would reach the standard under this key.
bool hasMapping(const TwDlgStandardsData& data, Vor_String& failure) {
    if (!data.moduleName.isEmpty()) {
        Vor_StringArray modules;
        if (getModNamesOfGroup(data.macro->macroRead(), data.moduleName, modules) == Acad::eOk &&
            !modules.isEmpty())
            return true;
        failure = "key \"" + data.mappingKey + "\": the macro has no such group or module";
        return false;
    }
    const auto lines = readMappingLines(data.standardsName, &failure);
    if (!lines) return false;
    if (findMappingLine(*lines, data.mappingKey) >= 0) return true;
    failure = noSuchKey(data.standardsName, data.mappingKey, *lines);
    return false;
}

}  // namespace

std::unique_ptr<MacroRun> MacroRun::open(const Vor_String& path, Vor_String& failure) {
    std::unique_ptr<MacroRun> run(new MacroRun);
    run->m_path = path;
    run->m_file.opening(macroFilePath(path));
    if (loadMacro(path, run->m_macro, failure) != Acad::eOk) return nullptr;
    run->m_macroData = makeMacroData(run->m_macro);
    run->m_transaction.remember(run->m_macro);
    return run;
}

std::unique_ptr<MacroRun> MacroRun::openToChange(const Vor_String& path, Vor_String& failure) {
    std::string error;
    auto change = files::ExclusiveChange::take(macroFilePath(path), error);
    if (!change) {
        failure = error;
        return nullptr;
    }
    auto run = open(path, failure);
    if (run) run->m_change = std::move(change);
    return run;
}

bool MacroRun::run(const Vor_String& standard, const Vor_String& key,
                   const Vor_StringArray& genNames, const Vor_StringArray& genValues,
                   RunReport& report) {
    TwDlgStandardsData data;
    data.genNames = genNames;
    data.genValues = genValues;
    data.initialize(&m_macro, standard, key, &m_macroData);
    data.transaction = &m_transaction;
    if (!hasMapping(data, report.failure)) return false;
    RunRecorder recorder(report);
    StartDlgStandardsSS(data);
    return true;
}

OpenFile::Saved MacroRun::save(const RunReport& report, Unread unread, Vor_String& failure) {
    if (report.outputsDone() && !report.allWell() && unread == Unread::refused)
        failure = m_path + ": left as it was, since inputs could not be read";
    else if (!report.outputsDone())
        failure = m_path + ": left as it was, since the run did not go well";
    else if (m_macroData.setAllToMacro(&m_macro) != Acad::eOk)
        failure = m_path + ": left as it was, since the macro refuses a value";
    else
        return saveAsIs(failure);
    return OpenFile::Saved::no;
}

OpenFile::Saved MacroRun::saveAsIs(Vor_String& failure) {
    const auto write = [this](std::string& why) {
        Vor_String message;
        const bool isSaved = saveMacro(m_path, m_macro, message) == Acad::eOk;
        why = message.str();
        return isSaved;
    };
    std::string why;
    // Who opened it to change it has kept others away since then.
    const OpenFile::Saved saved = !m_change    ? m_file.save(m_file.path(), write, why)
                                  : write(why) ? OpenFile::Saved::yes
                                               : OpenFile::Saved::no;
    failure = why;
    return saved;
}

Vor_String noSuchKey(const Vor_String& standard, const Vor_String& key,
                     const Vor_StringArray& lines) {
    constexpr int mostShown = 20;
    const Vor_StringArray keys = keysOf(lines);
    std::string listed =
        keys.isEmpty() ? "there is none; check that it is a mapping file" : "there are:";
    for (int i = 0; i < keys.length() && i < mostShown; ++i) listed += "\n  " + keys[i].str();
    if (keys.length() > mostShown)
        listed += "\nand " + std::to_string(keys.length() - mostShown) + " more";
    return mappingFilePath(standard) + ": there is no key \"" + key + "\"; " + listed;
}

Vor_StringArray mappingKeys(const Vor_String& standard) {
    const auto lines = readMappingLines(standard);
    return lines ? keysOf(*lines) : Vor_StringArray();
}

}  // namespace runs
