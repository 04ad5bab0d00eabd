// What the editor of named values takes, refuses and keeps.
#include "core_api/dialog_state.h"
#include "frame/editor/data_dialog.h"
#include "frame/editor/editor_kinds.h"
#include "frame/frame_host.h"
#include "frame/starter_dialogs.h"
#include "macros/sample_macro.h"

namespace {

using control::CellKind;

class NamedValuesEditor : public FrameTest {
  protected:
    template <class Dialog>
    static Vor_Spread& open(Dialog& dialog) {
        EXPECT_TRUE(dialog.create());
        return dialog.grid();
    }
};

TEST_F(NamedValuesEditor, ShowsEachValueInACellOfItsKind) {
    GridDialog dialog;
    dialog.data().name = "Hall";
    dialog.data().rotation = -12.5;
    dialog.data().showsLabels = true;
    Vor_Spread& grid = open(dialog);
    struct Row {
        int row;
        CellKind kind;
        const char* name;
        const char* value;
    };
    const Row rows[] = {{1, CellKind::edit, "Name", "Hall"},
                        {5, CellKind::number, "Rotation (\xB0)", "-12.5"},
                        {11, CellKind::checkBox, "Show labels", "1"}};
    for (const Row& row : rows) {
        Vor_String name, value;
        grid.getCellText(1, row.row, name, Vor_Spread::Reading::value);
        grid.getCellText(2, row.row, value, Vor_Spread::Reading::value);
        EXPECT_EQ(name, row.name);
        EXPECT_EQ(value, row.value);
        EXPECT_EQ(grid.grid().format(2, row.row).type.kind, row.kind) << row.name;
        EXPECT_TRUE(grid.isLocked(1, row.row));
        EXPECT_FALSE(grid.userEnters(1, row.row, "x"));
    }
    BracingDialog bracing;
    EXPECT_EQ(open(bracing).grid().format(2, 1).type.kind, CellKind::comboBox);
}

TEST_F(NamedValuesEditor, KeepsTheDialogOpenUntilNumbersAreInRange) {
    struct Row {
        int row;
        const char* typed;
        bool isTaken;
    };
    // Rows of the cladding dialog: 3 needs a size above 0, 6 any distance, 5 no negative one.
    const Row rows[] = {{3, "0", false}, {3, "", false},   {3, "0.001", true},   {5, "-1", false},
                        {5, "0", true},  {6, "-10", true}, {6, "2000000", false}};
    for (const Row& row : rows) {
        CladdingDialog dialog;
        Vor_Spread& grid = open(dialog);
        ASSERT_TRUE(grid.userEnters(2, row.row, row.typed)) << row.typed;
        const size_t told = user.messages().size();
        dialog.press(IDOK);
        EXPECT_EQ(dialog.isEnded(), row.isTaken) << row.typed;
        EXPECT_EQ(user.messages().size(), told + (row.isTaken ? 0 : 1)) << row.typed;
        if (!row.isTaken) {
            EXPECT_EQ(grid.currentRow(), row.row);
        }
    }
    EXPECT_EQ(user.messages()[0].text,
              "\"Panel width (mm)\" needs a number from 0.001 to 1000000. Type another one, or "
              "cancel.");
}

TEST_F(NamedValuesEditor, ARefusedValueLeavesTheDataAsItWas) {
    DataDialog<MacroData, macroEditor> dialog;
    const MacroData before = makeMacroData(sampleMacro());
    dialog.data() = before;
    Vor_Spread& grid = open(dialog);
    ASSERT_TRUE(grid.userEnters(2, 1, "24"));
    ASSERT_TRUE(grid.userEnters(2, 2, "-3"));  // no hole is smaller than its bolt
    dialog.press(IDOK);
    EXPECT_FALSE(dialog.isEnded());
    EXPECT_EQ(user.messages().size(), 1u);
    EXPECT_EQ(dialog.data(), before);
    ASSERT_TRUE(grid.userEnters(2, 2, "3"));
    dialog.press(IDOK);
    EXPECT_TRUE(dialog.isEnded());
    EXPECT_NE(dialog.data(), before);
}

TEST_F(NamedValuesEditor, ValuesLeftAloneAreNotRounded) {
    GridDialog dialog;
    dialog.data().originX = 1.23456789;
    Vor_Spread& grid = open(dialog);
    ASSERT_TRUE(grid.userEnters(2, 3, "7"));
    dialog.press(IDOK);
    EXPECT_EQ(dialog.data().originX, 1.23456789);
    EXPECT_EQ(dialog.data().originY, 7);
}

TEST_F(NamedValuesEditor, AnotherTypeOfCutHasOtherOffsets) {
    MacroCutsDialog dialog;
    dialog.data().cuts.append({"Plate1", {"C", TwCutType::chamfer, {}}});
    dialog.data().cuts[0].cut.offsets[cutChamfer1] = 8;
    Vor_Spread& grid = open(dialog);
    EXPECT_EQ(grid.nrRows(), 3);
    ASSERT_TRUE(grid.userEnters(2, 1, "Round"));
    EXPECT_EQ(grid.nrRows(), 2);
    ASSERT_TRUE(grid.userEnters(2, 2, "15"));
    dialog.press(IDOK);
    const CutConstraint& cut = dialog.data().cuts[0].cut;
    EXPECT_EQ(cut.type, TwCutType::round);
    EXPECT_EQ(cut.offsets[cutChamfer1], 0);
    EXPECT_EQ(cut.offsets[cutRadius], 15);
}

TEST_F(NamedValuesEditor, TabGoesThroughTheValuesFirst) {
    BracingDialog dialog;
    Vor_Spread& grid = open(dialog);
    dialog.show(true);
    EXPECT_EQ(dialog.nextTabItem(nullptr, false), &grid);
    EXPECT_EQ(dialog.nextTabItem(&grid, false), dialog.item(IDOK));
    EXPECT_EQ(dialog.nextTabItem(&grid, true), dialog.item(IDCANCEL));
}

TEST_F(NamedValuesEditor, ComesBackInItsSize) {
    {
        LevelsDialog dialog;
        open(dialog);
        dialog.move({10, 20, 900, 700});
        EXPECT_GT(dialog.grid().rect().width(), 800);
    }
    LevelsDialog again;
    open(again);
    EXPECT_EQ(again.rect(), (CRect{10, 20, 900, 700}));
}

}  // namespace
