// A sheet of 100,000 rows opens, scrolls and takes keys at once. What was measured is printed; the
// limits are wide, as tests run on busy machines.
#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <iostream>

#include "workbench/grid_window.h"

namespace {

constexpr int cols = 50, rows = 100000;

class GridSpeed : public GridWindow {
  protected:
    void SetUp() override {
        grid().setCols(cols);
        grid().setRows(rows);
        for (int row = 1000; row <= rows; row += 1000)
            for (int col = 1; col <= cols; ++col) grid().writeValue(col, row, row * 0.5 + col);
    }
    template <class Action>
    static double milliseconds(const char* what, Action&& action) {
        QElapsedTimer timer;
        timer.start();
        action();
        const double taken = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        std::cout << "  " << what << ": " << taken << " ms\n";
        return taken;
    }
    void draw() { view->viewport()->repaint(); }
};

TEST_F(GridSpeed, OpensScrollsAndTypesWithoutAPause) {
    EXPECT_LT(milliseconds("open 100,000 x 50", [&] { open(), draw(); }), 1000);
    EXPECT_LT(milliseconds("sync, nothing changed", [&] { view->sync(); }), 5);
    const double page = milliseconds("100 pages down", [&] {
        for (int i = 0; i < 100; ++i) key(Qt::Key_PageDown), draw();
    });
    EXPECT_LT(page / 100, 50);
    EXPECT_LT(milliseconds("to the end", [&] { key(Qt::Key_End, Qt::ControlModifier), draw(); }),
              100);
    EXPECT_EQ(active(), std::pair(cols, rows));
    EXPECT_LT(milliseconds("type and enter",
                           [&] {
                               keys("12");
                               key(Qt::Key_Return);
                               draw();
                           }),
              200);
    EXPECT_LT(milliseconds("select all", [&] { key(Qt::Key_A, Qt::ControlModifier), draw(); }),
              100);
    EXPECT_LT(milliseconds("a row more", [&] { spread.appendRow(true), view->sync(), draw(); }),
              200);
}

TEST_F(GridSpeed, ManyHeightsHiddenRowsAndSpansDoNotTakeTheSquareOfTheirNumber) {
    for (int row = 1; row <= rows; ++row) {
        grid().setRowHeight(row, 18 + row % 3);
        if (row % 10 == 0) grid().setRowHidden(row, true);
        if (row % 20 == 1) grid().addSpan({1, row, 1, 5});
    }
    EXPECT_LT(milliseconds("open with heights, hidden rows, spans", [&] { open(), draw(); }), 2000);
    EXPECT_LT(milliseconds("a width changed",
                           [&] {
                               grid().setColWidth(2, 99);
                               view->sync();
                               draw();
                           }),
              500);
    EXPECT_LT(milliseconds("to the end", [&] { key(Qt::Key_Down, Qt::ControlModifier), draw(); }),
              500);
}

}  // namespace
