// The editor of rows of texts.
#include "frame/string_array_dialog.h"

#include "core_api/dialog_state.h"
#include "frame/frame_host.h"
#include "frame/starters.h"

namespace {

using Rows = Vor_Array<Vor_StringArray>;

class GridEditor : public FrameTest {
  protected:
    static Vor_Spread& gridOf(CDialog& dialog) {
        return dynamic_cast<Vor_Spread&>(*dialog.item(stringArrayGrid));
    }
    bool start(bool fixedRows = false) {
        return startGridDialog({"Name", "Size"}, {"", "M16;M20"}, rows, fixedRows, "", "Bolts");
    }
    static auto moves(int col, int row) {
        return [=](CDialog& dialog) { EXPECT_TRUE(gridOf(dialog).userMoves(col, row)); };
    }
    static auto enters(int col, int row, const char* text) {
        return [=](CDialog& dialog) { EXPECT_TRUE(gridOf(dialog).userEnters(col, row, text)); };
    }

    Rows rows{{"a", "M16"}, {"b", "M20"}, {"c", "M24"}};
};

TEST_F(GridEditor, NeedsColumns) {
    EXPECT_FALSE(startGridDialog({}, {}, rows, false, "", ""));
    EXPECT_EQ(rows.length(), 3);
}

TEST_F(GridEditor, ReplacesTheRowsOnOkOnly) {
    user.whenOpens(stringArrayNumber).does(enters(1, 2, "x")).presses(IDCANCEL);
    EXPECT_FALSE(start());
    EXPECT_EQ(rows, (Rows{{"a", "M16"}, {"b", "M20"}, {"c", "M24"}}));
    user.whenOpens(stringArrayNumber)
        .does([this](CDialog& dialog) {
            EXPECT_EQ(dialog.text(), "Bolts");
            EXPECT_TRUE(isOverridden());
            Vor_String heading;
            gridOf(dialog).getData(2, Vor_Spread::headerIndex, heading);
            EXPECT_EQ(heading, "Size");
        })
        .does(enters(1, 2, "x"))
        .does(enters(2, 3, "M20"))
        .presses(IDOK);
    EXPECT_TRUE(start());
    EXPECT_EQ(rows, (Rows{{"a", "M16"}, {"x", "M20"}, {"c", "M20"}}));
    EXPECT_FALSE(isOverridden());
}

TEST_F(GridEditor, AddsInsertsMovesAndDeletesRows) {
    struct Row {
        const char* name;
        std::function<void(ScriptedUser::Answer&)> script;
        Rows after;
    };
    const Row table[] = {
        {"add",
         [](auto& user) { user.presses(stringArrayAdd).does(enters(1, 4, "d")); },
         {{"a", "M16"}, {"b", "M20"}, {"c", "M24"}, {"d", ""}}},
        {"insert",
         [](auto& user) {
             user.does(moves(1, 2)).presses(stringArrayInsert).does(enters(1, 2, "n"));
         },
         {{"a", "M16"}, {"n", ""}, {"b", "M20"}, {"c", "M24"}}},
        {"delete",
         [](auto& user) { user.does(moves(1, 2)).presses(stringArrayDelete); },
         {{"a", "M16"}, {"c", "M24"}}},
        {"delete several",
         [](auto& user) {
             user.does([](CDialog& dialog) {
                     gridOf(dialog).userSelects({1, 2, 2, 3});
                 })
                 .presses(stringArrayDelete);
         },
         {{"a", "M16"}}},
        {"up",
         [](auto& user) { user.does(moves(1, 3)).presses(stringArrayUp); },
         {{"a", "M16"}, {"c", "M24"}, {"b", "M20"}}},
        {"down",
         [](auto& user) { user.does(moves(1, 1)).presses(stringArrayDown); },
         {{"b", "M20"}, {"a", "M16"}, {"c", "M24"}}},
        {"copy and paste",
         [](auto& user) {
             user.does(moves(1, 3))
                 .presses(stringArrayCopy)
                 .does(moves(1, 1))
                 .presses(stringArrayPaste);
         },
         {{"c", "M16"}, {"b", "M20"}, {"c", "M24"}}},
    };
    const Rows before = rows;
    for (const Row& row : table) {
        SCOPED_TRACE(row.name);
        rows = before;
        auto& script = user.whenOpens(stringArrayNumber);
        row.script(script);
        script.presses(IDOK);
        EXPECT_TRUE(start());
        EXPECT_EQ(rows, row.after);
    }
}

TEST_F(GridEditor, OffersOnlyWhatCanBeDone) {
    user.whenOpens(stringArrayNumber)
        .does([](CDialog& dialog) {
            EXPECT_FALSE(dialog.press(stringArrayUp));
            EXPECT_TRUE(dialog.press(stringArrayDown));
            EXPECT_TRUE(dialog.press(stringArrayDown));
            EXPECT_FALSE(dialog.press(stringArrayDown));
            for (int i = 0; i < 3; ++i) EXPECT_TRUE(dialog.press(stringArrayDelete));
            EXPECT_FALSE(dialog.press(stringArrayDelete));
            EXPECT_FALSE(dialog.press(stringArrayCopy));
            EXPECT_TRUE(dialog.press(stringArrayInsert));
            EXPECT_TRUE(gridOf(dialog).userEnters(2, 1, "any"));
        })
        .presses(IDOK);
    EXPECT_TRUE(start());
    EXPECT_EQ(rows, (Rows{{"", "any"}}));
    user.whenOpens(stringArrayNumber)
        .does([](CDialog& dialog) {
            for (const int id : {stringArrayAdd, stringArrayInsert, stringArrayDelete})
                EXPECT_FALSE(dialog.press(id)) << id;
        })
        .does(enters(1, 1, "fixed"))
        .presses(IDOK);
    EXPECT_TRUE(start(true));
    EXPECT_EQ(rows, (Rows{{"fixed", "any"}}));
}

TEST_F(GridEditor, HearsKeys) {
    user.whenOpens(stringArrayNumber)
        .does([](CDialog& dialog) {
            Vor_Spread& grid = gridOf(dialog);
            ASSERT_TRUE(grid.focus());
            grid.userMoves(1, 2);
            EXPECT_TRUE(dispatchKey(grid, {keyUp, true, false, false, true}));
            EXPECT_EQ(grid.currentRow(), 1);
            EXPECT_TRUE(dispatchKey(grid, {keyDelete, true, false, true, false}));
            EXPECT_FALSE(dispatchKey(grid, {keyDelete, true, false, false, false}));
            EXPECT_FALSE(dispatchKey(grid, {keyInsert, false, false, true, false}));
        })
        .presses(IDOK);
    EXPECT_TRUE(start());
    EXPECT_EQ(rows, (Rows{{"a", "M16"}, {"c", "M24"}}));
}

TEST_F(GridEditor, KeepsItsSizeUnderTheGivenName) {
    const auto resize = [](CDialog& dialog) { dialog.move({5, 6, 705, 506}); };
    user.whenOpens(stringArrayNumber).does(resize).presses(IDCANCEL);
    start();
    CWnd window;
    ASSERT_TRUE(window.create({"#32770", "", {}, 0, 0, false}, nullptr));
    EXPECT_TRUE(ChangeDlgSize(window, "DLG_SS_STRINGARRAY"));
    EXPECT_EQ(window.rect(), (CRect{5, 6, 705, 506}));
    user.whenOpens(stringArrayNumber).presses(IDCANCEL);
    startGridDialog({"A"}, {}, rows, false, "DLG_OTHER", "");
    EXPECT_TRUE(ChangeDlgSize(window, "DLG_OTHER"));
    EXPECT_NE(window.rect(), (CRect{5, 6, 705, 506}));
}

}  // namespace
