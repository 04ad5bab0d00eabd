#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/window/device_context.h"
#include "platform/window/dialog.h"
#include "platform/window/window_system.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

enum Item { name = 10, kind, pages, sizes, three, pushed, left, right, other, grid, caption };

constexpr ControlTemplate controls[] = {
    {Control::label, caption, "Name", {4, 4, 40, 8}},
    {Control::edit, name, {}, {50, 4, 80, 12}, 0, anchorWide},
    {Control::combo, kind, {}, {50, 20, 80, 12}, styleEditable | styleSorted},
    {Control::tabs, pages, {}, {4, 40, 120, 60}, 0, anchorAll},
    {Control::list, sizes, {}, {4, 110, 60, 40}, styleCheckList, anchorBottomLeft},
    {Control::checkBox, three, "Three", {4, 160, 40, 10}, styleThreeState},
    {Control::imageButton,
     pushed,
     {},
     {50, 160, 16, 14},
     stylePushLike,
     anchorTopLeft,
     223,
     "Copy"},
    {Control::radioButton, left, "Left", {4, 180, 30, 10}, styleNewGroup},
    {Control::radioButton, right, "Right", {40, 180, 30, 10}},
    {Control::radioButton, other, "Other", {80, 180, 30, 10}, styleNewGroup},
    {Control::button, IDOK, "OK", {90, 200, 40, 14}, styleDefault, anchorBottomRight},
};
constexpr DialogResource table{901, "Controls", {0, 0, 140, 220}, controls, true};

class ControlsDialog : public CDialog {
  public:
    ControlsDialog() : CDialog(table, nullptr) {}
    ~ControlsDialog() override { destroyNow(); }
    void onCommand(int id, int code) override {
        heard += std::to_string(id) + ":" + std::to_string(code) + " ";
        CDialog::onCommand(id, code);
    }
    bool preTranslateKey(const KeyMessage& key) override { return key.key == keyF12; }
    void onMouse(const MouseMessage& message) override { lastMouse = message.point; }

    std::string heard;
    CPoint lastMouse;
};

TEST(Controls, TellWhatAUserDoesAndNotWhatTheProgramDoes) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    auto& combo = *dialog.itemAs<CComboBox>(kind);
    combo.setItems({"M20", "M12", "m16"});
    dialog.itemAs<CListBox>(sizes)->setItems({"a", "b"});
    dialog.itemAs<CTabCtrl>(pages)->setItems({"1", "2"});
    combo.select(0);
    dialog.item(name)->setText("by program");
    EXPECT_EQ(dialog.heard, "");

    EXPECT_TRUE(dialog.type(name, "x"));
    EXPECT_TRUE(dialog.type(name, "x"));  // no change
    EXPECT_TRUE(dialog.type(kind, "M16"));
    EXPECT_EQ(combo.selected(), 1);  // sorted: M12, m16, M20
    EXPECT_TRUE(dialog.type(kind, "M17"));
    EXPECT_EQ(combo.selected(), -1);
    EXPECT_EQ(combo.text(), "M17");
    EXPECT_TRUE(dialog.pick(kind, 2));
    EXPECT_EQ(combo.text(), "M20");
    EXPECT_TRUE(dialog.pick(pages, 1));
    EXPECT_FALSE(dialog.pick(pages, 2));
    EXPECT_TRUE(dialog.itemAs<CListBox>(sizes)->userChecks(1, true));
    EXPECT_EQ(dialog.heard, "10:768 11:768 11:768 11:1 12:1 13:3 ");
}

TEST(Controls, ButtonsChangeTheirCheckAsTheirKindDoes) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    const auto checkOf = [&](int id) { return dialog.itemAs<CButton>(id)->check(); };
    std::vector<int> states;
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(dialog.press(three));
        states.push_back(checkOf(three));
    }
    EXPECT_THAT(states, ElementsAre(1, 2, 0, 1));
    EXPECT_TRUE(dialog.press(pushed));
    EXPECT_EQ(checkOf(pushed), 1);
    EXPECT_EQ(dialog.itemAs<CButton>(pushed)->image(), 223);
    EXPECT_EQ(dialog.item(pushed)->tip(), "Copy");
    // A press unchecks its own group alone.
    for (const int id : {left, other, right}) EXPECT_TRUE(dialog.press(id));
    EXPECT_THAT((std::vector{checkOf(left), checkOf(right), checkOf(other)}), ElementsAre(0, 1, 1));
}

TEST(Controls, ListsKeepTheirSelectionOnTheSameItem) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    auto& list = *dialog.itemAs<CListBox>(sizes);
    list.setItems({"a", "b", "c"});
    list.select(1);
    list.insert(0, "0");
    EXPECT_EQ(list.selectedText(), "b");
    list.remove(1);
    EXPECT_EQ(list.selected(), 1);
    list.remove(1);
    EXPECT_EQ(list.selected(), -1);
    EXPECT_FALSE(list.select(7));
    list.setStyle(styleMultiSelect);
    EXPECT_TRUE(list.userSelectsAll({0, 1}));
    EXPECT_FALSE(list.userSelectsAll({0, 5}));
    EXPECT_THAT(list.selection(), ElementsAre(0, 1));
}

