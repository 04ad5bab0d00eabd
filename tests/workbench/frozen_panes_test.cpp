// Headings that stay in view show what the cells below show, and are worked in the same way.
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QWheelEvent>

#include "workbench/sheet_fixture.h"

namespace {

class FrozenSheet : public SheetWindow {
  protected:
    FrozenSheet() {
        select("B3");
        run(sayFreeze);
    }
    /// The table that shows a cell: a pane, or the view itself.
    QTableView& shown(int col, int row) const {
        SheetView& view = page->view();
        const bool isAbove = row <= view.frozen().rows(), isLeft = col <= view.frozen().cols();
        if (!isAbove && !isLeft) return view;
        for (QTableView* pane : view.findChildren<QTableView*>()) {
            // The corner pane has both headers, the upper one that of the rows.
            const bool hasCols = !pane->horizontalHeader()->isHidden();
            const bool hasRows = !pane->verticalHeader()->isHidden();
            if (!pane->isHidden() && hasRows == isAbove && hasCols == isLeft) return *pane;
        }
        ADD_FAILURE() << "no pane shows " << col << "," << row;
        return view;
    }
    QPoint inPane(int col, int row) const {
        const QTableView& pane = shown(col, row);
        return pane.visualRect(pane.model()->index(row - 1, col - 1)).center();
    }
    /// The colour of a cell's left edge or of its middle, as it is seen in the whole view.
    QColor colour(int col, int row, bool isEdge) const {
        const QTableView& pane = shown(col, row);
        const QRect cell = pane.visualRect(pane.model()->index(row - 1, col - 1));
        const QPoint point(isEdge ? cell.left() + 1 : cell.center().x(), cell.center().y());
        SheetView& view = page->view();
        return view.grab().toImage().pixelColor(pane.viewport()->mapTo(&view, point));
    }
};

TEST_F(FrozenSheet, FramesOfReferencesAndMarksOfStandardsShowInEveryPane) {
    // Scrolled, so that the panes cover other cells than they show.
    select("Y150");
    SheetView& view = page->view();
    const auto [col, row] = page->grid().active();
    ASSERT_GT(view.horizontalScrollBar()->value(), 0);
    keys("=A1+Y2+A150+X149");
    const std::pair<control::CellAddress, int> references[] = {
        {{1, 1}, 0}, {{col, 2}, 1}, {{1, row}, 2}, {{col - 1, row - 1}, 3}};
    ASSERT_TRUE(view.isEditing());
    for (const auto& [cell, index] : references) {
        EXPECT_EQ(colour(cell.col, cell.row, true),
                  toQt(editor::markColours[index], Qt::transparent))
            << cell.col << "," << cell.row;
    }
    key(Qt::Key_Escape);
    for (const auto& [cell, index] : references)
        EXPECT_NE(colour(cell.col, cell.row, true),
                  toQt(editor::markColours[index], Qt::transparent));

    StandardMarks marks;
    marks.markers = {{1, 1}, {1, row - 2}, {col - 1, 2}, {col - 1, row - 2}};
    marks.variables = {{1, 2}, {1, row - 3}, {col - 2, 2}, {col - 2, row - 2}};
    const QColor plain = colour(col - 1, row - 2, false);
    view.setStandardMarks(std::make_shared<const StandardMarks>(marks));
    for (const auto* cells : {&marks.markers, &marks.variables}) {
        const QColor inView = colour(cells->back().col, cells->back().row, false);
        EXPECT_NE(inView, plain);
        for (const control::CellAddress& cell : *cells)
            EXPECT_EQ(colour(cell.col, cell.row, false), inView) << cell.col << "," << cell.row;
    }
    EXPECT_NE(colour(1, 1, false), colour(1, 2, false));
}

TEST_F(FrozenSheet, ALineTellsWhereTheScrolledCellsBegin) {
    select("Y150");
    SheetView& view = page->view();
    const QImage shown = view.grab().toImage();
    const QPoint cells = view.viewport()->pos();
    const QSize covered = view.frozen().covered();
    const QRgb line = view.palette().color(QPalette::Dark).rgb();
    const QRect frozen(cells, covered);
    for (const QPoint& at :
         {QPoint(frozen.right(), frozen.bottom()), QPoint(frozen.right(), frozen.bottom() + 100),
          QPoint(frozen.right() + 100, frozen.bottom())})
        EXPECT_EQ(shown.pixel(at), line) << at.x() << "," << at.y();
    EXPECT_NE(shown.pixel(frozen.bottomRight() + QPoint(100, 100)), line);
}

TEST_F(FrozenSheet, ReferencesAreTakenFromPanesByTheMouse) {
    select("C120");
    keys("=");
    const auto mouse = [&](auto&& action, int col, int row) {
        action(shown(col, row).viewport(), inPane(col, row));
    };
    const auto press = [](QWidget* w, QPoint at) { QTest::mousePress(w, Qt::LeftButton, {}, at); };
    const auto release = [](QWidget* w, QPoint at) {
        QTest::mouseRelease(w, Qt::LeftButton, {}, at);
    };
    mouse(press, 2, 1);
    QMouseEvent move(QEvent::MouseMove, inPane(3, 2),
                     shown(3, 2).viewport()->mapToGlobal(inPane(3, 2)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(shown(3, 2).viewport(), &move);
    mouse(release, 3, 2);
    EXPECT_EQ(page->view().field()->toPlainText(), "=B1:C2");
    // Nothing is pointed at once the button is up.
    QMouseEvent away(QEvent::MouseMove, inPane(4, 119),
                     page->view().viewport()->mapToGlobal(inPane(4, 119)), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(page->view().viewport(), &away);
    EXPECT_EQ(page->view().field()->toPlainText(), "=B1:C2");
    key(Qt::Key_Escape);

    // What is typed is entered when a heading is clicked, as with any other cell.
    keys("12");
    mouse(press, 2, 1);
    mouse(release, 2, 1);
    EXPECT_EQ(text(3, 120), "12");
    EXPECT_EQ(page->grid().active(), (control::CellAddress{2, 1}));
}

TEST_F(FrozenSheet, TheWheelAndTheMenuMeanTheCellsThatAreSeen) {
    select("B60");
    QTableView& pane = shown(3, 1);
    QScrollBar& rows = *page->view().verticalScrollBar();
    const int before = rows.value();
    const QPointF at = inPane(3, 1);
    QWheelEvent wheel(at, pane.viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(pane.viewport(), &wheel);
    EXPECT_GT(rows.value(), before);
    EXPECT_EQ(pane.verticalScrollBar()->value(), 0);

    QContextMenuEvent menu(QContextMenuEvent::Mouse, at.toPoint(),
                           pane.viewport()->mapToGlobal(at.toPoint()));
    QApplication::sendEvent(pane.viewport(), &menu);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(page->grid().active(), (control::CellAddress{3, 1}));
}

}  // namespace
