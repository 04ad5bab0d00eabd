// Lists in the editor of named values: entries inserted and deleted by a scripted user.
#include "frame/editor/entry_list.h"

#include "frame/frame_host.h"
#include "frame/starter_dialogs.h"
#include "frame/starters.h"

namespace {

constexpr int levelsNumber = 8727;

Vor_Spread& gridOf(CDialog& dialog) {
    return dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid));
}

Vor_String textAt(CDialog& dialog, int col, int row) {
    Vor_String text;
    gridOf(dialog).getCellText(col, row, text, Vor_Spread::Reading::value);
    return text;
}

/// The row of this name; 0 for none.
int rowOf(CDialog& dialog, const Vor_String& name) {
    for (int row = 1; row <= gridOf(dialog).nrRows(); ++row)
        if (textAt(dialog, namedValuesNameColumn, row) == name) return row;
    return 0;
}

void moveTo(CDialog& dialog, const char* name) {
    const int row = rowOf(dialog, name);
    ASSERT_GT(row, 0) << name;
    gridOf(dialog).userMoves(namedValuesValueColumn, row);
}

void enter(CDialog& dialog, const char* name, const char* text) {
    const int row = rowOf(dialog, name);
    ASSERT_GT(row, 0) << name;
    EXPECT_TRUE(gridOf(dialog).userEnters(namedValuesValueColumn, row, text)) << name;
}

class EntryLists : public FrameTest {
  protected:
    EntryLists() { levels.levels = {{"a", 0, true}, {"b", 3000, false}, {"c", 6000, true}}; }

    using Script = std::function<void(CDialog&)>;

    /// Whether the levels are told to have changed.
    bool edit(const Script& script, int button) {
        user.whenOpens(levelsNumber).does(script).presses(button);
        return StartDlgLevels(levels);
    }
    std::string names() const {
        std::string all;
        for (const TwLevel& each : levels.levels)
            all += each.name.str() + "@" + Vor_String(each.height, 0).str() + " ";
        return all;
    }

    TwLevelsDlgData levels;
};

TEST_F(EntryLists, EntriesComeAndGoWhereTheUserIs) {
    struct Row {
        const char* what;
        Script script;
        const char* after;
        int activeRow;  ///< row 1 is the heading, and each level has three
    };
    const auto at = [](const char* name, std::vector<int> buttons) -> Script {
        return [=](CDialog& dialog) {
            moveTo(dialog, name);
            for (const int each : buttons) EXPECT_TRUE(dialog.press(each));
        };
    };
    constexpr int insert = namedValuesInsert, remove = namedValuesDelete;
    const auto selects = [](int first, int last) -> Script {
        return [=](CDialog& dialog) {
            gridOf(dialog).userSelects({1, first, 2, last});
            EXPECT_TRUE(dialog.press(remove));
        };
    };
    const Row table[] = {
        {"after the first", at("Level 1: Name", {insert}), "a@0 a@0 b@3000 c@6000 ", 5},
        {"from any of its rows", at("Level 2: Visible", {insert}), "a@0 b@3000 b@3000 c@6000 ", 8},
        {"after the last", at("Level 3: Name", {insert}), "a@0 b@3000 c@6000 c@6000 ", 11},
        {"on the heading", at("Levels", {insert}), "a@0 a@0 b@3000 c@6000 ", 2},
        {"the first goes", at("Level 1: Name", {remove}), "b@3000 c@6000 ", 2},
        {"the last goes", at("Level 3: Height (mm)", {remove}), "a@0 b@3000 ", 5},
        {"and comes back as a copy", at("Level 3: Name", {remove, insert}), "a@0 b@3000 b@3000 ",
         8},
        {"several go", selects(4, 5), "c@6000 ", 2},
        {"all go", selects(2, 10), "", 1},
        {"a new one after all went", at("Level 1: Name", {remove, remove, remove, insert}), "@0 ",
         2},
    };
    const TwLevelsDlgData before = levels;
    for (const Row& row : table) {
        SCOPED_TRACE(row.what);
        levels = before;
        EXPECT_TRUE(edit(
            [&](CDialog& dialog) {
                row.script(dialog);
                EXPECT_EQ(gridOf(dialog).currentRow(), row.activeRow);
                EXPECT_EQ(gridOf(dialog).currentCol(), namedValuesValueColumn);
            },
            IDOK));
        EXPECT_EQ(names(), row.after);
    }
}