TEST(Controls, EditsReplaceWhatIsSelected) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    auto& edit = *dialog.itemAs<CEdit>(name);
    edit.setText("HEA-200");
    edit.setSelection(4, -1);
    edit.replaceSelection("300");
    EXPECT_EQ(edit.text(), "HEA-300");
    EXPECT_EQ(edit.selectionStart(), 7);
    edit.setSelection(90, 95);
    EXPECT_EQ(edit.selectionStart(), 7);
    edit.setStyle(styleReadOnly);
    EXPECT_FALSE(dialog.type(name, "x"));
}

TEST(Dialogs, ControlsFollowTheEdgesTheyAreHeldBy) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    const CRect edit = dialog.item(name)->rect(), tabs = dialog.item(pages)->rect(),
                list = dialog.item(sizes)->rect(), ok = dialog.item(IDOK)->rect();
    const CSize size = dialog.rect().size();
    dialog.move({0, 0, size.width + 100, size.height + 50});
    EXPECT_EQ(dialog.item(name)->rect(),
              (CRect{edit.left, edit.top, edit.right + 100, edit.bottom}));
    EXPECT_EQ(dialog.item(pages)->rect(),
              (CRect{tabs.left, tabs.top, tabs.right + 100, tabs.bottom + 50}));
    EXPECT_EQ(dialog.item(sizes)->rect(), list.movedBy(0, 50));
    EXPECT_EQ(dialog.item(IDOK)->rect(), ok.movedBy(100, 50));
    dialog.move({0, 0, size.width, size.height});
    EXPECT_EQ(dialog.item(IDOK)->rect(), ok);
}

TEST(Dialogs, TabWalksOverWhatTakesTheKeyboard) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    dialog.show(true);
    dialog.item(kind)->enable(false);
    CWnd* const first = dialog.nextTabItem(nullptr, false);
    EXPECT_EQ(first->id(), name);
    EXPECT_EQ(dialog.nextTabItem(first, false)->id(), pages);
    EXPECT_EQ(dialog.nextTabItem(first, true)->id(), IDOK);
    EXPECT_EQ(dialog.nextTabItem(dialog.item(IDOK), false), first);
    // Whoever loses the keyboard says so.
    first->focus();
    dialog.item(pages)->focus();
    EXPECT_EQ(dialog.heard, "10:512 ");
}

TEST(Dialogs, KeysAndCapturedMouseReachWhoWantsThem) {
    ControlsDialog dialog;
    ASSERT_TRUE(dialog.create());
    dialog.move({100, 100, 400, 600});
    CWnd* edit = dialog.item(name);
    EXPECT_TRUE(dispatchKey(*edit, {keyF12}));
    EXPECT_FALSE(dispatchKey(*edit, {keyTab}));
    dialog.setCapture();
    MouseMessage move;
    move.point = {1, 1};
    dispatchMouse(*edit, move);
    EXPECT_EQ(dialog.lastMouse, (CPoint{edit->rect().left + 1, edit->rect().top + 1}));
    dialog.destroy();
    EXPECT_EQ(CWnd::captured(), nullptr);
}

// A page is a dialog in a dialog; a user finds its items without knowing.
TEST(Dialogs, UsersReachTheItemsOfPages) {
    ControlsDialog frame;
    ASSERT_TRUE(frame.create());
    static constexpr ControlTemplate pageControls[] = {{Control::edit, 77, {}, {4, 4, 40, 12}}};
    static constexpr DialogResource pageTable{902, {}, {0, 0, 60, 40}, pageControls};
    CDialog page(pageTable, &frame);
    ASSERT_TRUE(page.createPage(frame.itemAs<CTabCtrl>(pages)->pageRect()));
    EXPECT_TRUE(frame.type(77, "deep"));
    EXPECT_EQ(page.item(77)->text(), "deep");
}

TEST(ScriptedUser, PicksTicksAndChoosesFiles) {
    TestUser user;
    user.whenOpens(901).selects(kind, "M12").checks(sizes, 0, true).presses(IDOK);
    user.whenAskedForFile("Open").chooses({"c:\\a.txt"});
    ControlsDialog dialog;
    class Filled : public ControlsDialog {
        void onInit() override {
            itemAs<CComboBox>(kind)->setItems({"M12"});
            itemAs<CListBox>(sizes)->setItems({"a"});
        }
    } filled;
    EXPECT_EQ(filled.doModal(), IDOK);
    EXPECT_EQ(filled.heard, "11:1 13:3 1:0 ");
    FileQuestion question;
    question.title = "Open";
    EXPECT_EQ(chooseFile(question, nullptr), "c:\\a.txt");
}

