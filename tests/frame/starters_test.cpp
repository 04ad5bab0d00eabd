// Every starter that edits a data object, by one table: which dialog it opens, that the module's
// resources are in front meanwhile, and what comes back.
#include <optional>

#include "frame/editor/named_values_dialog.h"
#include "frame/frame_host.h"
#include "frame/select_image_dialog.h"
#include "frame/starters.h"
#include "macros/sample_macro.h"
#include "sections/dialogs/library_dialog.h"
#include "sections/dialogs/size_dialog.h"

namespace {

/// What a starter did with a fresh data object.
struct Outcome {
    std::optional<bool> result;  ///< none: the starter gives none
    std::string value;           ///< the edited one, in the caller's object
};

enum class Resources { override, asTheyAre };
enum class Copies { onOk, always, never };

struct Case {
    const char* name;
    int dialog;
    int row;  ///< of the value that is edited
    const char* typed;
    const char* before;
    std::function<Outcome()> start;
    Resources resources = Resources::override;
    Copies copies = Copies::onOk;
};

template <class Data, class Read>
std::function<Outcome()> over(bool (*start)(Data&), Data data, Read read) {
    return [=]() mutable {
        Data own = data;
        const bool result = start(own);
        return Outcome{result, std::string(Vor_String(read(own)).view())};
    };
}

DlgMacroCutsData sampleCuts() {
    DlgMacroCutsData data;
    data.cuts.append({"Plate1", {"Cope", TwCutType::plane, {}}});
    return data;
}

DlgProfFeaturesData sampleFeatures() {
    DlgProfFeaturesData data;
    data.features.append({"Hole", true, 100, 18});
    return data;
}

DynArrayData sampleArray() {
    DynArrayData data;
    data.entries.append("250");
    return data;
}

EditConstrData sampleConstraints() {
    EditConstrData data;
    data.constraints.append({"Gap", 10, false, false});
    return data;
}

TwLevelsDlgData sampleLevels() {
    TwLevelsDlgData data;
    data.levels.append({"Ground", 0, true});
    return data;
}

TwLookUpDlgData sampleLookUp() {
    TwLookUpDlgData data;
    data.names = {"S235", "S355"};
    data.chosen = 0;
    return data;
}

TwAutoStandardsData sampleGenVars() {
    TwAutoStandardsData data;
    data.dwgGenVars() = {"gen_A"};
    data.dwgGenValues() = {"1"};
    data.dwgGenFilters() = {"a.dwg"};
    return data;
}

Outcome macroModal() {
    MacroData macro = makeMacroData(sampleMacro());
    int bolts = 0;
    macro.findTab("Bolts", bolts);
    StartDlgMacro(macro);
    return {std::nullopt, std::string(macro.getTab(bolts)->getBoltData()->diameter().view())};
}

Outcome advancedProfiles() {
    MacroData macro = makeMacroData(sampleMacro());
    int braces = 0;
    macro.findTab("Braces", braces);
    StartDlgMacroProfAdv(macro, "Braces", "Left", false);
    MacroProfData left;
    macro.getTab(braces)->getMergedPropsOfGroup("Left", left);
    return {std::nullopt, left.sectionName().str()};
}

std::string appliedSection;

bool profileOfObjects(TwMACallBackType type, const TwMACallBackData&, MacroProfData& properties) {
    if (type == TwMACallBackType::load) properties.setSectionName("HEA-200");
    if (type == TwMACallBackType::apply) appliedSection = properties.sectionName().str();
    return true;
}

Outcome objectProfiles() {
    appliedSection = "HEA-200";
    AcArray<AcDbObjectId> objects{AcDbObjectId(5)};
    bool forAll = true;
    StartDlgMacroProfAdv(&objects, forAll, profileOfObjects);
    return {std::nullopt, appliedSection};
}

Outcome cuts() {
    DlgMacroCutsData data = sampleCuts();
    bool isChanged = false;
    const bool result = StartDlgMacroCuts(data, isChanged);
    EXPECT_TRUE(isChanged);  // whatever the result
    return {result, std::string(Vor_String(data.cuts[0].cut.offsets[cutOffset], 3).view())};
}

Outcome array() {
    DynArrayData data = sampleArray();
    const bool result = StartArrayDlg(data, {}, "Stiffeners");
    return {result, data.entries[0].str()};
}

std::vector<Case> cases() {
    return {
        {"macro", 8131, 1, "24", "16", macroModal, Resources::asTheyAre, Copies::always},
        {"cuts", 8716, 2, "-2.5", "0", cuts, Resources::asTheyAre},
        {"advanced profiles", 8717, 1, "IPE-300", "L-50x50x5", advancedProfiles,
         Resources::asTheyAre},
        {"profiles of objects", 8718, 1, "IPE-300", "HEA-200", objectProfiles},
        {"constraints", 8715, 3, "12.5", "10",
         over<EditConstrData>(StartDlgEditConstrModal, sampleConstraints(),
                              [](auto& d) { return Vor_String(d.constraints[0].value, 3); }),
         Resources::override, Copies::never},
        {"profile cuts", 8719, 2, "3", "0",
         over<DlgProfCutsData>(StartEditProfCutsDlg, {},
                               [](auto& d) { return Vor_String(d.gap, 3); }),
         Resources::override, Copies::never},
        {"array", 8720, 8, "300", "250", array},
        {"features", 8725, 5, "22", "18",
         over<DlgProfFeaturesData>(StartDlgProfFeatures, sampleFeatures(),
                                   [](auto& d) { return Vor_String(d.features[0].size, 3); })},
        {"grid", 8726, 6, "6000 5000", "",
         over<TwGridDlgData>(StartDlgGrid, {}, [](auto& d) { return d.x.distances; })},
        {"levels", 8727, 3, "3500", "0",
         over<TwLevelsDlgData>(StartDlgLevels, sampleLevels(),
                               [](auto& d) { return Vor_String(d.levels[0].height, 3); })},
        {"look up", 8728, 1, "S355", "0",
         over<TwLookUpDlgData>(StartDlgLookUp, sampleLookUp(),
                               [](auto& d) { return Vor_String(d.chosen, 0); })},
        {"cladding", 8729, 4, "8000", "6000",
         over<TwCladdingDlgData>(StartDlgCladdingSettings, {},
                                 [](auto& d) { return Vor_String(d.longestPanel, 3); })},
        {"CIS/2", 8730, 6, "3", "1",
         over<TwDlgCis2Data>(StartDlgCis2Info, {}, [](auto& d) { return Vor_String(d.phase, 0); })},
        {"bracing", 8731, 2, "L-60x60x6", "",
         over<TwBracingDlgData>(StartDlgBracing, {}, [](auto& d) { return d.sectionName; })},
        {"general variables", 8732, 3, "2", "1",
         over<TwAutoStandardsData>(StartDlgGenVars, sampleGenVars(),
                                   [](auto& d) { return d.dwgGenValues()[0]; })},
    };
}

class Starters : public FrameTest {
  protected:
    Outcome run(const Case& starter, int button) {
        user.whenOpens(starter.dialog)
            .does([&](CDialog& dialog) {
                auto* grid = dynamic_cast<Vor_Spread*>(dialog.item(namedValuesGrid));
                ASSERT_NE(grid, nullptr);
                EXPECT_TRUE(grid->userEnters(namedValuesValueColumn, starter.row, starter.typed));
                EXPECT_EQ(isOverridden(), starter.resources == Resources::override);
                EXPECT_TRUE(dialog.isModal());
            })
            .presses(button);
        const Outcome outcome = starter.start();
        EXPECT_EQ(gResourceOverride.current(), nullptr);
        return outcome;
    }
};

std::string afterwards(const Case& starter) {
    return starter.name == std::string("look up") ? "1" : starter.typed;
}

TEST_F(Starters, CopyBackWhatWasEditedWhenTheDialogEndsWithOk) {
    for (const Case& starter : cases()) {
        SCOPED_TRACE(starter.name);
        const Outcome outcome = run(starter, IDOK);
        EXPECT_TRUE(outcome.result.value_or(true));
        EXPECT_EQ(outcome.value,
                  starter.copies == Copies::never ? starter.before : afterwards(starter));
    }
}

TEST_F(Starters, LeaveTheCallersObjectAloneOnCancel) {
    for (const Case& starter : cases()) {
        SCOPED_TRACE(starter.name);
        const Outcome outcome = run(starter, IDCANCEL);
        EXPECT_FALSE(outcome.result.value_or(false));
        EXPECT_EQ(outcome.value, starter.before);
    }
}

TEST_F(Starters, GiveFalseWhenTheDialogCannotBeMade) {
    CWnd neverMade;
    host.window = &neverMade;
    for (const Case& starter : cases()) {
        if (starter.name == std::string("cuts")) continue;  // expects an edit
        SCOPED_TRACE(starter.name);
        const Outcome outcome = starter.start();
        EXPECT_FALSE(outcome.result.value_or(false));
        EXPECT_EQ(outcome.value, starter.before);
        EXPECT_EQ(gResourceOverride.current(), nullptr);
    }
}

// --- what single starters do besides ------------------------------------------------------------

TEST_F(Starters, ConstraintsAndProfileCutsHandTheirEditsToTheDatasOwnCall) {
    EditConstrData constraints = sampleConstraints();
    double gap = 0;
    constraints.apply = [&](const EditConstrData& edited) { gap = edited.constraints[0].value; };
    user.whenOpens(8715)
        .does([](CDialog& dialog) {
            dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid)).userEnters(2, 3, "4");
        })
        .presses(IDOK);
    EXPECT_TRUE(StartDlgEditConstrModal(constraints));
    EXPECT_EQ(gap, 4);
}