TEST_F(EntryLists, WhatWasTypedIsKeptAndGoesIntoCopies) {
    levels.levels[2].height = 6000.123456;
    EXPECT_TRUE(edit(
        [](CDialog& dialog) {
            enter(dialog, "Level 1: Name", "ground");
            enter(dialog, "Level 2: Height (mm)", "3500");
            moveTo(dialog, "Level 2: Name");
            EXPECT_TRUE(dialog.press(namedValuesInsert));
            enter(dialog, "Level 3: Height (mm)", "4000");
        },
        IDOK));
    EXPECT_EQ(names(), "ground@0 b@3500 b@4000 c@6000 ");
    EXPECT_FALSE(levels.levels[2].isVisible);
    EXPECT_EQ(levels.levels[3].height, 6000.123456) << "left alone, so not rounded";
}

TEST_F(EntryLists, CancelLeavesTheCallersListAlone) {
    EXPECT_FALSE(edit(
        [](CDialog& dialog) {
            moveTo(dialog, "Level 2: Name");
            EXPECT_TRUE(dialog.press(namedValuesInsert));
            EXPECT_TRUE(dialog.press(namedValuesDelete));
            EXPECT_TRUE(dialog.press(namedValuesDelete));
        },
        IDCANCEL));
    EXPECT_EQ(names(), "a@0 b@3000 c@6000 ");
}

TEST_F(EntryLists, NothingComesOrGoesWhileATypedValueCannotBeUsed) {
    for (const int button : {namedValuesInsert, namedValuesDelete}) {
        EXPECT_FALSE(edit(
            [&](CDialog& dialog) {
                enter(dialog, "Level 1: Height (mm)", "2000000");
                moveTo(dialog, "Level 2: Name");
                dialog.press(button);
                EXPECT_EQ(gridOf(dialog).nrRows(), 10);
                EXPECT_EQ(gridOf(dialog).currentRow(), rowOf(dialog, "Level 1: Height (mm)"));
                EXPECT_EQ(textAt(dialog, namedValuesValueColumn, 3), "2000000");
            },
            IDCANCEL));
    }
    EXPECT_EQ(user.messages().size(), 2u);
}

TEST_F(EntryLists, TheKeysAreThoseOfTheButtons) {
    struct Row {
        KeyMessage key;
        bool isTyping;
        int rows;
    };
    const Row table[] = {
        {{.key = keyInsert}, false, 13},
        {{.key = keyInsert, .ctrl = true}, false, 13},
        {{.key = keyDelete}, false, 7},
        {{.key = keyDelete, .ctrl = true}, false, 7},
        {{.key = keyDelete, .shift = true}, false, 10},
        {{.key = keyInsert, .isDown = false}, false, 10},
        {{.key = keyInsert}, true, 10},
        {{.key = keyDelete}, true, 10},
    };
    for (const Row& row : table) {
        edit(
            [&](CDialog& dialog) {
                Vor_Spread& grid = gridOf(dialog);
                ASSERT_TRUE(grid.focus());
                moveTo(dialog, "Level 2: Name");
                EXPECT_EQ(grid.grid().beginEdit(), true);
                if (!row.isTyping) grid.grid().endEdit(false);
                EXPECT_EQ(dispatchKey(grid, row.key), row.rows != 10);
                EXPECT_EQ(grid.nrRows(), row.rows) << row.key.key << " " << row.isTyping;
            },
            IDCANCEL);
    }
    edit(
        [](CDialog& dialog) {
            moveTo(dialog, "Level 2: Name");
            CWnd& ok = *dialog.item(IDOK);
            ASSERT_TRUE(ok.focus());
            EXPECT_FALSE(dispatchKey(ok, {.key = keyDelete})) << "the keyboard is elsewhere";
        },
        IDCANCEL);
}

