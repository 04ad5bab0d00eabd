#include "core_api/dialogs/file_dialogs.h"
#include "core_api/files.h"
#include "core_api/macros/vor_bolt_module.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "designer/designer_templates.h"
#include "platform/host/host.h"
#include "workbench/module/module_data.h"
#include "workbench/module/starts.h"

namespace starts {

// --- the macro dialog ---------------------------------------------------------------------------

Outcome macro(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    const MacroData before = run->macroData();
    MacroData edited = before;
    StartDlgMacro(edited);
    if (edited == before) return Outcome::cancelled;
    data.changeMacro(run->path(), [&](Vor_DbMacro& macro) { edited.setAllToMacro(&macro); });
    return Outcome::changed;
}

Outcome macroModeless(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    return data.openMacros.open(run->path(), run->macroData()) ? Outcome::opened : Outcome::failed;
}

Outcome takeMacroData(ModuleData& data) {
    return data.openMacros.takeLast() ? Outcome::changed : Outcome::noneOpen;
}

Outcome endMacroModeless(ModuleData& data) {
    return data.openMacros.endLast() ? Outcome::closed : Outcome::noneOpen;
}

Outcome destroyAllMacros(ModuleData& data) {
    return data.openMacros.endAll() ? Outcome::closed : Outcome::noneOpen;
}

// --- constraints --------------------------------------------------------------------------------

namespace {

/// What the dialog cannot know: how much a module may hold.
void showUnlessOk(ErrorStatus status, const Vor_String& module) {
    constexpr int keptText = 26932;
    if (status == Acad::eOk) return;
    Vor_String message = dialString(keptText);
    message.replaceSubString("%1", module);
    acutPrint(message + "\n");
}

/// A new one, or that of the module with the edited values. One without a button stays so.
ConstraintVariable variableOf(const EditConstraint& edited, const Vor_Module& module) {
    const Vor_FlexState flex = edited.isFixed ? Vor_FlexState::fixed : Vor_FlexState::flexible;
    const ConstraintVariable* before = module.findVariable(edited.name);
    if (!before) return {edited.name, edited.value, true, true, flex};
    const bool hasButton = before->flex != Vor_FlexState::none;
    return {edited.name, edited.value, before->inDialog, before->isEditable,
            hasButton ? flex : Vor_FlexState::none};
}

void setConstraints(Vor_Module& module, const EditConstrData& confirmed) {
    Vor_Array<ConstraintVariable> variables;
    for (const EditConstraint& each : confirmed.constraints)
        variables.append(variableOf(each, module));
    showUnlessOk(module.setVariables(std::move(variables)), module.name());
}

/// The one that was edited last, else the first that has any, else the first; null without modules.
const Vor_Module* moduleWithConstraints(runs::MacroRun& run, const ModuleData& data) {
    const Vor_Macro& macro = *run.macro().macroRead();
    const auto& last = data.objects.constrained;
    const Vor_Module* edited = last.macro == run.path() ? macro.findModule(last.name) : nullptr;
    if (edited) return edited;
    for (int i = 0; i < macro.moduleCount(); ++i)
        if (!macro.module(i).variables().isEmpty()) return &macro.module(i);
    return macro.moduleCount() > 0 ? &macro.module(0) : nullptr;
}

/// Confirmed ones go into the macro.
EditConstrData constraintsOf(runs::MacroRun& run, ModuleData& data) {
    EditConstrData edited;
    if (const Vor_Module* module = moduleWithConstraints(run, data)) {
        edited.moduleName = module->name();
        for (const ConstraintVariable& each : module->variables())
            edited.constraints.append(
                {each.name, each.value, false, each.flex == Vor_FlexState::fixed});
    }
    edited.apply = [&data, path = run.path()](const EditConstrData& confirmed) {
        data.objects.constrained = {path, confirmed.moduleName};
        data.changeMacro(path, [&](Vor_DbMacro& dbMacro) {
            Vor_Module* module = dbMacro.macroWrite()->findModuleWrite(confirmed.moduleName);
            if (module) setConstraints(*module, confirmed);
        });
    };
    return edited;
}

}  // namespace

Outcome constraintsModal(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    EditConstrData edited = constraintsOf(*run, data);
    return changedIf(StartDlgEditConstrModal(edited));
}

Outcome constraints(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    EditConstrData edited = constraintsOf(*run, data);
    StartDlgEditConstraints(edited);
    return Outcome::opened;
}

Outcome endConstraints(ModuleData&) {
    EndDlgEditConstraints();
    return Outcome::closed;
}

// --- cuts and members ---------------------------------------------------------------------------

namespace {

DlgMacroCutsData cutsOf(const Vor_Macro& macro) {
    DlgMacroCutsData made;
    for (int i = 0; i < macro.moduleCount(); ++i) {
        const Vor_Module& module = macro.module(i);
        made.moduleNames.append(module.name());
        for (const CutConstraint& cut : module.cuts()) made.cuts.append({module.name(), cut});
    }
    return made;
}

void setCuts(Vor_Macro& macro, const DlgMacroCutsData& edited) {
    for (const Vor_String& name : edited.moduleNames) {
        Vor_Array<CutConstraint> cuts;
        for (const MacroCut& each : edited.cuts)
            if (each.moduleName.equal(name)) cuts.append(each.cut);
        if (Vor_Module* module = macro.findModuleWrite(name))
            showUnlessOk(module->setCuts(std::move(cuts)), name);
    }
}

}  // namespace

Outcome macroCuts(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    DlgMacroCutsData edited = cutsOf(*run->macro().macroRead());
    bool isChanged = false;
    if (!StartDlgMacroCuts(edited, isChanged) || !isChanged) return Outcome::cancelled;
    data.changeMacro(run->path(),
                     [&](Vor_DbMacro& dbMacro) { setCuts(*dbMacro.macroWrite(), edited); });
    return Outcome::changed;
}

Outcome advancedProfiles(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    const MacroData before = run->macroData();
    MacroData edited = before;
    StartDlgMacroProfAdv(edited, {}, {}, true);
    if (edited == before) return Outcome::cancelled;
    data.changeMacro(run->path(), [&](Vor_DbMacro& macro) { edited.setAllToMacro(&macro); });
    return Outcome::changed;
}

namespace {

/// The call has nothing but its function; this is what it works on.
struct ObjectsInDialog {
    ModuleData* data;
    runs::MacroRun* run;
    bool isApplied = false;
};
ObjectsInDialog* objectsInDialog = nullptr;

Vor_PrPl withProperties(Vor_PrPl profile, const MacroProfData& properties) {
    if (!properties.sectionNameVaries()) profile.sectionName = properties.sectionName();
    if (!properties.materialVaries()) profile.material = properties.material();
    if (!properties.memberNameVaries()) profile.memberName = properties.memberName();
    return profile;
}

bool exchangeProperties(TwMACallBackType type, const TwMACallBackData& request,
                        MacroProfData& properties) {
    runs::MacroRun& run = *objectsInDialog->run;
    if (type == TwMACallBackType::load) {
        for (int i = 0; i < request.objects.length(); ++i)
            if (const Vor_PrPl* profile = run.macro().baseProf(i)) properties.merge(*profile);
        return true;
    }
    const int count = request.forAll ? request.objects.length() : 1;
    objectsInDialog->data->changeMacro(run.path(), [&](Vor_DbMacro& macro) {
        for (int i = 0; i < count; ++i)
            if (const Vor_PrPl* profile = macro.baseProf(i))
                macro.setBaseProf(i, withProperties(*profile, properties));
    });
    objectsInDialog->isApplied = true;
    return true;
}

}  // namespace

Outcome profilesOfObjects(ModuleData& data) {
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    AcArray<AcDbObjectId> members = run->macro().mapBaseProfIds();
    if (members.isEmpty()) return Outcome::noMembers;
    ObjectsInDialog dialog{&data, run};
    objectsInDialog = &dialog;
    StartDlgMacroProfAdv(&members, data.objects.forAllObjects, exchangeProperties);
    objectsInDialog = nullptr;
    return changedIf(dialog.isApplied);
}

// --- what belongs to no single macro ------------------------------------------------------------

namespace {

/// As many as the macro's first bolt pattern has.
DynArrayData arrayOf(ModuleData& data) {
    DynArrayData made;
    made.mode = DynArrayData::Mode::even;
    made.texts = {"2", "0", "60", "0", "x"};
    runs::MacroRun* run = data.macro();
    if (!run) return made;
    const Vor_Macro& macro = *run->macro().macroRead();
    for (int i = 0; i < macro.moduleCount(); ++i) {
        const Vor_BoltModule* bolts = asBoltModule(&macro.module(i));
        if (!bolts || bolts->getPatternIds().isEmpty()) continue;
        const Vor_BoltPattern& pattern = *bolts->getPattern(bolts->getPatternIds()[0]);
        made.name = pattern.name;
        made.texts[DynArrayData::number] = Vor_String(pattern.nrBolts1, 0);
        if (const ConstraintVariable* pitch = bolts->findVariable("Pitch"))
            made.texts[DynArrayData::spacing] = Vor_String(pitch->value, 3);
        break;
    }
    return made;
}

Vor_StringArray libraryMacros() {
    return gSettings.libDir().isEmpty()
               ? Vor_StringArray()
               : ObjectExportFindFilesRecursive(gSettings.libDir() + "Macros\\", "*.macro");
}

constexpr int previewSize = 120;  // pixels
constexpr int chooseMacroTitle = 24092;

}  // namespace

Outcome array(ModuleData& data) {
    auto& edited = data.objects.array;
    if (!edited) edited = arrayOf(data);
    return changedIf(StartArrayDlg(*edited, {}, edited->name));
}

Outcome selectMacro(ModuleData& data) {
    const Vor_StringArray macros = libraryMacros();
    if (macros.isEmpty()) return Outcome::noMacro;
    bool isAlternative = true;
    return changedIf(StartDlgSelectMacro(dialString(chooseMacroTitle), macros, previewSize,
                                         previewSize, data.objects.chosenMacro, isAlternative,
                                         false));
}

Outcome selectMacroWithStandards(ModuleData& data) {
    const Vor_StringArray macros = libraryMacros();
    AcArray<bool> enabled;
    for (const Vor_String& path : macros) {
        Vor_String failure;
        const auto run = runs::MacroRun::open(path, failure);
        enabled.append(run && run->macro().macroRead()->standards().length() > 0);
    }
    if (!enabled.contains(true)) return Outcome::noStandards;
    bool isAlternative = false;
    return changedIf(StartDlgSelectMacro(dialString(chooseMacroTitle), macros, enabled, previewSize,
                                         previewSize, data.objects.chosenMacro, isAlternative,
                                         true));
}

Outcome generalVariables(ModuleData& data) {
    auto& edited = data.objects.generalVariables;
    runs::MacroRun* run = data.macro();
    if (!run) return Outcome::noMacro;
    if (!edited) {
        edited.emplace();
        const Vor_Macro& macro = *run->macro().macroRead();
        for (const Vor_String& name : macro.getGeneralVariables()) {
            edited->dwgGenVars().append(name);
            edited->dwgGenValues().append(
                Vor_String(macro.generalVariableValue(name).value_or(0), 3));
            edited->dwgGenFilters().append("");
        }
    }
    return changedIf(StartDlgGenVars(*edited));
}

Outcome imageDialogNames(ModuleData& data) {
    Vor_String& path = data.objects.templateFile;
    if (path.isEmpty()) path = getDesignerRootFolder();
    if (!DlgOpenSave(Host::current().mainWindow(), true, dialString(841), dialString(840), "txt",
                     path))
        return Outcome::cancelled;
    Vor_StringArray names;
    if (!GetImageDlgCtrlNames(path, names)) return Outcome::failed;
    acutPrint(arrToStr(names, ", ") + "\n");
    return Outcome::succeeded;
}

Outcome designer(ModuleData&) {
    return changedIf(StartDlgDesigner(getDesignerRootFolder()));
}

}  // namespace starts