TEST_F(Starters, TheSectionLibraryComesBackAfterOkOnly) {
    for (const int button : {IDCANCEL, IDOK}) {
        DlgEditLibData data;
        data.catalogue.groups.appendNewGrp();
        user.whenOpens(LibraryDialog::resourceNumber)
            .does([&](CDialog&) { EXPECT_TRUE(isOverridden()); })
            .selects(LibraryDialog::pageTabs, LibraryDialog::groups)
            .presses(CataloguePage::addButton)
            .presses(button);
        EXPECT_EQ(StartDlgEditLibSections(data, ""), button == IDOK);
        EXPECT_EQ(data.catalogue.groups.length(), button == IDOK ? 2 : 1);
    }
    EXPECT_EQ(gResourceOverride.current(), nullptr);
    CWnd neverMade;
    host.window = &neverMade;
    DlgEditLibData data;
    EXPECT_FALSE(StartDlgEditLibSections(data, ""));
}

TEST_F(Starters, AddingASizeGivesItsRowWithTheResourcesAsTheyAre) {
    Vor_ProfValuesTable table;
    table.columnNames = {"SysName", "I/O", "English", "Dutch", "German", "French", "Width"};
    table.rows = {{"200", "1", "A 200", "", "", "", "200"}};
    int row = 0;
    for (const int button : {IDCANCEL, IDOK}) {
        user.whenOpens(SizeDialog::resourceNumber)
            .does([&](CDialog&) { EXPECT_FALSE(isOverridden()); })
            .types(SizeDialog::firstValueField, "220")
            .presses(button);
        EXPECT_EQ(StartDlgEditLibSimple("", table, row), button == IDOK);
        EXPECT_EQ(row, button == IDOK ? 1 : 0);
        EXPECT_EQ(table.rows.length(), button == IDOK ? 2 : 1);
    }
    CWnd neverMade;
    host.window = &neverMade;
    EXPECT_FALSE(StartDlgEditLibSimple("", table, row));
    EXPECT_EQ(row, 1);
}

