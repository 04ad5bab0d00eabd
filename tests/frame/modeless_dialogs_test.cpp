// Dialogs that stay open while the host works: macro dialogs in their slots, the one constraints
// dialog.
#include "frame/constraints_window.h"
#include "frame/frame_host.h"
#include "frame/open_macro_dialogs.h"
#include "frame/starters.h"
#include "macros/sample_macro.h"

namespace {

constexpr int valueColumn = namedValuesValueColumn;

class MacroDialogs : public FrameTest {
  protected:
    int start(bool keepFocus = true) {
        int slot = -1;
        EXPECT_TRUE(StartDlgMacroModeless(keepFocus, macro, slot));
        return slot;
    }
    /// The window in that place among the windows that were opened.
    CDialog* opened(size_t index) { return dialogs().at(index); }
    std::vector<CDialog*> dialogs() {
        std::vector<CDialog*> found;
        for (CWnd* child : main.children())
            if (auto* dialog = dynamic_cast<CDialog*>(child)) found.push_back(dialog);
        return found;
    }
    void SetUp() override {
        ASSERT_TRUE(main.create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr));
        host.window = &main;
    }
    void TearDown() override {
        detachLibrary();
        host.window = nullptr;
    }

    MacroData macro = makeMacroData(sampleMacro());
    CWnd main;
};

TEST_F(MacroDialogs, TakeTheFirstFreeSlotAndTrimTheTable) {
    EXPECT_EQ(start(), 0);
    EXPECT_EQ(start(), 1);
    EXPECT_EQ(start(), 2);
    EXPECT_TRUE(EndDlgMacroModeless(1));
    EXPECT_EQ(openMacroDialogs().length(), 3);
    EXPECT_EQ(start(), 1);
    EXPECT_TRUE(EndDlgMacroModeless(1));
    EXPECT_EQ(host.prompts, 2);
    EXPECT_TRUE(EndDlgMacroModeless(2));
    EXPECT_EQ(openMacroDialogs().length(), 1);
    EXPECT_EQ(host.prompts, 3);
    for (const int bad : {-1, 1, 2, 99}) EXPECT_FALSE(EndDlgMacroModeless(bad)) << bad;
    EXPECT_EQ(host.prompts, 3);
    EXPECT_EQ(dialogs().size(), 1u);
}

TEST_F(MacroDialogs, ShowResource8131AndLeaveTheFocusWhereItIsWanted) {
    start(true);
    EXPECT_EQ(host.focused, 0);
    start(false);
    EXPECT_EQ(host.focused, 1);
    ASSERT_EQ(dialogs().size(), 2u);
    EXPECT_EQ(opened(0)->number(), 8131);
    EXPECT_TRUE(opened(0)->isVisible());
    EXPECT_FALSE(opened(0)->isModal());
    EXPECT_FALSE(isOverridden());
}

TEST_F(MacroDialogs, WithoutAWindowThereIsNoDialog) {
    CWnd neverMade;
    host.window = &neverMade;
    int slot = -1;
    EXPECT_FALSE(StartDlgMacroModeless(false, macro, slot));
    EXPECT_EQ(slot, 0);
    EXPECT_EQ(host.focused, 0);
    EXPECT_FALSE(EndDlgMacroModeless(0));
    EXPECT_FALSE(isOverridden());
    host.window = &main;
    EXPECT_EQ(start(), 0);
}

TEST_F(MacroDialogs, WorkOnACopyThatCanBeAskedFor) {
    start();
    const MacroData before = macro;
    int tab = 0;
    ASSERT_TRUE(macro.findTab("Braces", tab));
    macro.getTab(tab)->setMergedPropsOfGroup("Left", MacroProfData("Left"));
    MacroData read;
    EXPECT_TRUE(GetDlgMacroData(0, read));
    EXPECT_EQ(read, before);
    for (const int bad : {-1, 1}) EXPECT_FALSE(GetDlgMacroData(bad, read));
    EXPECT_EQ(read, before);
    EXPECT_FALSE(isOverridden());
}

