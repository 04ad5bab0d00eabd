// The editor's window, and finding and replacing in a grid.
#include <gtest/gtest.h>
#include <stdlib.h>

#include "core_api/settings.h"
#include "core_api/texts/texts.h"
#include "platform/host/host.h"
#include "platform/window/window_system.h"
#include "spread/editor/sheet_editor.h"
#include "spread/find_replace_dlg.h"
#include "spread/sheet_preparation.h"
#include "spread/tw_sheet_editor_dlg.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"

namespace {

using control::Reading;
using Find = TwFindReplaceDlg;

class MainWindow : public Host {
  public:
    MainWindow() { window.create({"Main", "CAD", {0, 0, 900, 700}, 0, 0, true}, nullptr); }
    CWnd* mainWindow() override { return &window; }
    void focusMainWindow() override { window.focus(); }
    CWnd window;
};

class EditorWindow : public testing::Test {
  protected:
    EditorWindow() : scope(host) {
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        holder.open();
        grid = holder.spread();
        grid->setNrCols(3, false);
        grid->setNrRows(3);
    }
    ~EditorWindow() override { ::unsetenv("XDG_CONFIG_HOME"); }

    void fill(const std::vector<std::vector<const char*>>& rows) {
        for (size_t r = 0; r < rows.size(); ++r)
            for (size_t c = 0; c < rows[r].size(); ++c)
                grid->setData(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
    }
    TwFindReplaceDlg& find(const char* wanted, const char* replacement = "") {
        grid->showFindReplace();
        TwFindReplaceDlg& dialog = *grid->findDialog();
        dialog.type(Find::findField, wanted);
        dialog.type(Find::replaceField, replacement);
        return dialog;
    }
    /// "B2:4+3": the active cell and the characters selected in it.
    std::string place() {
        const auto [col, row] = grid->grid().active();
        std::string text = std::string(1, static_cast<char>('A' + col - 1)) + std::to_string(row);
        const auto [start, length] = grid->grid().editSelection();
        if (grid->grid().isEditing())
            text += ":" + std::to_string(start) + "+" + std::to_string(length);
        return text;
    }
    std::string cell(int col, int row) { return grid->grid().text(col, row, Reading::value); }

    TemporaryFolder folder;
    MainWindow host;
    HostScope scope;
    TwSheetEditorHolder holder;
    Vor_Spread* grid;
    TestUser user;
};

TEST_F(EditorWindow, OpensOnceAndLeavesTheKeyboardToTheHost) {
    EXPECT_TRUE(host.window.hasFocus());
    TwSheetEditorDlg* dialog = holder.dialog();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->parent(), &host.window);
    EXPECT_EQ(dialog->item(TwSheetEditorDlg::gridItem), grid);
    const CSize before = grid->rect().size();
    dialog->move(dialog->rect().movedBy(0, 0));
    CRect larger = dialog->rect();
    larger.right += 100;
    dialog->move(larger);
    EXPECT_EQ(grid->rect().width(), before.width + 100);
    dialog->press(IDCANCEL);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(holder.open());
    EXPECT_EQ(holder.dialog(), dialog);
    EXPECT_TRUE(dialog->isVisible());
    TwSheetEditorHolder other;
    EXPECT_EQ(other.spread(), nullptr);
}

TEST_F(EditorWindow, GrowsUntilANewSheetShowsWhatItWantsToShow) {
    const CSize before = grid->rect().size();
    prepareSheet(*grid, "", true);
    EXPECT_EQ(grid->rect().size(), before) << "four columns and five rows fit already";
    grid->setNrCols(4, false);
    for (int col = 1; col <= 4; ++col) grid->grid().setColWidth(col, 200);
    grid->grid().setRowHeight(5, 500);
    grid->grid().setRowHeight(6, 5000);
    prepareSheet(*grid, "", true);
    EXPECT_GE(grid->clientWidth(), 4 * 200 + grid->grid().colWidth(control::headerIndex));
    EXPECT_GE(grid->rect().height(), 4 * 20 + 500);
    EXPECT_LT(grid->rect().height(), 5000) << "the sixth row may lie below";
}

TEST_F(EditorWindow, TheFindWindowKeepsItsPlaceWhateverEndsIt) {
    const std::function<void()> ends[] = {
        [&] { grid->findDialog()->press(IDCANCEL); },
        [&] { grid->destroy(); },
        [&] { holder.dialog()->destroy(); },
        [&] { host.window.destroy(); },
    };
    int at = 100;
    for (const auto& end : ends) {
        const CRect place{at, 40, at + 400, 200};
        find("x").move(place);
        end();
        if (!host.window.isCreated())
            host.window.create({"Main", "CAD", {0, 0, 900, 700}, 0, 0, true}, nullptr);
        if (!holder.isCreated() || !grid->isAttached()) holder = {};
        EXPECT_TRUE(holder.open());
        grid = holder.spread();
        EXPECT_EQ(find("x").rect(), place) << at;
        at += 10;
    }
}

// The question lies over the find window while the grid goes.
TEST_F(EditorWindow, TheGridMayGoWhileItIsSearched) {
    for (const int button : {int(IDOK), Find::replaceButton, Find::replaceAllButton}) {
        Vor_Spread* alone = new Vor_Spread;
        ASSERT_TRUE(alone->attachHidden() && alone->setNrCols(1, false) && alone->setNrRows(1));
        ASSERT_TRUE(alone->showFindReplace());
        alone->findDialog()->type(Find::findField, "x");
        const MessageListenerScope listener([&](const MessageBox&) {
            delete std::exchange(alone, nullptr);
            return false;
        });
        if (button != Find::replaceAllButton)
            user.whenMessageWithCaption(dialString(1144)).presses(IDYES);
        alone->findDialog()->press(button);
        EXPECT_FALSE(alone);
    }
}

TEST_F(EditorWindow, FindsFromCellToCellAndInsideTheOneBeingEdited) {
    fill({{"M12", "x m12 M12", "a"}, {"b", "", "M12"}});
    grid->setActiveCell(1, 1);
    find("m12");
    EXPECT_TRUE(grid->findDialog()->press(IDOK));
    EXPECT_EQ(place(), "B1:2+3") << "behind the active cell";
    grid->findDialog()->press(IDOK);
    EXPECT_EQ(place(), "B1:6+3");
    grid->findDialog()->press(IDOK);
    EXPECT_EQ(place(), "C2:0+3");
    user.whenMessageWithCaption(dialString(1144)).presses(IDNO);
    grid->findDialog()->press(IDOK);
    EXPECT_EQ(place(), "C2:0+3");
    user.whenMessageWithCaption(dialString(1144)).presses(IDYES);
    grid->findDialog()->press(IDOK);
    EXPECT_EQ(place(), "A1:0+3");
    EXPECT_EQ(user.messages()[1].text,
              dialString(1142).str() + "\n" + dialString(1143).str() + "\n");
    find("nowhere");
    user.whenMessageWithCaption(dialString(1144)).presses(IDYES);
    EXPECT_FALSE(grid->findDialog()->findNext(true));
    EXPECT_EQ(user.messages().back().text, dialString(1145).str());
    EXPECT_FALSE(grid->findDialog()->findNext(false));
    EXPECT_FALSE(find("").findNext(true)) << "nothing to look for";
}

TEST_F(EditorWindow, ReplacesTheNextHitAndThenTheOneBehindIt) {
    fill({{"a", "MM-M", "M"}});
    grid->setActiveCell(1, 1);
    TwFindReplaceDlg& dialog = find("m", "long");
    dialog.press(Find::replaceButton);
    EXPECT_EQ(cell(2, 1), "longM-M");
    EXPECT_EQ(place(), "B1:4+0");
    dialog.press(Find::replaceButton);
    EXPECT_EQ(cell(2, 1), "longlong-M");
    dialog.press(Find::replaceButton);
    dialog.press(Find::replaceButton);
    EXPECT_EQ(cell(2, 1), "longlong-long");
    EXPECT_EQ(cell(3, 1), "long");
}

TEST_F(EditorWindow, ReplacesAllAsOneStepOfTheHistory) {
    fill({{"M12 M12", "12"}, {"m12", "", "M120"}});
    grid->setNumberCell({2, 1, 2, 1}, 0);
    editor::SheetEditor editor(grid->grid());
    grid->setChangeObserver(&editor);
    find("12", "x").press(Find::replaceAllButton);
    EXPECT_EQ(user.messages().back().caption, dialString(1149).str());
    EXPECT_EQ(user.messages().back().text, "Replaced in 3 cells.") << "B1 takes numbers alone";
    EXPECT_EQ(cell(1, 1) + cell(2, 1) + cell(1, 2) + cell(3, 2), "Mx Mx12mxMx0");
    EXPECT_EQ(editor.undoTitle(), "Undo replacing all");
    EXPECT_TRUE(editor.undo());
    EXPECT_EQ(cell(1, 1) + cell(2, 1) + cell(1, 2) + cell(3, 2), "M12 M1212m12M120");
    EXPECT_FALSE(editor.canUndo());
    EXPECT_EQ(find("none").replaceAll(), 0);
    grid->setChangeObserver(nullptr);
}

TEST_F(EditorWindow, FindWindowKeepsItsPlaceAndGivesOptionsBack) {
    for (const bool wasOn : {false, true}) {
        grid->setBool(13, wasOn);
        grid->setBool(20, true);
        TwFindReplaceDlg& dialog = find("x");
        EXPECT_TRUE(grid->getBool(13));
        EXPECT_FALSE(grid->getBool(20));
        const CRect place{40, 50, 440, 250};
        dialog.move(place);
        EXPECT_TRUE(grid->showFindReplace());
        EXPECT_EQ(grid->findDialog(), &dialog) << "one at a time";
        dialog.press(IDCANCEL);
        EXPECT_EQ(grid->getBool(13), wasOn);
        EXPECT_EQ(grid->findDialog(), nullptr);
        EXPECT_EQ(find("x").rect(), place);
        grid->findDialog()->press(IDCANCEL);
    }
}

/// A screen whose dialog font is as wide as the desktop's.
class DesktopFont : public WindowSystem {
  public:
    DesktopFont() : m_before(install(this)) {}
    ~DesktopFont() override { install(m_before); }
    CSize dialogCharacter() override { return {7, 15}; }

  private:
    WindowSystem* m_before;
};

TEST_F(EditorWindow, TextsFitInEveryLanguage) {
    constexpr int margin = 12;  // of a button
    DesktopFont font;
    for (int language = 0; language < languageCount; ++language) {
        gSettings.current().language = static_cast<Language>(language);
        TwSheetEditorDlg editorWindow(nullptr);
        ASSERT_TRUE(editorWindow.create());
        TwFindReplaceDlg findWindow(*grid);
        ASSERT_TRUE(findWindow.create());
        for (const CDialog* dialog :
             {static_cast<CDialog*>(&editorWindow), static_cast<CDialog*>(&findWindow)}) {
            for (const CWnd* item : dialog->children()) {
                const int room =
                    item->rect().width() - (item->className() == "Button" ? margin : 0);
                EXPECT_LE(static_cast<int>(item->text().size()) * 7, room) << item->text();
            }
        }
    }
    gSettings.current().language = Language::english;
}

}  // namespace
