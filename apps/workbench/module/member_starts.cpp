#include "core_api/files.h"
#include "core_api/macros/vor_bolt_module.h"
#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "cutstock/cutting_stock_library.h"
#include "cutstock/item_names.h"
#include "cutstock/item_rows.h"
#include "platform/window/message_box.h"
#include "workbench/module/module_data.h"
#include "workbench/module/starts.h"
#include "workbench/sections/section_editing.h"

namespace starts {

// --- sections -----------------------------------------------------------------------------------

namespace {

constexpr int sectionWord = 21063;

bool hasSections() {
    return gSectionTables.table(0) != nullptr;
}

/// The first size of a table, or an empty text.
Vor_String firstSection(std::string_view table) {
    const Vor_StringArray names = ModuleData::sections(table);
    return names.isEmpty() ? Vor_String() : names[0];
}

}  // namespace

Outcome sectionLibrary(ModuleData& data) {
    const bool isOk = editSectionLibrary(data.section());
    data.noteSectionChange();  // tables are saved before the dialog is closed
    return changedIf(isOk);
}

Outcome sectionSize(ModuleData& data) {
    if (!hasSections()) return Outcome::noSections;
    Vor_String section = data.section();
    int index = 0;
    if (!gSectionTables.hasTable(getSubstrBefore(section, "-"), index))
        section = firstSection(gSectionTables.table(0)->name());
    const bool isAdded = addSectionSize(section).has_value();
    if (isAdded) data.noteSectionChange();
    return changedIf(isAdded);
}

// --- members ------------------------------------------------------------------------------------

Outcome memberCuts(ModuleData& data) {
    DlgProfCutsData& edited = data.objects.memberCuts;
    edited.memberName = data.member().memberName;
    edited.apply = [&edited](const DlgProfCutsData& confirmed) { edited = confirmed; };
    return changedIf(StartEditProfCutsDlg(edited));
}

namespace {

/// The holes of the macro's bolts.
DlgProfFeaturesData featuresOf(ModuleData& data) {
    DlgProfFeaturesData made;
    made.sectionName = data.member().sectionName;
    runs::MacroRun* run = data.macro();
    if (!run) return made;
    const Vor_Macro& macro = *run->macro().macroRead();
    for (int i = 0; i < macro.moduleCount(); ++i)
        if (const Vor_BoltModule* bolts = asBoltModule(&macro.module(i)))
            made.features.append(
                {bolts->name(), true, 0, bolts->boltDiameter() + bolts->holeOffset()});
    return made;
}

/// An item for each section of the macro, with a part for each of its members, whose length the
/// user knows.
void addMembers(DlgCSP2Data& stock, ModuleData& data) {
    cutstock::ItemNames names(stock.itemNames);
    runs::MacroRun* run = data.macro();
    for (int i = 0; run && run->macro().baseProf(i); ++i) {
        const Vor_String section = run->macro().baseProf(i)->sectionName;
        int item = stock.itemNames.find(section);
        if (item < 0 && names.add(section).isEmpty()) item = cutstock::addItem(stock, section);
        if (item < 0) continue;  // its folder could not be called so
        const int id = stock.itemIds[item];
        cutstock::Rows parts = cutstock::rowsOf(stock.tables[0], id);
        parts.append({"", "1"});
        cutstock::replaceRows(stock.tables[0], id, parts);
    }
}

TwDlgCis2Data cis2Of(const Vor_PrPl& member) {
    TwDlgCis2Data made;
    made.memberName = member.memberName;
    made.sectionName = member.sectionName;
    made.materialName = member.material;
    return made;
}

}  // namespace

Outcome memberFeatures(ModuleData& data) {
    auto& edited = data.objects.memberFeatures;
    if (!edited && !data.macro()) return Outcome::noMacro;
    if (!edited) edited = featuresOf(data);
    return changedIf(StartDlgProfFeatures(*edited));
}

namespace {

constexpr int cuttingStockTitle = 620, replaceChangedText = 25208;

bool mayReplace(cutstock::CuttingStockLibrary& library) {
    if (!library.wouldReplaceUnread()) return true;
    library.replaceUnread();  // only what the user is asked about
    return showMessage({dialString(cuttingStockTitle).str(), dialString(replaceChangedText).str(),
                        MessageIcon::question, MessageButtons::yesNo}) == IDYES;
}

Outcome editStock(ModuleData& data, bool savesAll) {
    cutstock::CuttingStockLibrary library;
    DlgCSP2Data edited;
    edited.savesAll = savesAll;
    Vor_String message;
    if (!library.load(edited, message)) {  // not shown, so that nothing can replace it
        showWarning(dialString(cuttingStockTitle), message);
        return Outcome::failed;
    }
    if (edited.itemIds.isEmpty()) addMembers(edited, data);
    while (StartDlgCSP2(edited)) {  // again with what was edited until it is saved or given up
        if (!mayReplace(library)) continue;
        if (library.save(edited, message)) return Outcome::changed;
        showWarning(dialString(cuttingStockTitle), message);
    }
    return Outcome::cancelled;
}

}  // namespace

Outcome cuttingStock(ModuleData& data) {
    return editStock(data, false);
}

Outcome saveCuttingStock(ModuleData& data) {
    return editStock(data, true);
}

Outcome cis2(ModuleData& data) {
    auto& edited = data.objects.cis2;
    if (!edited) edited = cis2Of(data.member());
    return changedIf(StartDlgCis2Info(*edited));
}

Outcome dstvPoints(ModuleData&) {
    StartDSTVPointsDlg();
    return Outcome::closed;
}

// --- buildings ----------------------------------------------------------------------------------

Outcome constructionGrid(ModuleData& data) {
    auto& edited = data.objects.constructionGrid;
    if (!edited) {
        edited.emplace();
        edited->x = {"6000 6000 6000", "1"};
        edited->y = {"5000 5000", "A"};
    }
    return changedIf(StartDlgGrid(*edited));
}

Outcome levels(ModuleData& data) {
    auto& edited = data.objects.levels;
    if (!edited) {
        constexpr double storey = 3500;
        edited.emplace();
        for (int i = 0; i < 3; ++i)
            edited->levels.append({Vor_String(i * storey / 1000, 1) + " m", i * storey, true});
    }
    return changedIf(StartDlgLevels(*edited));
}

Outcome cladding(ModuleData& data) {
    return changedIf(StartDlgCladdingSettings(data.objects.cladding));
}

Outcome bracing(ModuleData& data) {
    auto& edited = data.objects.bracing;
    if (!edited) {
        edited.emplace();
        edited->sectionName = firstSection("L");
        edited->material = data.member().material;
    }
    return changedIf(StartDlgBracing(*edited));
}

// --- choices ------------------------------------------------------------------------------------

Outcome lookUp(ModuleData& data) {
    if (!hasSections()) return Outcome::noSections;
    auto& edited = data.objects.lookUp;
    if (!edited) {
        edited.emplace();
        edited->prompt = dialString(sectionWord);
        edited->names = ModuleData::sections(data.member().sectionName.str().substr(0, 3));
        edited->chosen = 0;
    }
    return changedIf(StartDlgLookUp(*edited));
}

Outcome selectImage(ModuleData& data) {
    TwSelectImageDlgData edited;
    if (!gSettings.libDir().isEmpty())
        edited.files = ObjectExportFindFilesRecursive(gSettings.libDir(), "*.bmp");
    if (edited.files.isEmpty()) return Outcome::noPictures;
    edited.chosen = data.objects.chosenPicture;
    const bool isOk = StartDlgSelectImage(edited);
    if (isOk) data.objects.chosenPicture = edited.chosen;
    return changedIf(isOk);
}

}  // namespace starts