TEST_F(MacroDialogs, ThatEndThemselvesGoAMomentLater) {
    start();
    CDialog* dialog = opened(0);
    auto* grid = dynamic_cast<Vor_Spread*>(dialog->item(namedValuesGrid));
    ASSERT_TRUE(grid && grid->nrRows() > 0);
    ASSERT_TRUE(grid->userEnters(valueColumn, 1, "24"));
    EXPECT_TRUE(dialog->press(IDOK));
    EXPECT_TRUE(dialog->press(IDOK));  // an impatient user
    MacroData changed;
    ASSERT_TRUE(GetDlgMacroData(0, changed));
    EXPECT_NE(changed, macro);
    EXPECT_EQ(host.prompts, 0);
    user.advanceClock(49);
    EXPECT_EQ(openMacroDialogs().length(), 1);
    EXPECT_EQ(host.printed, "");
    user.advanceClock(1);
    EXPECT_EQ(host.printed, "Delayed timer called.\n");
    EXPECT_EQ(openMacroDialogs().length(), 0);
    EXPECT_EQ(host.prompts, 1);
    user.advanceClock(1000);
    EXPECT_EQ(host.printed, "Delayed timer called.\n");
}

TEST_F(MacroDialogs, ADelayedCloseNeverMeetsTheNextDialogInItsSlot) {
    start();
    opened(0)->press(IDCANCEL);
    EXPECT_TRUE(EndDlgMacroModeless(0));  // by the host, at once
    EXPECT_EQ(start(), 0);
    user.advanceClock(200);
    EXPECT_EQ(openMacroDialogs().length(), 1);
    EXPECT_EQ(host.printed, "");
}

// Where the dialogs end the window is told something: nothing of it may be used afterwards, which
// the address sanitizer sees.
TEST_F(MacroDialogs, EndFromInsideTheirOwnCallBacks) {
    const auto grid = [&] { return opened(0)->itemAs<Vor_Spread>(namedValuesGrid); };
    const std::function<void()> calls[] = {
        [&] { grid()->userEnters(valueColumn, 1, "24"); },
        [&] { grid()->userPastes(valueColumn, 1, "24\n25\n26"); },
        [&] { grid()->userMoves(valueColumn, 2); },
        [&] { grid()->userClicks(valueColumn, 1), grid()->userMoves(valueColumn, 2); },
    };
    for (const auto& call : calls) {
        start();
        grid()->setListener([](const GridNotice&) { EXPECT_TRUE(EndDlgMacroModeless(0)); });
        call();
        EXPECT_EQ(openMacroDialogs().length(), 1);
        user.advanceClock(DelayedEnds::delay);
        EXPECT_EQ(openMacroDialogs().length(), 0);
    }
}

TEST_F(MacroDialogs, WithoutTheMainWindowFreeTheirSlots) {
    start();
    start();
    main.destroy();
    MacroData read;
    for (const int slot : {0, 1}) {
        EXPECT_FALSE(GetDlgMacroData(slot, read)) << slot;
        EXPECT_FALSE(EndDlgMacroModeless(slot)) << slot;
    }
    EXPECT_EQ(host.prompts, 0);
    ASSERT_TRUE(main.create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr));
    EXPECT_EQ(start(), 0);
    EXPECT_TRUE(EndDlgMacroModeless(0));
    EXPECT_EQ(openMacroDialogs().length(), 0);  // the dead one behind it went too
}

TEST_F(MacroDialogs, OutliveTheMainWindowWhileTheyWork) {
    start();
    CDialog* dialog = opened(0);
    dialog->itemAs<Vor_Spread>(namedValuesGrid)->setListener([&](const GridNotice&) {
        main.destroy();
        EXPECT_FALSE(main.isVisible());
        EXPECT_TRUE(dialog->item(namedValuesGrid));  // until it has heard of this
    });
    dialog->itemAs<Vor_Spread>(namedValuesGrid)->userEnters(valueColumn, 1, "24");
    EXPECT_FALSE(main.isCreated());
    EXPECT_FALSE(dialog->isCreated());
}

// One line for each way out of a dialog: what the host hears once it has gone.
enum class Ends { byThemselves, byHost, withTheMainWindow };
const struct {
    const char* name;
    std::vector<int> presses;
    Ends ends;
    bool isConfirmed;
} waysOut[] = {
    {"OK", {IDOK}, Ends::byThemselves, true},
    {"Cancel", {IDCANCEL}, Ends::byThemselves, false},
    {"OK counts", {IDOK, IDCANCEL}, Ends::byThemselves, true},
    {"the host is faster", {IDOK}, Ends::byHost, true},
    {"the host", {}, Ends::byHost, false},
    {"the main window", {}, Ends::withTheMainWindow, false},
};