TEST(Timers, CallInTheirOrderUntilKilled) {
    WindowSystem clock;
    std::string calls;
    const int slow = clock.startTimer(50, [&](int) { calls += "s"; });
    const int once = clock.startTimer(30, [&](int timer) {
        calls += "o";
        clock.killTimer(timer);
    });
    EXPECT_NE(slow, once);
    clock.advanceClock(29);
    EXPECT_EQ(calls, "");
    clock.advanceClock(75);
    EXPECT_EQ(calls, "oss");
    EXPECT_TRUE(clock.killTimer(slow));
    EXPECT_FALSE(clock.killTimer(once));
    clock.advanceClock(1000);
    EXPECT_EQ(calls, "oss");
}

TEST(Bitmaps, FilesComeBackAsTheyWere) {
    TemporaryFolder folder;
    CBitmap picture(5, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
            picture.set(x, y, static_cast<CBitmap::Pixel>(x * 70 + y * 0x5000));
    const std::string path = (folder.path() / "a.bmp").string();
    std::string error;
    ASSERT_TRUE(writeBitmap(picture, path, error)) << error;
    EXPECT_EQ(readBitmap(path, error), picture) << error;
}

TEST(Bitmaps, PalettesAndRowOrderAreRead) {
    // Two pixels, 1 bit each, with a palette of red and blue.
    std::string bytes("BM\0\0\0\0\0\0\0\0\x3E\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\1\0", 30);
    bytes += std::string(24, '\0');
    bytes += std::string("\0\0\xFF\0\xFF\0\0\0\x40\0\0\0", 12);
    std::string error;
    const auto picture = decodeBitmap(bytes, error);
    ASSERT_TRUE(picture) << error;
    EXPECT_EQ(picture->at(0, 0), 0xFF0000u);
    EXPECT_EQ(picture->at(1, 0), 0x0000FFu);
}

TEST(Bitmaps, PackedOnesReadBackTheSameAndAreSmaller) {
    for (const int colours : {1, 2, 3, 16, 17, 256, 257}) {
        CBitmap bitmap(37, 29);
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x)
                bitmap.set(x, y, static_cast<CBitmap::Pixel>((y * 37 + x) % colours * 65537));
        std::string error;
        const std::string packed = packBitmap(bitmap);
        EXPECT_EQ(decodeBitmap(packed, error), bitmap) << colours << ' ' << error;
        const size_t whole = encodeBitmap(bitmap).size();
        if (colours <= 16) {
            EXPECT_LT(packed.size(), whole / 3) << colours;
        }
        if (colours > 256) {
            EXPECT_EQ(packed.size(), whole);
        }
    }
}

TEST(Bitmaps, DamagedFilesAreRefusedWithTheReason) {
    const std::string good = encodeBitmap(CBitmap(4, 4));
    const auto changed = [&](size_t at, std::string_view bytes) {
        std::string text = good;
        return text.replace(at, bytes.size(), bytes);
    };
    const std::pair<std::string, const char*> cases[] = {
        {"", "no .bmp"},
        {"BM", "no .bmp"},
        {changed(0, "XX"), "no .bmp"},
        {changed(18, std::string_view("\0\0\0\0", 4)), "sides"},
        {changed(18, "\xFF\xFF\xFF\x7F"), "sides"},
        {changed(22, std::string_view("\0\0\0\x80", 4)), "sides"},
        {changed(28, "\x07"), "7 bits"},
        {changed(30, "\x01"), "compressed"},
        {changed(10, "\xFF\xFF\xFF\xFF"), "too early"},
        {good.substr(0, good.size() - 1), "too early"},
    };
    for (const auto& [bytes, reason] : cases) {
        std::string error;
        EXPECT_FALSE(decodeBitmap(bytes, error));
        EXPECT_THAT(error, HasSubstr(reason));
    }
}

TEST(Drawing, LeavesOutTheTransparentColourAndWhatLiesOutside) {
    CBitmap target(4, 4, 0x00FF00);
    BitmapDC dc(target);
    CBitmap sprite(2, 2, CBitmap::white);
    sprite.set(1, 1, 0x123456);
    dc.bitmap(sprite, {2, 2}, CBitmap::white);
    dc.bitmap(sprite, {-1, -1}, CBitmap::white);
    dc.line({0, 3}, {9, 3}, {});
    EXPECT_EQ(target.at(3, 3), CBitmap::black);
    EXPECT_EQ(target.at(2, 2), 0x00FF00u);
    EXPECT_EQ(target.at(0, 0), 0x123456u);
    EXPECT_NE(bitmapResource(bitmapChecked), bitmapResource(bitmapUnchecked));
}

}  // namespace
