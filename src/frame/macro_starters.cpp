// Starters around a macro: its dialog, modal and modeless, its constraints, cuts and members.
#include "core_api/texts/texts.h"
#include "frame/constraints_window.h"
#include "frame/macro_dialog.h"
#include "frame/open_macro_dialogs.h"
#include "frame/starters.h"
#include "frame/starting.h"

void StartDlgMacro(MacroData& data) try {
    MacroDialog dialog;
    runDialog(dialog, data, CopyBack::always);
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

bool StartDlgMacroModeless(bool keepFocus, MacroData& data, int& slot) {
    return StartDlgMacroModeless(keepFocus, data, slot, nullptr);
}

bool StartDlgMacroModeless(bool keepFocus, MacroData& data, int& slot, MacroDialogEnded ended) try {
    const ResourceOverrideScope resources;
    return openMacroDialogs().start(keepFocus, data, slot, std::move(ended));
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool EndDlgMacroModeless(int slot) try {
    return openMacroDialogs().end(slot);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool GetDlgMacroData(int slot, MacroData& data) try {
    const ResourceOverrideScope resources;
    return openMacroDialogs().getData(slot, data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

void DestroyAllMacroDlgs() try { openMacroDialogs().endAll(); } catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

// --- constraints --------------------------------------------------------------------------------

bool StartDlgEditConstrModal(EditConstrData& data) try {
    return startDialog<ConstraintsWindow>(data, CopyBack::never);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgEditConstraints(EditConstrData& data) {
    StartDlgEditConstraints(data, nullptr);
    return true;
}

bool StartDlgEditConstraints(EditConstrData& data, ConstraintsEnded ended) try {
    const ResourceOverrideScope resources;
    if (!openConstraints().start(data, std::move(ended))) return false;
    Host::current().focusMainWindow();
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

void EndDlgEditConstraints() try {
    if (openConstraints().end()) acedPostCommandPrompt();
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

// --- cuts and members ---------------------------------------------------------------------------

bool StartDlgMacroCuts(DlgMacroCutsData& data, bool& isChanged) try {
    MacroCutsDialog dialog;
    const bool isOk = runDialog(dialog, data);
    isChanged = dialog.isChanged();
    return isOk;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

namespace {

/// The first section that the dialog is about.
Vor_String firstSection(const AdvancedProfiles& profiles) {
    for (int i = 0; i < profiles.macro.tabCount(); ++i) {
        const MacroTabData& tab = *profiles.macro.getTab(i);
        if (!profiles.tab.isEmpty() && !tab.key().equal(profiles.tab)) continue;
        for (const MacroProfData& each : tab.profiles())
            if (profiles.group.isEmpty() || each.name.equal(profiles.group))
                return each.sectionName();
    }
    return {};
}

/// Draws the member that the user edits, for as long as the caller wants to see it.
class ShownProfAdvDialog : public ProfAdvDialog {
  public:
    explicit ShownProfAdvDialog(bool showsMember) : m_showsMember(showsMember) {}
    AcDbObjectId createdObject() const { return m_created; }

  protected:
    void onInit() override {
        ProfAdvDialog::onInit();
        const Vor_String section = firstSection(data());
        if (m_showsMember && !section.isEmpty()) m_created = Host::current().drawMember(section);
    }

  private:
    bool m_showsMember;
    AcDbObjectId m_created;
};

void eraseObjects(const MacroData& data, AcDbObjectId created) {
    if (!data.erasesObjects) return;
    Host& host = Host::current();
    if (data.objects.length() == 1) host.eraseObject(data.objects[0]);
    if (!created.isNull()) host.eraseObject(created);
}

}  // namespace

void StartDlgMacroProfAdv(MacroData& data, const Vor_String& tab, const Vor_String& group,
                          bool showsMember) try {
    ShownProfAdvDialog dialog(showsMember);
    AdvancedProfiles profiles{data, tab, group};
    if (runDialog(dialog, profiles)) data = profiles.macro;
    eraseObjects(data, dialog.createdObject());
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

void StartDlgMacroProfAdv(AcArray<AcDbObjectId>* objects, bool& forAll, TwMACallBack callBack) try {
    if (!objects || objects->isEmpty()) return;
    const ResourceOverrideScope resources;
    TwMACallBackData request{*objects, forAll};
    ObjectProfile profile;
    profile.forAll = forAll;
    if (callBack && !callBack(TwMACallBackType::load, request, profile.properties)) return;
    ObjectProfileDialog dialog;
    const bool isOk = runDialog(dialog, profile);
    forAll = dialog.data().forAll;
    request.forAll = forAll;
    if (isOk && callBack) callBack(TwMACallBackType::apply, request, profile.properties);
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

bool StartEditProfCutsDlg(DlgProfCutsData& data) try {
    static bool usesForNext = false;  // the option outlives the dialog
    ProfCuts cuts{data, usesForNext};
    if (!startDialog<ProfCutsDialog>(cuts)) return false;
    usesForNext = cuts.usesForNext;
    if (cuts.cuts.apply) cuts.cuts.apply(cuts.cuts);
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartArrayDlg(DynArrayData& data, const AcArray<AcDbObjectId>&, const Vor_String& title) try {
    const ResourceOverrideScope resources;
    ArrayDialog dialog;
    dialog.setTitle(title);
    return runDialog(dialog, data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}
