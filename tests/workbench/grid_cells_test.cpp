// Cells that are more than text: check boxes, lists, buttons; spans and hidden columns; the header.
#include <QHeaderView>
#include <QSignalSpy>

#include "workbench/grid/cell_painter.h"
#include "workbench/grid/item_list.h"
#include "workbench/grid_window.h"

namespace {

using control::Block;
using control::Reading;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class GridCells : public GridWindow {
  protected:
    void combo(int col, int row, bool editable) {
        Vor_StringArray items;
        for (const char* item : {"M12", "M16", "M20", "rod"}) items.append(item);
        spread.setComboCell({col, row, col, row}, items, editable);
    }
    ItemList* list() const { return view->findChild<ItemList*>(); }
    std::vector<int> bodyWidths() const {
        std::vector<int> all;
        for (int col = 0; col < view->model()->columnCount(); ++col)
            all.push_back(view->columnWidth(col));
        return all;
    }
};

TEST_F(GridCells, ACheckBoxIsToggledByItsBoxAndBySpace) {
    spread.setCheckBoxCell(Block{2, 1, 2, 6});
    spread.setLock(2, 3, true);
    spread.linkCheckColumn(2, 3);
    open();
    click(2, 1);
    EXPECT_EQ(text(2, 1), "1");
    EXPECT_EQ(active(), std::pair(3, 1));  // the linked cell
    const QPoint besides = place(2, 1).topLeft() + QPoint(4, 4);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, besides);
    EXPECT_EQ(text(2, 1), "1");
    EXPECT_EQ(active(), std::pair(2, 1));
    key(Qt::Key_Space);
    EXPECT_EQ(text(2, 1), "0");
    moveTo(2, 3);
    key(Qt::Key_Space);
    EXPECT_EQ(text(2, 3), "");
    EXPECT_EQ(view->refusal(), "This cell is locked.");
    EXPECT_THAT(notices, Contains("checked 2,1").Times(2));
    EXPECT_THAT(notices, Not(Contains("checked 2,3")));
}

TEST_F(GridCells, AButtonIsPressedWhereItIsReleased) {
    spread.setButtonCell(Block{1, 1, 1, 3}, "Choose");
    open();
    click(1, 1);
    EXPECT_THAT(notices, Contains("pressed 1,1").Times(1));
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, place(1, 2).center());
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, place(1, 3).center());
    EXPECT_THAT(notices, Not(Contains("pressed 1,2")));
    moveTo(1, 2);
    key(Qt::Key_Space);
    key(Qt::Key_Return);
    EXPECT_THAT(notices, Contains("pressed 1,2").Times(2));
}

TEST_F(GridCells, AListIsOpenedByKeyOrArrowAndPicksByLetter) {
    combo(2, 2, false);
    open();
    moveTo(2, 2);
    keys("r");
    EXPECT_EQ(text(2, 2), "rod");
    keys("mm");
    EXPECT_EQ(text(2, 2), "M16");
    key(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(list());
    EXPECT_EQ(list()->currentItem()->text(), "M16");
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(text(2, 2), "M20");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QPoint arrow = comboArrowIn(place(2, 2)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, arrow);
    ASSERT_TRUE(list());
    QTest::keyClick(list(), Qt::Key_Escape);
    EXPECT_EQ(text(2, 2), "M20");
    EXPECT_THAT(notices, Contains("changed 2,2").Times(4));
}

TEST_F(GridCells, OnlyAnEditableListTakesOtherTexts) {
    combo(1, 1, true);
    combo(2, 1, false);
    open();
    moveTo(1, 1);
    keys("M27");
    key(Qt::Key_Return);
    EXPECT_EQ(text(1, 1), "M27");
    moveTo(2, 1);
    keys("x");
    EXPECT_EQ(text(2, 1), "");
    EXPECT_FALSE(view->isEditing());
}

TEST_F(GridCells, ASpanIsOneCellForKeysAndMouse) {
    grid().addSpan({2, 2, 2, 2});
    open();
    EXPECT_EQ(place(2, 2).width(), 2 * place(1, 1).width());
    click(2, 2);
    EXPECT_EQ(active(), std::pair(2, 2));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      place(2, 2).bottomRight() - QPoint(5, 5));
    EXPECT_EQ(active(), std::pair(2, 2));
    key(Qt::Key_Right);
    EXPECT_EQ(active(), std::pair(4, 2));
    key(Qt::Key_Left);
    EXPECT_EQ(active(), std::pair(2, 2));
    key(Qt::Key_Down);
    EXPECT_EQ(active(), std::pair(2, 4));
    grid().removeSpan(2, 2);
    view->sync();
    EXPECT_EQ(place(2, 2).width(), place(1, 1).width());
}