TEST_F(EntryLists, OnlyListsOfferEntries) {
    GridDialog fixed;
    ASSERT_TRUE(fixed.create());
    EXPECT_EQ(fixed.item(namedValuesInsert), nullptr);
    EXPECT_FALSE(dispatchKey(fixed.grid(), {.key = keyInsert}));

    ArrayDialog array;
    array.data().entries = {"250"};
    ASSERT_TRUE(array.create());
    struct Row {
        const char* name;
        bool canInsert, canDelete;
    };
    const Row rows[] = {
        {"Number", false, false}, {"Single distances", true, false}, {"Distance 1", true, true}};
    for (const Row& row : rows) {
        moveTo(array, row.name);
        EXPECT_EQ(array.item(namedValuesInsert)->isEnabled(), row.canInsert) << row.name;
        EXPECT_EQ(array.item(namedValuesDelete)->isEnabled(), row.canDelete) << row.name;
    }
    const int heading = rowOf(array, "Single distances");
    EXPECT_FALSE(gridOf(array).userEnters(namedValuesValueColumn, heading, "x"));
    moveTo(array, "Distance 1");
    array.press(namedValuesDelete);
    EXPECT_TRUE(array.data().entries.isEmpty());
    array.press(namedValuesInsert);
    enter(array, "Distance 1", "b/2");
    array.press(IDOK);
    EXPECT_EQ(array.data().entries, (Vor_Array<Vor_String>{"b/2"}));
}

TEST_F(EntryLists, ACellOfAHeadingCanBeTypedIntoWhenAValueTakesItsPlace) {
    DataDialog<TwAutoStandardsData, genVarsEditor> dialog;
    ASSERT_TRUE(dialog.create());
    EXPECT_EQ(gridOf(dialog).nrRows(), 2);
    moveTo(dialog, "Variables of drawings");
    dialog.press(namedValuesInsert);
    enter(dialog, "1: Name", "gen_A");
    enter(dialog, "gen_A: Value", "5");
    moveTo(dialog, "gen_A: Name");
    dialog.press(namedValuesInsert);
    moveTo(dialog, "Variables of standards");
    dialog.press(namedValuesInsert);
    enter(dialog, "1: Override", "7");
    dialog.press(IDOK);
    const TwAutoStandardsData& data = dialog.data();
    EXPECT_EQ(data.dwgGenVars(), (Vor_StringArray{"gen_A", "gen_A_1"}));
    EXPECT_EQ(data.dwgGenValues(), (Vor_StringArray{"5", "5"}));
    EXPECT_EQ(data.dwgGenFilters(), (Vor_StringArray{"", ""}));
    EXPECT_EQ(data.stdGenVars(), (Vor_StringArray{""}));
    EXPECT_EQ(data.stdGenOverrides(), (Vor_StringArray{"7"}));
    EXPECT_EQ(data.stdGenFilters(), (Vor_StringArray{""}));
}

