// Moving, selecting, Tab, the clipboard and the context menu of a grid.
#include <QContextMenuEvent>
#include <QHeaderView>

#include "support/test_user.h"
#include "workbench/grid_window.h"

namespace {

using control::Block;
using control::KeyAction;
using testing::Contains;
using testing::ElementsAre;

class GridKeys : public GridWindow {
  protected:
    void giveClipboardKeys() {
        grid().setActionKey(KeyAction::copy, {'C', false, true});
        grid().setActionKey(KeyAction::cut, {'X', false, true});
        grid().setActionKey(KeyAction::paste, {'V', false, true});
    }
    std::string row(int number) const {
        std::string all;
        for (int col = 1; col <= spread.nrCols(); ++col) all += text(col, number) + "|";
        return all;
    }
    void clickHeader(QHeaderView* header, int section, Qt::KeyboardModifiers with = {}) const {
        const int at = header->sectionViewportPosition(section) + 10;
        const QPoint point =
            header->orientation() == Qt::Horizontal ? QPoint(at, 5) : QPoint(5, at);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, with, point);
    }
};

TEST_F(GridKeys, EachKeyLeadsToItsCell) {
    size(5, 60);
    for (const int row : {2, 3, 4, 9}) spread.setData(2, row, "x");
    spread.setData(4, 20, "x");
    open();
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifiers with;
        std::pair<int, int> from, to;
    };
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    for (const Step& step : {
             Step{Qt::Key_Left, {}, {1, 1}, {1, 1}},
             Step{Qt::Key_Right, {}, {5, 1}, {5, 1}},
             Step{Qt::Key_Home, {}, {4, 7}, {1, 7}},
             Step{Qt::Key_End, {}, {2, 7}, {5, 7}},
             Step{Qt::Key_Home, ctrl, {4, 7}, {1, 1}},
             Step{Qt::Key_End, ctrl, {1, 1}, {4, 20}},
             Step{Qt::Key_Down, ctrl, {2, 1}, {2, 2}},
             Step{Qt::Key_Down, ctrl, {2, 2}, {2, 4}},
             Step{Qt::Key_Down, ctrl, {2, 4}, {2, 9}},
             Step{Qt::Key_Down, ctrl, {2, 9}, {2, 60}},
             Step{Qt::Key_Up, ctrl, {2, 60}, {2, 9}},
             Step{Qt::Key_Right, ctrl, {1, 1}, {5, 1}},
         }) {
        SCOPED_TRACE(testing::Message()
                     << step.key << " from " << step.from.first << "," << step.from.second);
        moveTo(step.from.first, step.from.second);
        key(step.key, step.with);
        EXPECT_EQ(active(), step.to);
    }
    moveTo(1, 1);
    key(Qt::Key_PageDown);
    const int page = active().second;
    EXPECT_GT(page, 5);
    EXPECT_GE(view->viewport()->rect().bottom(), place(1, page).bottom() - 1);
    key(Qt::Key_PageUp);
    EXPECT_EQ(active(), std::pair(1, 1));
    key(Qt::Key_End, ctrl);
    EXPECT_TRUE(view->viewport()->rect().contains(place(4, 20).center()));
}

TEST_F(GridKeys, SelectionsGoToTheGridAndComeFromIt) {
    open();
    moveTo(3, 3);
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(grid().selection(), (Block{2, 1, 3, 3}));
    key(Qt::Key_Right, Qt::ShiftModifier);  // the corner that moved comes back
    EXPECT_EQ(grid().selection(), (Block{3, 1, 3, 3}));
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(grid().selection(), (Block{1, 1, -1, -1}));
    click(2, 2);
    EXPECT_FALSE(grid().selection());
    click(4, 5, Qt::ShiftModifier);
    EXPECT_EQ(grid().selection(), (Block{2, 2, 4, 5}));
    key(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(grid().selection(), (Block{1, 2, -1, 2}));
    grid().select({1, 4, 2, 5});
    view->sync();
    key(Qt::Key_Down, Qt::ShiftModifier);  // one that was made elsewhere starts anew
    EXPECT_EQ(grid().selection(), (Block{1, 4, 1, 5}));
    EXPECT_THAT(notices, Contains("moved 2,1"));
}

TEST_F(GridKeys, DraggingSelectsInEveryDirection) {
    open();
    const auto drag = [&](std::pair<int, int> to) {
        const QPointF point = place(to.first, to.second).center();
        QMouseEvent move(QEvent::MouseMove, point, view->viewport()->mapToGlobal(point),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(view->viewport(), &move);
    };
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, place(3, 3).center());
    drag({2, 2});
    EXPECT_EQ(grid().selection(), (Block{2, 2, 3, 3}));
    drag({4, 5});
    EXPECT_EQ(grid().selection(), (Block{3, 3, 4, 5}));
    drag({3, 3});
    EXPECT_FALSE(grid().selection());
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, place(3, 3).center());
    EXPECT_EQ(active(), std::pair(3, 3));
}

TEST_F(GridKeys, HeadersSelectWholeColumnsAndRows) {
    open();
    clickHeader(view->horizontalHeader(), 1);
    EXPECT_EQ(grid().selection(), (Block{2, 1, 2, -1}));
    EXPECT_EQ(active(), std::pair(2, 1));
    clickHeader(view->verticalHeader(), 3);
    EXPECT_EQ(grid().selection(), (Block{1, 4, -1, 4}));
}

