#include "core_api/dialogs/file_dialogs.h"
#include "core_api/settings.h"
#include "core_api/texts/texts.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/start_mapping_dialog.h"
#include "spread/formulas/formulas_dialog.h"
#include "spread/formulas/formulas_starters.h"
#include "standards/run_observer.h"
#include "workbench/module/module_data.h"
#include "workbench/module/starts.h"
#include "workbench/words/workbench_words.h"

namespace starts {

namespace {

constexpr int membersTitle = 24093, openSheetTitle = 24094;
constexpr int sectionWord = 21063, materialWord = 21064, memberWord = 21065;

Vor_Array<Vor_StringArray> memberRows(ModuleData& data) {
    Vor_Array<Vor_StringArray> rows;
    runs::MacroRun* run = data.macro();
    for (int i = 0; run && run->macro().baseProf(i); ++i) {
        const Vor_PrPl& member = *run->macro().baseProf(i);
        rows.append({member.memberName, member.sectionName, member.material});
    }
    return rows;
}

std::string joined(const Vor_StringArray& texts) {
    std::string all;
    for (const Vor_String& each : texts) all += (all.empty() ? "" : ";") + each.str();
    return all;
}

}  // namespace

Outcome grid(ModuleData& data) {
    auto& rows = data.objects.rows;
    if (!rows) rows = memberRows(data);
    const Vor_StringArray columns{dialString(memberWord), dialString(sectionWord),
                                  dialString(materialWord)};
    const Vor_StringArray choices{"", joined(ModuleData::sections("IPE")), ""};
    return changedIf(startGridDialog(columns, choices, *rows, false, "", dialString(membersTitle)));
}

Outcome readSheetFile(ModuleData& data) {
    Vor_String& path = data.objects.sheetFile;
    if (path.isEmpty()) path = standardsFolder();
    if (!DlgOpenSave(Host::current().mainWindow(), true, dialString(openSheetTitle),
                     dialString(wordSheetFiles), "tws", path))
        return Outcome::cancelled;
    Vor_String title;
    Vor_StringArray header;
    Vor_Array<Vor_StringArray> rows;
    if (!ReadSSFile(path, title, header, rows)) return Outcome::failed;
    startGridDialog(header, {}, rows, true, "", title);
    return Outcome::succeeded;
}

Outcome formulas(ModuleData&) {
    TwFormulasDlg dialog(Host::current().mainWindow());
    return changedIf(dialog.doModal() == IDOK);
}

Outcome evaluate(ModuleData&) {
    EvaluateSS();
    return Outcome::closed;
}

// --- standards ----------------------------------------------------------------------------------

Outcome attachStandards(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    Vor_DbMacro edited = run->macro();
    bool isChanged = false;
    if (!startMappingDialog(edited, isChanged)) return Outcome::cancelled;
    if (isChanged)
        data.changeMacro(run->path(), [&](Vor_DbMacro& macro) {
            macro.macroWrite()->setStandards(edited.macroRead()->standards());
        });
    return Outcome::changed;
}

Outcome runStandard(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    const TabMappingData attached = run->macro().macroRead()->standards();
    if (attached.length() == 0) return Outcome::noStandards;
    runs::RunReport report;
    const bool isBegun =
        run->run(attached.standardsNames()[0], attached.mappingKeys()[0], {}, {}, report);
    if (!report.failure.isEmpty()) acutPrint(report.failure + "\n");
    if (!isBegun || !report.allWell()) return Outcome::failed;
    data.changeMacro(run->path(), [](Vor_DbMacro&) {});
    return Outcome::succeeded;
}

Outcome selfTest(ModuleData&) {
    return StartDlgStandardsSStest() ? Outcome::succeeded : Outcome::failed;
}

}  // namespace starts