TEST_F(Starters, ProfileCutsRememberTheirOptionAfterOkOnly) {
    constexpr int optionRow = 5;
    DlgProfCutsData data;
    const auto startWith = [&](const char* expected, bool toggles, int button) {
        user.whenOpens(8719)
            .does([=](CDialog& dialog) {
                auto& grid = dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid));
                Vor_String text;
                grid.getCellText(2, optionRow, text, Vor_Spread::Reading::value);
                EXPECT_EQ(text, expected);
                EXPECT_TRUE(!toggles || grid.userClicks(2, optionRow));
            })
            .presses(button);
        StartEditProfCutsDlg(data);
    };
    startWith("0", true, IDCANCEL);
    startWith("0", true, IDOK);
    startWith("1", true, IDOK);
    startWith("0", false, IDCANCEL);
}

TEST_F(Starters, AdvancedProfilesEraseTheirObjectsWhenTheDataAsksForIt) {
    struct Row {
        bool erases;
        std::vector<int> objects;
        bool showsMember;
        std::vector<long long> erased;
    };
    const Row rows[] = {
        {true, {5}, true, {5, 77}}, {true, {5}, false, {5}}, {true, {5, 6}, true, {77}},
        {true, {}, false, {}},      {false, {5}, true, {}},
    };
    for (const Row& row : rows) {
        MacroData macro = makeMacroData(sampleMacro());
        macro.erasesObjects = row.erases;
        for (const int object : row.objects) macro.objects.append(AcDbObjectId(object));
        host.erased.clear();
        user.whenOpens(8717).presses(IDCANCEL);
        StartDlgMacroProfAdv(macro, "Braces", "", row.showsMember);
        EXPECT_EQ(host.erased, row.erased);
    }
    EXPECT_EQ(host.calls, "draw L-50x50x5\ndraw L-50x50x5\ndraw L-50x50x5\n");
}

