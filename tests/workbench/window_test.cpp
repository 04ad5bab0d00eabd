// Dialogs on the desktop, worked with as a user does: by clicks, keys and the frame.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>

#include "workbench/desktop_fixture.h"
#include "workbench/dialog_problems.h"
#include "workbench/sample_dialog.h"

namespace {

using sample::Dialog;
using testing::ElementsAre;
using testing::IsEmpty;

class ModelessSample : public Desktop {
  protected:
    void SetUp() override {
        dialog.create();
        dialog.show(true);
        QApplication::setActiveWindow(&widget<QWidget>(dialog));
        propagate();
        dialog.told.clear();
    }
    template <class Widget>
    Widget& at(int id) const {
        return widget<Widget>(dialog, id);
    }
    Dialog dialog;
};

TEST_F(ModelessSample, LooksWell) {
    EXPECT_THAT(dialogProblems(widget<QWidget>(dialog)), IsEmpty());
    EXPECT_EQ(widget<QWidget>(dialog).windowTitle(), "Sample");
    saveGrab(widget<QWidget>(dialog), "sample");
}

TEST_F(Desktop, SomeDialogsStayAboveOtherWindows) {
    constexpr DialogResource above{702, "Above", {0, 0, 100, 40}, {}, false, true};
    CDialog topmost(above, nullptr), usual(sample::pageResource, nullptr);
    for (CDialog* each : {&topmost, &usual}) {
        each->create();
        each->show(true);
        EXPECT_EQ(widget<QWidget>(*each).windowFlags().testFlag(Qt::WindowStaysOnTopHint),
                  each == &topmost);
    }
}

TEST_F(ModelessSample, FieldsTakeWhatIsTyped) {
    auto& line = at<QLineEdit>(sample::name);
    EXPECT_TRUE(line.hasFocus()) << "the first field has the keyboard";
    QTest::keyClicks(&line, "HEB 200");
    EXPECT_EQ(dialog.at<CEdit>(sample::name).text(), "HEB 200");
    EXPECT_TRUE(dialog.wasReported(sample::name, textChanged));
    line.setSelection(0, 3);
    EXPECT_EQ(dialog.at<CEdit>(sample::name).selectionEnd(), 3);

    // Typed or pasted, a character that cannot be kept is taken back.
    line.setCursorPosition(3);
    QKeyEvent foreign(QEvent::KeyPress, 0, {}, QString::fromUtf8("\xE6\x9D\xB1"));
    QApplication::sendEvent(&line, &foreign);
    EXPECT_EQ(line.text(), "HEB 200");
    EXPECT_EQ(line.cursorPosition(), 3);
    EXPECT_EQ(dialog.at<CEdit>(sample::name).text(), "HEB 200");
    EXPECT_TRUE(QToolTip::text().contains("U+6771")) << QToolTip::text().toStdString();

    auto& text = at<QPlainTextEdit>(sample::remarks);
    QTest::keyClicks(&text, "one");
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, "two");
    EXPECT_EQ(dialog.at<CEdit>(sample::remarks).text(), "one\ntwo");
    EXPECT_FALSE(dialog.isEnded()) << "Enter starts a line in a field of several";
}

