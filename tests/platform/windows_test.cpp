#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/texts/dial_text.h"
#include "platform/window/dialog.h"
#include "platform/window/message_scope.h"
#include "platform/window/text_question.h"
#include "support/printed.h"
#include "support/test_user.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr ControlTemplate controls[] = {
    {Control::edit, 1207, {}, {10, 20, 40, 8}},
    {Control::button, 1205, dialText(1141), {60, 20, 40, 8}},
    {Control::button, IDOK, dialText(1), {60, 40, 40, 8}},
    {Control::placeholder, 1001, {}, {10, 40, 40, 80}},
};
constexpr DialogResource resource{218, dialText(1136), {0, 0, 200, 160}, controls};

class SampleDialog : public CDialog {
  public:
    explicit SampleDialog(CWnd* parent = nullptr) : CDialog(resource, parent) {}
    ~SampleDialog() override { destroyNow(); }
    void onCommand(int id, int code) override {
        commands += std::to_string(id) + (code == clicked ? "! " : "~ ");
        if (id == 1205) typed = item(1207)->text();
        CDialog::onCommand(id, code);
    }
    void onDestroy() override { sizeAtEnd = windowRect(); }

    std::string commands, typed;
    CRect sizeAtEnd;
};

TEST(Dialogs, HiddenDialogHasItsItemsInPixels) {
    SampleDialog dialog;
    ASSERT_TRUE(dialog.create());
    EXPECT_FALSE(dialog.create());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.text(), "Find and replace");
    dialog.move({100, 50, 400, 310});
    ASSERT_NE(dialog.item(1001), nullptr);
    EXPECT_EQ(dialog.item(1001)->windowRect(), (CRect{115, 115, 175, 245}));
    EXPECT_FALSE(dialog.item(1001)->isVisible());
    dialog.show(true);
    EXPECT_TRUE(dialog.item(1001)->isVisible());

    // A grid takes a placeholder's seat; whoever goes first, nobody is left with a dead window.
    auto grid = std::make_unique<CWnd>();
    ASSERT_TRUE(dialog.item(1001)->destroy());
    ASSERT_TRUE(grid->create({"fpSpread70", "", {15, 65, 75, 195}, 0, 1001, true}, &dialog));
    EXPECT_EQ(dialog.item(1001), grid.get());
    EXPECT_TRUE(grid->focus());
    EXPECT_EQ(CWnd::focused(), grid.get());
    EXPECT_TRUE(dialog.destroy());
    EXPECT_EQ(CWnd::focused(), nullptr);
    EXPECT_FALSE(grid->isCreated());
    EXPECT_EQ(grid->parent(), nullptr);
    EXPECT_EQ(dialog.sizeAtEnd, (CRect{100, 50, 400, 310}));
    EXPECT_TRUE(dialog.create());
}

/// Ends in the middle of its own call-back, and is used afterwards.
class EndingDialog : public SampleDialog {
  public:
    using SampleDialog::SampleDialog;
    void onCommand(int id, int code) override {
        if (code == clicked && end) std::exchange(end, nullptr)();
        SampleDialog::onCommand(id, code);
    }
    bool preTranslateKey(const KeyMessage&) override { return press(1205); }
    void onMouse(const MouseMessage&) override { press(1205); }
    void onDestroy() override { ended += "destroyed "; }
    std::function<void()> end;
    std::string ended;
};

TEST(Dialogs, EndedInTheirOwnCallBackGoAfterIt) {
    using Call = std::function<void(CDialog&)>;
    const Call calls[] = {
        [](CDialog& dialog) { dialog.press(1205); },
        [](CDialog& dialog) { dialog.itemAs<CButton>(1205)->userPresses(); },
        [](CDialog& dialog) { dispatchKey(*dialog.item(1207), {keyEscape}); },
        [](CDialog& dialog) { dispatchMouse(dialog, {}); },
    };
    for (size_t i = 0; i < std::size(calls); ++i) {
        for (const bool withParent : {false, true}) {
            CWnd main;
            ASSERT_TRUE(main.create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr));
            EndingDialog dialog(&main);
            ASSERT_TRUE(dialog.create());
            dialog.show(true);
            dialog.end = [&] {
                EXPECT_TRUE(withParent ? main.destroy() : dialog.destroy());
                EXPECT_FALSE(dialog.isVisible());
                EXPECT_TRUE(dialog.item(1207));
                EXPECT_EQ(dialog.ended, "");
            };
            calls[i](dialog);
            EXPECT_EQ(dialog.ended, "destroyed ") << i << withParent;
            EXPECT_FALSE(dialog.isCreated());
            EXPECT_EQ(main.isCreated(), !withParent);
        }
    }
}