TEST_F(GridCells, HiddenColumnsAndRowsAreGoneAndPassedOver) {
    grid().setColHidden(2, true);
    grid().setRowHidden(2, true);
    open();
    EXPECT_TRUE(view->isColumnHidden(1));
    EXPECT_TRUE(view->isRowHidden(1));
    moveTo(1, 1);
    key(Qt::Key_Right);
    EXPECT_EQ(active(), std::pair(3, 1));
    key(Qt::Key_Down);
    EXPECT_EQ(active(), std::pair(3, 3));
    grid().setColHidden(2, false);
    grid().setRowHidden(2, false);
    view->sync();
    EXPECT_FALSE(view->isColumnHidden(1));
    EXPECT_FALSE(view->isRowHidden(1));
    EXPECT_THAT(bodyWidths(), testing::Each(64));
}

TEST_F(GridCells, SizesFollowTheGridThroughEveryChange) {
    spread.setColWidthInPixels(2, 100);
    spread.setRowHeightInPixels(3, 44);
    open();
    EXPECT_THAT(bodyWidths(), ElementsAre(64, 100, 64, 64));
    EXPECT_EQ(view->rowHeight(2), 44);
    spread.insertCol(1, false, false);
    spread.insertRow(1, false, false);
    view->sync();
    EXPECT_THAT(bodyWidths(), ElementsAre(64, 64, 100, 64, 64));
    EXPECT_EQ(view->rowHeight(3), 44);
    spread.setNrCols(2, false);
    view->sync();
    spread.setNrCols(3, false);
    view->sync();
    EXPECT_THAT(bodyWidths(), ElementsAre(64, 64, 64));
    spread.setNrRows(0);
    view->sync();
    EXPECT_EQ(view->model()->rowCount(), 0);
    key(Qt::Key_Down);  // nowhere to go, and no harm
}

TEST_F(GridCells, DraggedBordersBecomeTheGridsSizes) {
    open();
    view->horizontalHeader()->resizeSection(1, 90);
    view->verticalHeader()->resizeSection(1, 33);
    EXPECT_EQ(grid().colWidth(2), 90);
    EXPECT_EQ(grid().rowHeight(2), 33);
    spread.setData(3, 1, "a text that is wider than its column");
    emit view->horizontalHeader()->sectionHandleDoubleClicked(2);
    EXPECT_EQ(grid().colWidth(3), grid().fitWidth(3));
    EXPECT_EQ(view->columnWidth(2), grid().fitWidth(3));
}

TEST_F(GridCells, HeadersShowTheirTextsOrLettersAndHide) {
    spread.setData(2, control::headerIndex, "Weight");
    open();
    const auto header = [&](int section, Qt::Orientation orientation) {
        return view->model()->headerData(section, orientation).toString().toStdString();
    };
    EXPECT_EQ(header(0, Qt::Horizontal), "A");
    EXPECT_EQ(header(1, Qt::Horizontal), "Weight");
    EXPECT_EQ(header(5, Qt::Vertical), "6");
    EXPECT_EQ(view->verticalHeader()->width(), grid().colWidth(control::headerIndex));
    EXPECT_EQ(view->horizontalHeader()->height(), grid().rowHeight(control::headerIndex));
    grid().setOption(control::Option::columnHeaders, false);
    grid().setOption(control::Option::rowHeaders, false);
    view->sync();
    EXPECT_FALSE(view->horizontalHeader()->isVisible());
    EXPECT_FALSE(view->verticalHeader()->isVisible());
}

}  // namespace