TEST_F(ModelessSample, ButtonsAndBoxesFollowTheirWindow) {
    click(at<QWidget>(sample::check), {6, 8});
    EXPECT_TRUE(dialog.at<CButton>(sample::check).isChecked());
    EXPECT_TRUE(dialog.wasReported(sample::check, clicked));
    EXPECT_EQ(at<QCheckBox>(sample::check).text(), "Bolts && nuts");

    for (const int state : {1, 2, 0}) {
        click(at<QWidget>(sample::threeStates), {6, 8});
        EXPECT_EQ(dialog.at<CButton>(sample::threeStates).check(), state);
        constexpr Qt::CheckState shown[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
        EXPECT_EQ(at<QCheckBox>(sample::threeStates).checkState(), shown[state]);
    }

    click(at<QWidget>(sample::right), {6, 8});
    click(at<QWidget>(sample::middle), {6, 8});
    click(at<QWidget>(sample::middle), {6, 8});
    EXPECT_FALSE(at<QRadioButton>(sample::right).isChecked());
    EXPECT_TRUE(at<QRadioButton>(sample::middle).isChecked());
    key(Qt::Key_Down);
    EXPECT_TRUE(dialog.at<CButton>(sample::left).isChecked()) << "round to the first";
    EXPECT_TRUE(at<QWidget>(sample::left).hasFocus());

    click(at<QWidget>(sample::flexButton));
    EXPECT_TRUE(at<QPushButton>(sample::flexButton).isChecked());
    EXPECT_EQ(at<QWidget>(sample::openButton).toolTip(), "Open");
    EXPECT_FALSE(at<QPushButton>(sample::openButton).icon().isNull());

    dialog.told.clear();
    click(at<QWidget>(sample::disabled));
    EXPECT_THAT(dialog.told, IsEmpty());
}

TEST_F(ModelessSample, APictureOnAButtonKeepsItsColoursAndLeavesOneOut) {
    constexpr CBitmap::Pixel red = 0xFF0000, grey = 0xC0C0C0;
    CBitmap picture(12, 8, grey);
    for (int x = 0; x < 6; ++x)
        for (int y = 0; y < 8; ++y) picture.set(x, y, red);
    auto& button = dialog.at<CButton>(sample::moreButton);
    const auto& shown = at<QPushButton>(sample::moreButton);
    button.setPicture(picture, grey);
    button.enable(false);
    EXPECT_TRUE(shown.text().isEmpty());
    EXPECT_TRUE(shown.isFlat());
    const QImage drawn = shown.icon()
                             .pixmap(shown.iconSize(), QIcon::Disabled)
                             .toImage()
                             .convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(drawn.size(), QSize(12, 8));
    EXPECT_EQ(drawn.pixel(2, 4), qRgb(255, 0, 0));
    EXPECT_EQ(qAlpha(drawn.pixel(9, 4)), 0);
    button.setPicture({}, grey);
    EXPECT_EQ(shown.text(), "&More...");
    EXPECT_FALSE(shown.isFlat());
}

TEST_F(ModelessSample, ListsAndCombosTakeWhatIsPicked) {
    clickItem(at<QAbstractItemView>(sample::list), 1);
    EXPECT_EQ(dialog.at<CListBox>(sample::list).selectedText(), "M20");
    clickItem(at<QAbstractItemView>(sample::list), 1, Qt::ControlModifier);
    EXPECT_EQ(dialog.at<CListBox>(sample::list).selected(), 1) << "cannot be unselected";

    clickItem(at<QAbstractItemView>(sample::manyList), 0);
    clickItem(at<QAbstractItemView>(sample::manyList), 2, Qt::ControlModifier);
    EXPECT_THAT(dialog.at<CListBox>(sample::manyList).selection(), ElementsAre(0, 2));

    auto& checks = at<QAbstractItemView>(sample::checkList);
    const QRect row = checks.visualRect(checks.model()->index(1, 0));
    QTest::mouseClick(checks.viewport(), Qt::LeftButton, {},
                      row.topLeft() + QPoint(8, row.height() / 2));
    EXPECT_TRUE(dialog.at<CListBox>(sample::checkList).isChecked(1));
    EXPECT_TRUE(dialog.wasReported(sample::checkList, checkChanged));

    at<QComboBox>(sample::combo).setFocus();
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(dialog.at<CComboBox>(sample::combo).text(), "M20");
    auto& typed = *at<QComboBox>(sample::typedCombo).lineEdit();
    QTest::keyClicks(&typed, "m2");
    EXPECT_EQ(dialog.at<CComboBox>(sample::typedCombo).text(), "m2");
    EXPECT_EQ(dialog.at<CComboBox>(sample::typedCombo).selected(), -1);

    // What the program does is shown and told to nobody.
    dialog.told.clear();
    dialog.at<CListBox>(sample::list).remove(0);
    dialog.at<CListBox>(sample::list).select(0);
    dialog.at<CComboBox>(sample::combo).select(2);
    dialog.at<CComboBox>(sample::typedCombo).setText("M30");
    EXPECT_EQ(at<QAbstractItemView>(sample::list).model()->rowCount(), 2);
    EXPECT_EQ(at<QAbstractItemView>(sample::list).currentIndex().row(), 0);
    EXPECT_EQ(at<QComboBox>(sample::combo).currentText(), "M24");
    EXPECT_EQ(at<QComboBox>(sample::typedCombo).currentText(), "M30");
    EXPECT_THAT(dialog.told, IsEmpty());
}

TEST_F(ModelessSample, TabsTurnPages) {
    auto& bar = *at<QTabWidget>(sample::tabs).tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
    EXPECT_EQ(dialog.at<CTabCtrl>(sample::tabs).selected(), 1);
    EXPECT_EQ(dialog.told, (std::vector<Dialog::Reported>{{sample::tabs, selectionChanged}}));
    key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(bar.currentIndex(), 2);
}

TEST_F(ModelessSample, TabGoesInTheOrderOfMakingThroughThePage) {
    std::vector<int> order;
    for (int i = 0; i < 30 && (order.empty() || CWnd::focused()->id() != sample::name); ++i) {
        order.push_back(CWnd::focused()->id());
        key(Qt::Key_Tab);
    }
    EXPECT_THAT(
        order, ElementsAre(sample::name, sample::remarks, sample::check, sample::threeStates,
                           sample::left, sample::right, sample::middle, sample::list,
                           sample::manyList, sample::checkList, sample::thumbnails, sample::combo,
                           sample::typedCombo, sample::tabs, sample::openButton, sample::flexButton,
                           sample::moreButton, IDOK, IDCANCEL, sample::pageField, sample::pageBox));
    EXPECT_TRUE(dialog.wasReported(sample::name, focusLost));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(CWnd::focused()->id(), sample::pageBox);
}

TEST_F(ModelessSample, KeysAreHeardByTheWindowBeforeItsWidget) {
    dialog.keys.clear();
    dialog.usesEscape = true;
    key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isEnded());
    ASSERT_EQ(dialog.keys.size(), 2u) << "pressed and released, each once";
    EXPECT_EQ(dialog.keys[0].key, keyEscape);
    EXPECT_FALSE(dialog.keys[1].isDown);
    dialog.usesEscape = false;
    key(Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), IDCANCEL);
}