TEST(Dialogs, DeletedInTheirOwnCallBackGoAfterIt) {
    std::string ended;
    auto main = std::make_unique<CWnd>();
    ASSERT_TRUE(main->create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr));
    auto owned = std::make_unique<EndingDialog>(main.get());
    EndingDialog& dialog = *owned;
    ASSERT_TRUE(dialog.create());
    dialog.end = [&] {
        main.reset();  // the object too, as when a host goes down
        EXPECT_EQ(dialog.parent(), nullptr);
        retire(std::move(owned));
        EXPECT_TRUE(dialog.item(1207));
    };
    dialog.press(1205);
    EXPECT_EQ(CWnd::focused(), nullptr);
    retire(nullptr);
}

TEST(Dialogs, DisabledAndHiddenItemsTakeNothing) {
    SampleDialog dialog;
    EXPECT_FALSE(dialog.press(1205));  // not created
    ASSERT_TRUE(dialog.create());
    dialog.item(1205)->enable(false);
    dialog.item(1207)->enable(false);
    EXPECT_FALSE(dialog.press(1205));
    EXPECT_FALSE(dialog.type(1207, "x"));
    EXPECT_FALSE(dialog.press(4711));
    EXPECT_EQ(dialog.commands, "");
    EXPECT_FALSE(dialog.item(IDOK)->focus());  // the dialog is hidden
    dialog.show(true);
    EXPECT_FALSE(dialog.item(1205)->focus());
    EXPECT_TRUE(dialog.item(IDOK)->focus());
    EXPECT_TRUE(dialog.press(IDCANCEL));  // the title bar's cross
    EXPECT_EQ(dialog.result(), IDCANCEL);
}

// What a screen is told: every window made goes again, children before their parent.
TEST(Windows, ScreenIsToldOfEveryWindow) {
    class Screen : public WindowSystem {
      public:
        void created(CWnd& window) override { log += "+" + std::to_string(window.id()); }
        void destroyed(CWnd& window) override { log += "-" + std::to_string(window.id()); }
        void changed(CWnd& window, WindowChange change) override {
            if (change == WindowChange::text) log += "=" + window.text();
        }
        std::string log;
    };
    Screen screen;
    WindowSystem* const before = WindowSystem::install(&screen);
    {
        CWnd top, child;
        ASSERT_TRUE(top.create({"Frame", "", {0, 0, 9, 9}, 0, 1, true}, nullptr));
        CWnd* const kept = top.adopt(std::make_unique<CWnd>());
        ASSERT_TRUE(kept->create({"Edit", "", {0, 0, 9, 9}, 0, 2, true}, &top));
        ASSERT_TRUE(child.create({"Edit", "", {0, 0, 9, 9}, 0, 3, true}, kept));
        EXPECT_FALSE(child.create({"Edit", "", {}, 0, 4, true}, &top));
        child.setText("M16");
    }
    WindowSystem::install(before);
    EXPECT_EQ(screen.log, "+1+2+3=M16-3-2-1");
}

TEST(Dialogs, ScriptedUserWorksThroughOne) {
    TestUser user;
    user.whenOpens(218).types(1207, "M16").presses(1205).presses(IDOK);
    SampleDialog dialog;
    EXPECT_EQ(dialog.doModal(), IDOK);
    EXPECT_EQ(dialog.commands, "1207~ 1205! 1! ");
    EXPECT_EQ(dialog.typed, "M16");
    EXPECT_FALSE(dialog.isCreated());
}