TEST_F(Starters, ProfilesOfObjectsNeedObjectsAndReadTheFlagBack) {
    bool forAll = true;
    AcArray<AcDbObjectId> none;
    StartDlgMacroProfAdv(&none, forAll, profileOfObjects);
    StartDlgMacroProfAdv(nullptr, forAll, profileOfObjects);
    AcArray<AcDbObjectId> objects{AcDbObjectId(5), AcDbObjectId(6)};
    user.whenOpens(8718)
        .does([](CDialog& dialog) {
            dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid)).userClicks(2, 4);
        })
        .presses(IDOK);
    StartDlgMacroProfAdv(&objects, forAll, profileOfObjects);
    EXPECT_FALSE(forAll);
}

TEST_F(Starters, SelectMacroOffersTheEnabledOnes) {
    const Vor_StringArray macros{"c:\\m\\a.dwg", "c:\\m\\b.dwg", "c:\\m\\c.dwg"};
    Vor_String macro = "old";
    bool isAlternative = false;
    user.whenOpens(8721).presses(IDCANCEL);
    EXPECT_FALSE(StartDlgSelectMacro("", macros, 64, 64, macro, isAlternative, false));
    EXPECT_EQ(macro, "old");
    const auto pick = [](const char* name) {
        return [=](CDialog& dialog) {
            auto& grid = dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid));
            EXPECT_FALSE(grid.userEnters(2, 1, "b"));
            EXPECT_TRUE(grid.userEnters(2, 1, name));
            EXPECT_EQ(dialog.text(), "Connection");
        };
    };
    user.whenOpens(8721).does(pick("c")).presses(IDOK);
    EXPECT_TRUE(StartDlgSelectMacro("Connection", macros, {true, false, true}, 64, 64, macro,
                                    isAlternative, false));
    EXPECT_EQ(macro, "c:\\m\\c.dwg");
    isAlternative = true;
    user.whenOpens(8721)
        .does([](CDialog& dialog) {
            dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid)).userClicks(2, 2);
        })
        .presses(IDOK);
    EXPECT_TRUE(StartDlgSelectMacro("", macros, 64, 64, macro, isAlternative, false));
    EXPECT_TRUE(isAlternative);
    EXPECT_EQ(macro, "");
}

TEST_F(Starters, SelectImageShowsThumbnailsAndSaysWhatCannotBeRead) {
    std::string error;
    TwSelectImageDlgData data;
    data.files = {settings.folder().inside("one.bmp"), settings.folder().inside("lost.bmp")};
    data.labels = {"First"};
    ASSERT_TRUE(writeBitmap(CBitmap(4, 4), data.files[0], error)) << error;
    user.whenOpens(selectImageNumber)
        .presses(IDOK)  // nothing chosen yet: it stays open
        .does([&](CDialog& dialog) {
            auto* list = dialog.itemAs<CListBox>(selectImageList);
            ASSERT_EQ(list->count(), 2);
            EXPECT_TRUE(list->hasStyle(styleThumbnails));
            EXPECT_EQ(list->at(0).text, "First");
            EXPECT_EQ(list->at(0).picture, CBitmap(4, 4));
            EXPECT_EQ(list->at(1).text, "lost");
            EXPECT_FALSE(dialog.item(selectImageError)->text().empty());
            EXPECT_TRUE(isOverridden());
        })
        .selects(selectImageList, 0)
        .does([](CDialog& dialog) { EXPECT_EQ(dialog.item(selectImageError)->text(), ""); })
        .selects(selectImageList, 1)
        .does([](CDialog& dialog) {
            EXPECT_NE(dialog.item(selectImageError)->text().find("lost.bmp"), std::string::npos);
        })
        .presses(IDOK);
    EXPECT_TRUE(StartDlgSelectImage(data));
    EXPECT_EQ(data.chosen, 1);
    user.whenOpens(selectImageNumber).selects(selectImageList, 0).presses(IDCANCEL);
    EXPECT_FALSE(StartDlgSelectImage(data));
    EXPECT_EQ(data.chosen, 1);
}

TEST_F(Starters, DesignerThatIsMissingIsSaid) {
    EXPECT_FALSE(StartDlgDesigner("c:\\t\\a.txt"));
    ASSERT_EQ(user.messages().size(), 1u);
    EXPECT_NE(user.messages()[0].text.find("a.txt"), std::string::npos);
}

TEST_F(Starters, DstvPointsKeepTheirSettings) {
    for (const char* depth : {"1", "2"}) {
        user.whenOpens(8733)
            .does([=](CDialog& dialog) {
                auto& grid = dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid));
                Vor_String text;
                grid.getCellText(2, 2, text, Vor_Spread::Reading::value);
                EXPECT_EQ(text, depth);
                grid.userEnters(2, 2, "2");
            })
            .presses(IDOK);
        StartDSTVPointsDlg();
    }
}

}  // namespace
