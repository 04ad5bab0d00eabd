// Starters that are no more than a dialog over its data, and those that choose something.
#include "frame/starters.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "frame/cis2_section_names.h"
#include "frame/select_image_dialog.h"
#include "frame/starter_dialogs.h"
#include "frame/starting.h"
#include "frame/string_array_dialog.h"
#include "platform/host/host.h"

bool StartDlgCSP2(DlgCSP2Data& data) try {
    return startDialog<CSP2Dialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgProfFeatures(DlgProfFeaturesData& data) try {
    return startDialog<ProfFeaturesDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgGrid(TwGridDlgData& data) try {
    return startDialog<GridDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgLevels(TwLevelsDlgData& data) try {
    return startDialog<LevelsDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgCladdingSettings(TwCladdingDlgData& data) try {
    return startDialog<CladdingDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgCis2Info(TwDlgCis2Data& data) try {
    TwDlgCis2Data edited = data;
    const bool isKnown = readCis2SectionNames(edited);
    const SectionTranslation before = edited.sectionNames;
    if (!startDialog<Cis2Dialog>(edited)) return false;
    data = edited;
    if (isKnown && edited.sectionNames != before) writeCis2SectionNames(edited.sectionNames);
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgBracing(TwBracingDlgData& data) try {
    return startDialog<BracingDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgGenVars(TwAutoStandardsData& data) try {
    return startDialog<GenVarsDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgSelectImage(TwSelectImageDlgData& data) try {
    return startDialog<SelectImageDialog>(data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgLookUp(TwLookUpDlgData& data) try {
    const ResourceOverrideScope resources;
    LookUpDialog dialog;
    dialog.setTitle(data.title);
    return runDialog(dialog, data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

void StartDSTVPointsDlg() try {
    static DstvPoints points;  // the settings outlive the dialog
    startDialog<DstvPointsDialog>(points);
} catch (const std::bad_alloc&) {
    noMemoryForDialog();
}

bool StartDlgDesigner(const Vor_String& path) try {
    constexpr int titleText = 21005, missingText = 21004;
    const ResourceOverrideScope resources;
    const Vor_String file = path.isEmpty() ? Vor_String() : "\n" + path;
    showWarning(dialString(titleText), dialString(missingText) + file);
    return false;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool startGridDialog(const Vor_StringArray& columns, const Vor_StringArray& choices,
                     Vor_Array<Vor_StringArray>& rows, bool fixedRows, Vor_String name,
                     Vor_String title) try {
    if (columns.isEmpty()) return false;
    if (name.isEmpty()) name = "DLG_SS_STRINGARRAY";
    const ResourceOverrideScope resources;
    StringArrayDialog dialog({columns, choices, fixedRows, name, title});
    return runDialog(dialog, rows);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

// --- macros to choose from ----------------------------------------------------------------------

bool StartDlgSelectMacro(const Vor_String& title, const Vor_StringArray& macros,
                         const int& previewWidth, const int& previewHeight, Vor_String& macro,
                         bool& isAlternative, bool explains) try {
    AcArray<bool> enabled;
    for (int i = 0; i < macros.length(); ++i) enabled.append(true);
    return StartDlgSelectMacro(title, macros, enabled, previewWidth, previewHeight, macro,
                               isAlternative, explains);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgSelectMacro(const Vor_String& title, const Vor_StringArray& macros,
                         const AcArray<bool>& enabled, const int&, const int&, Vor_String& macro,
                         bool& isAlternative, bool) try {
    const ResourceOverrideScope resources;
    MacroChoice choice;
    Vor_StringArray files;
    for (int i = 0; i < macros.length(); ++i) {
        if (!enabled.isIndex(i) || !enabled[i]) continue;
        files.append(macros[i]);
        choice.names.append(removeExtension(getFileName(macros[i])));
    }
    choice.chosen = std::max(files.find(macro), 0);
    choice.hasAlternative = isAlternative;
    SelectMacroDialog dialog;
    dialog.setTitle(title);
    if (!runDialog(dialog, choice)) return false;
    const bool isChosen = !choice.isAlternative && files.isIndex(choice.chosen);
    macro = isChosen ? files[choice.chosen] : Vor_String();
    isAlternative = choice.isAlternative;
    return true;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

// --- the section library ------------------------------------------------------------------------

bool StartDlgEditLibSections(DlgEditLibData& data, const Vor_String& section) try {
    const ResourceOverrideScope resources;
    EditLibSectionsDialog dialog;
    dialog.setSection(section);
    return runDialog(dialog, data);
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}

bool StartDlgEditLibSimple(const Vor_String& section, Vor_ProfValuesTable& table, int& row) try {
    EditLibSimpleDialog dialog;
    dialog.setSection(section);
    SectionSize size{table, row};
    const bool isOk = runDialog(dialog, size);
    if (isOk) table = size.table;
    row = dialog.data().row;
    return isOk;
} catch (const std::bad_alloc&) {
    return noMemoryForDialog();
}