TEST(Dialogs, NobodyAnswersMeansCancelled) {
    Printed host;
    const HostScope scope(host);
    SampleDialog dialog;
    EXPECT_EQ(dialog.doModal(), IDCANCEL);
    EXPECT_EQ(host.text, "Dialog cancelled, nobody can answer it: Find and replace\n");
    MessageBox question{"Save", "Save it?", MessageIcon::question, MessageButtons::yesNoCancel};
    EXPECT_EQ(showMessage(question), IDCANCEL);
    question.buttons = MessageButtons::yesNo;
    EXPECT_EQ(showMessage(question), IDNO);
}

TEST(Dialogs, TextQuestionGivesTheAnswerOnlyOnOk) {
    TestUser user;
    user.whenOpens(textQuestionNumber).types(textQuestionField, "Row 5").presses(IDOK);
    user.whenOpens(textQuestionNumber).types(textQuestionField, "no").presses(IDCANCEL);
    std::string answer = "kept";
    EXPECT_TRUE(askText({"New", "Name", "Name of the new row:", "", "Ok", ""}, nullptr, answer));
    EXPECT_EQ(answer, "Row 5");
    EXPECT_FALSE(askText({"New", "", "", "", "Ok", "Cancel"}, nullptr, answer));
    EXPECT_EQ(answer, "Row 5");
}

TEST(ScriptedUserProblems, AreNamed) {
    ScriptedUser user;
    user.whenOpens(218).types(9999, "x").presses(1205);
    user.whenMessageWithCaption("Save").presses(IDRETRY);
    user.whenMenuOpens().picks("Cut");
    user.whenMessage("never");
    SampleDialog dialog;
    EXPECT_EQ(dialog.doModal(), IDCANCEL);
    EXPECT_EQ(dialog.doModal(), IDCANCEL);
    EXPECT_EQ(showMessage({"Save", "?", MessageIcon::question, MessageButtons::okCancel}),
              IDCANCEL);
    EXPECT_EQ(showMessage({"Other", "?", MessageIcon::question, MessageButtons::okCancel}),
              IDCANCEL);
    const MenuEntry entries[] = {{1, "Copy"}, {0, ""}};
    EXPECT_EQ(user.popupMenu(dialog, entries), 0);
    EXPECT_THAT(
        user.problems(),
        ElementsAre("dialog 218: item 9999 cannot be used", "dialog 218 is left open",
                    "nobody answers dialog 218 \"Find and replace\"",
                    "message box \"Save\" has no button 4",
                    "nobody answers the question \"Other\": ?", "the menu has no entry \"Cut\""));
    EXPECT_THAT(user.unusedAnswers(), ElementsAre("message box with \"never\" in its text"));
}

TEST(MessageBoxes, ListenersHearBeforeTheScreen) {
    TestUser user;
    user.whenMessageWithCaption("Ask").presses(IDYES);
    std::string heard;
    {
        const MessageListenerScope outer([&](const MessageBox& box) {
            heard += "outer:" + box.caption + " ";
            return box.caption == "Taken";
        });
        const MessageListenerScope inner([&](const MessageBox& box) {
            heard += "inner:" + box.caption + " ";
            return false;
        });
        showWarning("Taken", "not on the screen");
        EXPECT_EQ(showMessage({"Ask", "a\n\nb", MessageIcon::question, MessageButtons::yesNo}),
                  IDYES);
    }
    showWarning("", "alone\n");
    EXPECT_EQ(heard, "inner:Taken outer:Taken inner:Ask outer:Ask ");
    EXPECT_THAT(user.messageLines(),
                ElementsAre(ElementsAre("a", "", "b"), ElementsAre("alone", "")));
}

TEST(Host, PrintsTextsOfAnyLength) {
    Printed host;
    const HostScope scope(host);
    const std::string name(3000, 'x');
    acutPrintf("%s:%d\n", name.c_str(), 7);
    EXPECT_EQ(host.text, name + ":7\n");
    host.text.clear();
    GrowingArray<int> numbers{1, 2};
    EXPECT_FALSE(numbers.insertAt(3, 5));
    EXPECT_FALSE(numbers.removeAt(-1));
    EXPECT_EQ(host.text,
              "*Error* Invalid index passed to insert.\n*Error* Invalid index passed to remove.\n");
    EXPECT_EQ(numbers.length(), 2);
}

}  // namespace