TEST_F(ModelessSample, TheMouseReachesTheDialogThroughLabelsAndDisabledControls) {
    auto& frame = widget<QWidget>(dialog);
    dialog.mouse.clear();
    auto& disabled = at<QWidget>(sample::disabled);
    const QPoint inside = disabled.geometry().center();
    QTest::mouseClick(frame.windowHandle(), Qt::LeftButton, Qt::ShiftModifier, inside);
    ASSERT_GE(dialog.mouse.size(), 2u);
    const MouseMessage& down = dialog.mouse[dialog.mouse.size() - 2];
    EXPECT_EQ(down.kind, MouseMessage::Kind::leftDown);
    EXPECT_EQ(down.point, (CPoint{inside.x(), inside.y()}));
    EXPECT_TRUE(down.shift);
    EXPECT_EQ(frame.cursor().shape(), Qt::CrossCursor);
}

TEST_F(ModelessSample, ResizingByHandMovesTheControlsAndStopsAtTheLeastSize) {
    auto& frame = widget<QWidget>(dialog);
    const QSize before = frame.size();
    const QPoint ok = at<QWidget>(IDOK).pos();
    frame.resize(before + QSize(100, 50));
    propagate();
    EXPECT_EQ(dialog.rect().width(), before.width() + 100);
    EXPECT_EQ(at<QWidget>(IDOK).pos(), ok + QPoint(100, 50));
    frame.resize(10, 10);
    propagate();
    EXPECT_EQ(frame.size(), before);
}

TEST_F(ModelessSample, ItsCrossCancels) {
    widget<QWidget>(dialog).close();
    EXPECT_EQ(dialog.result(), IDCANCEL);
    EXPECT_FALSE(widget<QWidget>(dialog).isVisible());
    dialog.destroy();
    EXPECT_FALSE(system.widgetOf(dialog));
}

TEST_F(ModelessSample, MenusGiveTheCommandPicked) {
    const MenuEntry entries[] = {
        {7, "Copy"}, {}, {8, "Paste", false}, {9, "Bolts & nuts", true, true}};
    meanwhile([&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        ASSERT_EQ(menu->actions().size(), 4);
        EXPECT_TRUE(menu->actions()[1]->isSeparator());
        EXPECT_FALSE(menu->actions()[2]->isEnabled());
        EXPECT_TRUE(menu->actions()[3]->isChecked());
        menu->setActiveAction(menu->actions()[3]);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    EXPECT_EQ(system.popupMenu(dialog, entries), 9);
    meanwhile([&] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
    EXPECT_EQ(system.popupMenu(dialog, entries), 0);
    EXPECT_FALSE(dialog.isEnded());
}

}  // namespace