TEST_F(MacroDialogs, TellOnceHowTheyEnded) {
    for (const auto& way : waysOut) {
        SCOPED_TRACE(way.name);
        std::vector<bool> heard;
        int slot = -1;
        const auto ended = [&](int number, bool isConfirmed, const MacroData& data) {
            heard.push_back(isConfirmed);
            EXPECT_EQ(number, 1);
            EXPECT_EQ(data != macro, isConfirmed);
            EXPECT_EQ(start(), 0);  // its slot and the one before are free
        };
        ASSERT_EQ(start(), 0);
        ASSERT_TRUE(StartDlgMacroModeless(true, macro, slot, ended));
        CDialog* dialog = opened(1);
        EXPECT_TRUE(EndDlgMacroModeless(0));
        ASSERT_TRUE(dialog->itemAs<Vor_Spread>(namedValuesGrid)->userEnters(valueColumn, 1, "24"));
        for (const int button : way.presses) dialog->press(button);
        EXPECT_TRUE(heard.empty());
        if (way.ends == Ends::byHost) {
            EXPECT_TRUE(EndDlgMacroModeless(1));
        }
        if (way.ends == Ends::withTheMainWindow) {
            main.destroy();
            SetUp();
        }
        user.advanceClock(DelayedEnds::delay);
        EXPECT_EQ(heard, std::vector<bool>{way.isConfirmed});
        user.advanceClock(1000);
        EXPECT_EQ(openMacroDialogs().length(), 1);
        EXPECT_TRUE(EndDlgMacroModeless(0));
    }
}

TEST_F(MacroDialogs, CancelledIsNotConfirmedByAnImpatientUser) {
    start();
    CDialog* dialog = opened(0);
    dialog->itemAs<Vor_Spread>(namedValuesGrid)->userEnters(valueColumn, 1, "24");
    dialog->press(IDCANCEL);
    dialog->press(IDOK);
    MacroData read;
    ASSERT_TRUE(GetDlgMacroData(0, read));
    EXPECT_EQ(read, macro);
}

TEST_F(MacroDialogs, AllGoAtOnce) {
    for (int i = 0; i < 3; ++i) start();
    EndDlgMacroModeless(1);
    DestroyAllMacroDlgs();
    EXPECT_EQ(openMacroDialogs().length(), 0);
    EXPECT_EQ(host.prompts, 3);
    EXPECT_TRUE(dialogs().empty());
}

// --- constraints --------------------------------------------------------------------------------

EditConstrData sampleConstraints() {
    EditConstrData data;
    data.constraints.append({"Gap", 10, false, true});
    data.constraints.append({"Slope", 45, true, false});
    return data;
}

TEST_F(MacroDialogs, ConstraintsOpenOnceAndHandTheKeyboardBack) {
    EditConstrData data = sampleConstraints();
    EXPECT_TRUE(StartDlgEditConstraints(data));
    ASSERT_EQ(dialogs().size(), 1u);
    EXPECT_EQ(opened(0)->number(), 8715);
    EXPECT_TRUE(opened(0)->isVisible());
    EXPECT_EQ(host.focused, 1);
    EXPECT_FALSE(isOverridden());
    EXPECT_TRUE(StartDlgEditConstraints(data));
    EXPECT_EQ(dialogs().size(), 1u);
    EXPECT_EQ(host.focused, 1);
    EndDlgEditConstraints();
    EXPECT_TRUE(dialogs().empty());
    EXPECT_EQ(host.prompts, 1);
    EXPECT_EQ(host.printed, "");
}