TEST_F(GridKeys, TabGoesThroughOpenCellsAndLeavesAtTheEnds) {
    size(3, 2);
    spread.setLock(2, 1, true);
    spread.setStaticCell({1, 2, 1, 2});
    open();
    moveTo(1, 1);
    key(Qt::Key_Tab);
    EXPECT_EQ(active(), std::pair(3, 1));
    keys("7");
    key(Qt::Key_Tab);  // enters what was typed
    EXPECT_EQ(text(3, 1), "7");
    EXPECT_EQ(active(), std::pair(2, 2));
    key(Qt::Key_Tab);
    EXPECT_EQ(active(), std::pair(3, 2));
    EXPECT_TRUE(view->hasFocus());
    key(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    view->setFocus();
    moveTo(3, 1);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(active(), std::pair(1, 1));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before.hasFocus());
}

TEST_F(GridKeys, BlocksAreCopiedCutAndPastedAsTextWithTabs) {
    giveClipboardKeys();
    spread.setData(1, 1, "a");
    spread.setData(2, 1, "b");
    spread.setData(1, 2, "c");
    spread.setLock(2, 1, true);
    open();
    grid().select({1, 1, 2, 2});
    view->sync();
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(WindowSystem::current().clipboardText(), "a\tb\nc\t");
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(row(1) + row(2), "|b|||||||");  // a locked cell keeps its text
    moveTo(3, 3);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(row(3) + row(4), "||a|b|||c||");
    EXPECT_THAT(notices, Contains("changed 4,3"));
    WindowSystem::current().setClipboardText("1\tx\r\n2\ty\r\n");
    spread.setNumberCell(Block{2, 5, 2, 6}, 0);
    moveTo(1, 5);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(row(5) + row(6), "1||||2||||");
    EXPECT_EQ(view->refusal(), "Some cells did not take the pasted text.");
}

TEST_F(GridKeys, WithoutActionKeysTheClipboardIsLeftAlone) {
    spread.setData(1, 1, "a");
    WindowSystem::current().setClipboardText("kept");
    open();
    moveTo(1, 1);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(WindowSystem::current().clipboardText(), "kept");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(1, 1), "a");
}

TEST_F(GridKeys, DeleteEmptiesTheSelectionAndTellsOfEachCell) {
    for (const int row : {1, 2, 3}) spread.setData(1, row, "x");
    spread.setCellTag(1, 1, "tag");
    open();
    grid().select({1, 1, 2, 2});
    view->sync();
    key(Qt::Key_Delete);
    EXPECT_EQ(text(1, 1) + text(1, 2) + text(1, 3), "x");
    EXPECT_EQ(grid().text(1, 1, control::Reading::tag), "tag");
    EXPECT_THAT(notices, ElementsAre("changed 1,1", "changed 1,2"));
}

TEST_F(GridKeys, TheContextMenuIsOfTheCellUnderTheMouse) {
    TestUser user;
    Vor_Array<int> commands;
    for (const int command : {Vor_Spread::menuCopy, Vor_Spread::menuDeleteRow})
        commands.append(command);
    spread.setMenuCommands(commands);
    spread.setData(2, 4, "gone");
    open();
    user.whenMenuOpens().picks("Delete row");
    const QPoint point = place(2, 4).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
    QApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(view->model()->rowCount(), 5);
    EXPECT_EQ(text(2, 4), "");
}

TEST_F(GridKeys, KeysThatTheGridDoesNotWantGoToTheDialog) {
    spread.setLockRange({1, 1, 4, 6}, true);
    open();
    moveTo(1, 1);
    for (const Qt::Key pressed : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_F5}) {
        QKeyEvent event(QEvent::KeyPress, pressed, Qt::NoModifier);
        event.accept();
        QApplication::sendEvent(view.get(), &event);
        EXPECT_FALSE(event.isAccepted()) << pressed;
    }
}

/// Closes its dialog, grid and all, as soon as anything happens to the grid.
class GridThatCloses : public GridWindow {
  protected:
    void reopen() {
        view.reset();
        own = std::make_unique<Vor_Spread>();
        own->attachHidden();
        own->setNrCols(3, false);
        own->setNrRows(3);
        own->setCheckBoxCell({1, 1, 1, 3});
        own->setListener([this](const GridNotice&) {
            view->setModel(nullptr);
            own.reset();
        });
        view = std::make_unique<GridView>(*own, &window);
        window.show();
        view->show();
        window.activateWindow();
        view->setFocus();
        QApplication::processEvents();
        own->grid().setActive(2, 2);
        view->sync();
    }
    std::unique_ptr<Vor_Spread> own;
};

TEST_F(GridThatCloses, AfterAnyKeyOrClick) {
    const auto mouse = [&](int col, int row) { click(col, row); };
    const std::function<void()> actions[] = {
        [&] { key(Qt::Key_Down); },
        [&] { key(Qt::Key_Tab); },
        [&] { key(Qt::Key_A, Qt::ControlModifier); },
        [&] { key(Qt::Key_Right, Qt::ShiftModifier); },
        [&] { keys("x"), key(Qt::Key_Return); },
        [&] { keys("x"), key(Qt::Key_Tab); },
        [&] { keys("x"), key(Qt::Key_Down); },
        [&] { keys("x"), mouse(3, 3); },
        [&] { mouse(1, 1); },
        [&] { QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place(3, 1).center()); },
    };
    for (const auto& action : actions) {
        reopen();
        action();
        EXPECT_FALSE(own);
        view->sync();
        view.reset();
    }
}

}  // namespace