TEST_F(EntryLists, CutsComeAndGoInTheModulesThatCanHaveThem) {
    MacroCutsDialog dialog;
    dialog.data().cuts = {{"Plate1", {"Cope", TwCutType::plane, {-5}}}};
    dialog.data().moduleNames = {"Plate1", "Plate2"};
    ASSERT_TRUE(dialog.create());
    EXPECT_FALSE(dialog.isChanged());
    moveTo(dialog, "Plate1, Cope: Offset (mm)");
    dialog.press(namedValuesInsert);
    EXPECT_TRUE(dialog.isChanged());
    dialog.press(namedValuesInsert);
    enter(dialog, "Plate1, Cope_2: Module", "Plate2");
    enter(dialog, "Plate2, Cope_2: Name", "COPE");
    enter(dialog, "Plate2, COPE: Module", "Plate1");
    EXPECT_GT(rowOf(dialog, "Plate1, COPE_2: Name"), 0) << "the name is taken there";
    for (const char* bad : {"Cope_1", "cope", "", ".x"}) {
        const size_t told = user.messages().size();
        enter(dialog, "Plate1, COPE_2: Name", bad);
        EXPECT_EQ(user.messages().size(), told + 1) << bad;
    }
    enter(dialog, "Plate1, COPE_2: Name", "cope_2");
    enter(dialog, "Plate1, cope_2: Type of cut", "Round");
    dialog.press(IDOK);
    EXPECT_EQ(dialog.data().cuts,
              (Vor_Array<MacroCut>{{"Plate1", {"Cope", TwCutType::plane, {-5}}},
                                   {"Plate1", {"Cope_1", TwCutType::plane, {-5}}},
                                   {"Plate1", {"cope_2", TwCutType::round, {}}}}));

    MacroCutsDialog empty;
    empty.data().moduleNames = {"Plate1"};
    ASSERT_TRUE(empty.create());
    empty.press(namedValuesInsert);
    empty.press(namedValuesInsert);
    EXPECT_EQ(empty.data().cuts,
              (Vor_Array<MacroCut>{{"Plate1", {"Cut", TwCutType::plane, {}}},
                                   {"Plate1", {"Cut_1", TwCutType::plane, {}}}}));
    MacroCutsDialog fixed;
    fixed.data().cuts = {{"Plate1", {"Cope", TwCutType::plane, {}}}};
    ASSERT_TRUE(fixed.create());
    EXPECT_EQ(gridOf(fixed).nrRows(), 2);
    EXPECT_FALSE(fixed.press(namedValuesInsert));
}

TEST_F(EntryLists, ConstraintsHaveNamesThatAMacroTakes) {
    EditConstrDialog dialog;
    ASSERT_TRUE(dialog.create());
    dialog.press(namedValuesInsert);
    enter(dialog, "Constraint: Name", "Gap");
    dialog.press(namedValuesInsert);
    enter(dialog, "Gap_1 (mm)", "5");
    enter(dialog, "Gap_1: Name", "GAP");
    EXPECT_EQ(user.messages().size(), 1u);
    EXPECT_EQ(user.messages()[0].text,
              "\"Gap_1: Name\" does not take \"GAP\". Type another value, or cancel.");
    enter(dialog, "Gap_1: Name", "Pitch");
    dialog.press(IDOK);
    EXPECT_EQ(dialog.data().constraints, (Vor_Array<EditConstraint>{{"Gap"}, {"Pitch", 5}}));
}

TEST_F(EntryLists, CopiesHaveNamesOfTheirOwn) {
    ProfFeaturesDialog features;
    features.data().features = {{"Hole", true, 100, 18}, {"hole_1", true, 200, 18}};
    ASSERT_TRUE(features.create());
    moveTo(features, "hole_1: Size (mm)");
    features.press(namedValuesInsert);
    enter(features, "hole_2: Position (mm)", "300");
    enter(features, "hole_2: Name", "Slot");
    EXPECT_GT(rowOf(features, "Slot: Position (mm)"), 0) << "the other rows have the new name";
    features.press(IDOK);
    EXPECT_EQ(features.data().features[2], (ProfFeature{"Slot", true, 300, 18}));

    struct Row {
        const char *name, *free;
    };
    const Vor_StringArray taken{"Hole", "Hole_1", "A_b", "_3", "C_", "D_4"};
    const Row rows[] = {{"", ""},         {"Gap", "Gap"}, {"HOLE", "HOLE_2"}, {"Hole_1", "Hole_2"},
                        {"A_b", "A_b_1"}, {"_3", "_3_1"}, {"C_", "C__1"},     {"D_4", "D"}};
    for (const Row& row : rows) EXPECT_EQ(freeName(taken, row.name), row.free) << row.name;
}

}  // namespace