TEST_F(MacroDialogs, ConstraintsApplyOnOkAndCloseThemselves) {
    EditConstrData data = sampleConstraints();
    double applied = 0;
    data.apply = [&](const EditConstrData& edited) { applied = edited.constraints[0].value; };
    ASSERT_TRUE(StartDlgEditConstraints(data));
    auto* grid = dynamic_cast<Vor_Spread*>(opened(0)->item(namedValuesGrid));
    ASSERT_TRUE(grid && grid->userEnters(valueColumn, 3, "12.5"));
    opened(0)->press(IDOK);
    EXPECT_EQ(applied, 12.5);
    EXPECT_EQ(data.constraints[0].value, 10);
    user.advanceClock(DelayedEnds::delay);
    EXPECT_TRUE(dialogs().empty());
    EXPECT_EQ(host.prompts, 1);

    ASSERT_TRUE(StartDlgEditConstraints(data));
    opened(0)->press(IDCANCEL);
    EndDlgEditConstraints();
    ASSERT_TRUE(StartDlgEditConstraints(data));
    user.advanceClock(100);
    EXPECT_EQ(dialogs().size(), 1u);  // the timer of the one before went with it
}

TEST_F(MacroDialogs, ConstraintsMayBeEndedByWhatTheyApply) {
    EditConstrData data = sampleConstraints();
    data.apply = [&](const EditConstrData& edited) {
        EndDlgEditConstraints();
        EXPECT_TRUE(StartDlgEditConstraints(data));  // still the one that is open
        EXPECT_EQ(edited.constraints.length(), 2);
    };
    ASSERT_TRUE(StartDlgEditConstraints(data));
    opened(0)->press(IDOK);
    EXPECT_EQ(host.prompts, 0);
    user.advanceClock(DelayedEnds::delay);
    EXPECT_TRUE(dialogs().empty());
    EXPECT_EQ(host.prompts, 1);

    ASSERT_TRUE(StartDlgEditConstraints(data));
    main.destroy();
    ASSERT_TRUE(main.create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr));
    EXPECT_TRUE(StartDlgEditConstraints(data));
    EXPECT_EQ(dialogs().size(), 1u);
}

TEST_F(MacroDialogs, ConstraintsTellOnceHowTheyEnded) {
    for (const auto& way : waysOut) {
        SCOPED_TRACE(way.name);
        std::vector<bool> heard;
        EditConstrData data = sampleConstraints();
        const auto ended = [&](bool isConfirmed, const EditConstrData& edited) {
            heard.push_back(isConfirmed);
            EXPECT_EQ(edited.constraints[0].value, isConfirmed ? 12.5 : 10);
            EXPECT_TRUE(StartDlgEditConstraints(data, nullptr));
        };
        ASSERT_TRUE(StartDlgEditConstraints(data, ended));
        EXPECT_FALSE(StartDlgEditConstraints(data, ended));
        CDialog* dialog = opened(0);
        dialog->itemAs<Vor_Spread>(namedValuesGrid)->userEnters(valueColumn, 3, "12.5");
        for (const int button : way.presses) dialog->press(button);
        EXPECT_TRUE(heard.empty());
        if (way.ends == Ends::byHost) EndDlgEditConstraints();
        if (way.ends == Ends::withTheMainWindow) {
            main.destroy();
            SetUp();
        }
        user.advanceClock(DelayedEnds::delay);
        EXPECT_EQ(heard, std::vector<bool>{way.isConfirmed});
        user.advanceClock(1000);
        EXPECT_EQ(dialogs().size(), 1u);
        EndDlgEditConstraints();
        EXPECT_EQ(host.printed.find("Erase"), std::string::npos);
    }
}

TEST_F(MacroDialogs, TellNothingWhenTheLibraryGoes) {
    int slot = -1, heard = 0;
    EditConstrData data = sampleConstraints();
    ASSERT_TRUE(StartDlgMacroModeless(true, macro, slot, [&](auto&&...) { ++heard; }));
    ASSERT_TRUE(StartDlgEditConstraints(data, [&](auto&&...) { ++heard; }));
    detachLibrary();
    user.advanceClock(1000);
    EXPECT_EQ(heard, 0);
}

TEST_F(MacroDialogs, ConstraintsWindowThatIsGoneIsTold) {
    EditConstrData data = sampleConstraints();
    StartDlgEditConstraints(data);
    opened(0)->destroy();
    EndDlgEditConstraints();
    EXPECT_EQ(host.printed, "Erase window failed\n");
    EXPECT_EQ(host.prompts, 1);
}

}  // namespace
