// What a user does in a sheet, step by step, back and forth.
#include <QHeaderView>
#include <QInputDialog>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

#include "spread/tw_sheet_settings.h"
#include "workbench/sheet/cell_reference.h"
#include "workbench/sheet/function_dialog.h"
#include "workbench/sheet/sheet_settings_dialog.h"
#include "workbench/sheet/sort_dialog.h"
#include "workbench/sheet_fixture.h"

namespace {

TEST_F(SheetWindow, TypingCalculatesAndIsUndoneInSteps) {
    type("A1", "12.5");
    type("A2", "4");
    type("A3", "=A1*A2");
    EXPECT_EQ(text(1, 3), "50");
    EXPECT_EQ(page->grid().active(), (control::CellAddress{1, 4}));
    EXPECT_TRUE(page->isChanged());
    EXPECT_TRUE(tab().endsWith("*"));

    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(1, 3), "");
    EXPECT_EQ(page->grid().active(), (control::CellAddress{1, 3}));
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(1, 1), "");
    EXPECT_FALSE(page->isChanged());
    EXPECT_FALSE(page->commands().undoAction().isEnabled());
    for (int i = 0; i < 3; ++i) key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text(1, 3), "50");
    EXPECT_FALSE(page->commands().redoAction().isEnabled());
}

TEST_F(SheetWindow, TheFormulaBarShowsAndChangesTheActiveCell) {
    type("B1", "3");
    type("B2", "=B1+1");
    select("B2");
    QPlainTextEdit& field = page->formulaBar().field();
    EXPECT_EQ(field.toPlainText(), "=B1+1");
    field.setFocus();
    field.selectAll();
    keys("=B1*10");
    key(Qt::Key_Return);
    EXPECT_EQ(text(2, 2), "30");

    // What is refused leaves the cell as it was, and says why.
    field.setFocus();
    field.selectAll();
    keys("=SUM(");
    key(Qt::Key_Return);
    EXPECT_EQ(text(2, 2), "30");
    EXPECT_NE(page->message(), "");

    // Escape gives the cell's own text back.
    field.setFocus();
    field.selectAll();
    keys("99");
    key(Qt::Key_Escape);
    EXPECT_EQ(field.toPlainText(), "=B1*10");
    EXPECT_EQ(text(2, 2), "30");
}

TEST_F(SheetWindow, TheNameBoxGoesToCellsAndBlocks) {
    const std::pair<const char*, const char*> places[] = {
        {"c3", "C3"}, {"$B$2:D5", "B2:D5"}, {"D5:B2", "B2:D5"}, {"B:C", "B:C"}, {"3:5", "3:5"}};
    for (const auto& [typed, shown] : places) {
        select(typed);
        EXPECT_EQ(page->formulaBar().nameBox().text(), shown) << typed;
    }
    for (const char* wrong : {"", "A0", "ZZZ1", "A999999", "12", "A1:", "hello"})
        EXPECT_FALSE(blockNamed(page->grid(), wrong)) << wrong;
    select("A999999");
    EXPECT_TRUE(page->message().contains("A999999"));
}

TEST_F(SheetWindow, FormulasAreHelpedWhileTheyAreTyped) {
    select("A1");
    keys("=rou");
    SheetView& view = page->view();
    ASSERT_TRUE(view.field() && view.typing());
    const QListWidget& names = view.typing()->names();
    ASSERT_TRUE(names.isVisible());
    EXPECT_EQ(names.item(0)->text(), "ROUND");
    key(Qt::Key_Tab);
    EXPECT_EQ(view.field()->toPlainText(), "=ROUND(");
    EXPECT_TRUE(view.typing()->hint().contains("ROUND")) << view.typing()->hint().toStdString();
    keys("B2");
    const char* cycle[] = {"=ROUND($B$2", "=ROUND(B$2", "=ROUND($B2", "=ROUND(B2"};
    for (const char* expected : cycle) {
        key(Qt::Key_F4);
        EXPECT_EQ(view.field()->toPlainText(), expected);
    }
    // Cells are pointed at where a reference can stand.
    keys("+");
    const auto place = [&](int col, int row) {
        return view.visualRect(view.model()->index(row - 1, col - 1)).center();
    };
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, place(3, 3));
    QTest::mouseMove(view.viewport(), place(3, 5));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, place(3, 5));
    EXPECT_EQ(view.field()->toPlainText().left(15), "=ROUND(B2+C3:C5");
    keys(",1)");
    key(Qt::Key_Return);
    EXPECT_EQ(formula(1, 1), "ROUND(B2+C3:C5,1)");
}

TEST_F(SheetWindow, FunctionsAreFoundByNameAndPurpose) {
    FunctionDialog dialog(page);
    dialog.search().setText("vlook");
    EXPECT_EQ(dialog.chosen(), "VLOOKUP");
    gSettings.current().language = Language::german;
    FunctionDialog german(page);
    german.search().setText("Summe aller Zahlen");
    EXPECT_EQ(german.chosen(), "SUM");
    gSettings.current().language = Language::english;
    dialog.search().setText("no such function at all");
    EXPECT_EQ(dialog.chosen(), "");
}

TEST_F(SheetWindow, CellsAreFilledSortedAndMoved) {
    type("A1", "1");
    type("A2", "3");
    select("A1:A5");
    run(sayFillSeries);
    EXPECT_EQ(text(1, 5), "9");
    type("B1", "=A1*2");
    select("B1:B5");
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(formula(2, 5), "A5*2");
    EXPECT_EQ(text(2, 5), "18");
    select("A1:A5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return page->summary().contains("25"); }));

    QTimer::singleShot(0, page, [] {
        auto* dialog = dynamic_cast<SortDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->order(0).setCurrentIndex(1);
        dialog->accept();
    });
    run(saySort);
    EXPECT_EQ(text(1, 1), "9");
    EXPECT_EQ(text(1, 5), "1");

    select("2:2");
    run(sayInsertRows);
    EXPECT_EQ(text(1, 2), "");
    EXPECT_EQ(text(1, 3), "7");
    run(sayDeleteRows);
    EXPECT_EQ(text(1, 2), "7");
    run(sayRowsDown);
    EXPECT_EQ(text(1, 3), "7");
    run(sayHideRows);
    EXPECT_EQ(page->grid().rowHeight(3), 0);
    for (int i = 0; i < 6; ++i) page->commands().undoAction().trigger();
    EXPECT_EQ(text(1, 3), "5");
}

TEST_F(SheetWindow, LooksAreSwitchedAndShownOnTheToolBar) {
    type("A1", "2.5");
    select("A1:B2");
    key(Qt::Key_B, Qt::ControlModifier);
    run(sayAlignCentre);
    run(sayMoreDecimals);
    run(sayBorderOutline);
    run(sayLock);
    EXPECT_EQ(format(2, 2).font.weight, 700);
    EXPECT_EQ(format(1, 1).alignment, 3);
    EXPECT_EQ(format(1, 1).type.decimals, 1);
    EXPECT_TRUE(format(1, 1).locked);
    EXPECT_TRUE(page->commands().action(sayBold).isChecked());
    keys("7");  // a locked cell refuses it
    key(Qt::Key_Escape);
    EXPECT_EQ(text(1, 1), "2.5");
    for (int i = 0; i < 5; ++i) key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(format(1, 1).font.weight, 400);
    EXPECT_FALSE(format(1, 1).locked);
    EXPECT_EQ(text(1, 1), "2.5");
    EXPECT_FALSE(page->commands().action(sayBold).isChecked());
}

TEST_F(SheetWindow, KeysDoWhatTheManualSays) {
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier, shift = Qt::ShiftModifier,
                                alt = Qt::AltModifier;
    type("A1", "1");
    type("B1", "=A1+1");
    const struct {
        const char* block;
        Qt::Key key;
        Qt::KeyboardModifiers with;
        const char* probe;  // a cell, and what it holds then
        const char* holds;
    } cases[] = {
        {"B1:D1", Qt::Key_R, ctrl, "D1", "=C1+1"},
        {"B1:B3", Qt::Key_D, ctrl, "B3", "=A3+1"},
        {"A1", Qt::Key_Delete, {}, "A1", ""},
        {"A1", Qt::Key_Down, alt | shift, "B2", "=A2+1"},
        {"A1", Qt::Key_Right, alt | shift, "A1", "=B1+1"},
        {"B1", Qt::Key_Left, alt | shift, "A1", "=B1+1"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.block << " " << each.key);
        select(each.block);
        key(each.key, each.with);
        select(each.probe);
        EXPECT_EQ(page->formulaBar().field().toPlainText(), each.holds);
        key(Qt::Key_Z, ctrl);
    }
    select("A1:B1");
    key(Qt::Key_C, ctrl);
    select("A5");
    key(Qt::Key_V, ctrl | shift);
    EXPECT_EQ(formula(2, 5), "");
    EXPECT_EQ(text(2, 5), "2");
    key(Qt::Key_I, ctrl);
    key(Qt::Key_U, ctrl);
    EXPECT_TRUE(format(1, 5).font.italic && format(1, 5).font.underlined);
    key(Qt::Key_Plus, ctrl);
    EXPECT_EQ(page->view().zoom(), 110);
    key(Qt::Key_0, ctrl);
    key(Qt::Key_Minus, ctrl);
    EXPECT_EQ(page->view().zoom(), 90);
    select("C3");
    key(Qt::Key_Space, ctrl);
    EXPECT_EQ(page->formulaBar().nameBox().text(), "C:C");
    select("C3");
    key(Qt::Key_Space, shift);
    EXPECT_EQ(page->formulaBar().nameBox().text(), "3:3");
    select("C3");
    keys("one");
    key(Qt::Key_Return, alt);
    keys("two");
    key(Qt::Key_Return);
    EXPECT_EQ(text(3, 3), "one\ntwo");
    whenOpens<QInputDialog>([](QInputDialog& note) { QTest::keyClick(&note, Qt::Key_Escape); });
    key(Qt::Key_F2, shift);
    window->activateWindow();  // no window manager does
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    whenOpens<FunctionDialog>([](FunctionDialog& list) { QTest::keyClick(&list, Qt::Key_Escape); });
    key(Qt::Key_F3, shift);
    EXPECT_FALSE(isWaited);
}

TEST_F(SheetWindow, CopiesKeepFormulasAndOtherProgramsGetTexts) {
    type("A1", "5");
    type("B1", "=A1*2");
    select("A1:B1");
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "5\t10");
    select("A3");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(formula(2, 3), "A3*2");
    select("A5");
    run(sayPasteValues);
    EXPECT_EQ(formula(2, 5), "");
    EXPECT_EQ(text(2, 5), "10");

    select("A1");
    key(Qt::Key_X, Qt::ControlModifier);
    select("D1");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(1, 1), "");
    EXPECT_EQ(formula(2, 1), "D1*2");

    QApplication::clipboard()->setText("a\tb\r\n1\t=1+1\r\n");
    select("F1");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(7, 1), "b");
    EXPECT_EQ(text(7, 2), "2");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(7, 2), "");

    QApplication::clipboard()->setText(QString(QChar(0x4E2D)));  // no place in Windows-1252
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_NE(page->message(), "");
    EXPECT_EQ(text(6, 1), "");
}

TEST_F(SheetWindow, TextsAreFoundRoundTheEndAndReplacedAsOneStep) {
    type("A1", "bolt M16");
    type("B2", "BOLT M20");
    type("C3", "nut");
    select("A1");
    key(Qt::Key_F, Qt::ControlModifier);
    FindBar& find = page->findBar();
    ASSERT_TRUE(find.isVisible());
    keys("bolt");
    key(Qt::Key_Return);
    EXPECT_EQ(page->grid().active(), (control::CellAddress{2, 2}));
    key(Qt::Key_Return);
    EXPECT_EQ(page->grid().active(), (control::CellAddress{1, 1}));
    EXPECT_NE(find.message(), "");
    find.replacement().setText("screw");
    EXPECT_EQ(find.replaceAll(), 2);
    EXPECT_EQ(text(2, 2), "screw M20");
    EXPECT_EQ(find.message(), "2 cells changed.");
    find.wanted().setText("no such text");
    EXPECT_FALSE(find.findNext());
    key(Qt::Key_Escape);
    EXPECT_FALSE(find.isVisible());
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(1, 1), "bolt M16");
    EXPECT_EQ(text(2, 2), "BOLT M20");
    find.wanted().setText("M20");
    EXPECT_EQ(find.replaceAll(), 1);
    EXPECT_EQ(find.message(), "1 cell changed.");
}

TEST_F(SheetWindow, TabGoesRoundTheFindBarAndEscapeBackToTheGrid) {
    key(Qt::Key_F, Qt::ControlModifier);
    FindBar& find = page->findBar();
    type("A1", "bolt");
    find.open();
    const QList<QPushButton*> buttons = find.findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 3);
    const QList<QWidget*> order{&find.wanted(), &find.replacement(),
                                buttons[0],     buttons[1],
                                buttons[2],     find.findChild<QToolButton*>()};
    for (qsizetype i = 0; i <= order.size(); ++i, key(Qt::Key_Tab))
        EXPECT_EQ(&focus(), order[i % order.size()]) << i;
    EXPECT_EQ(&focus(), &find.replacement());
    key(Qt::Key_Backtab);
    key(Qt::Key_Backtab);
    EXPECT_EQ(&focus(), order.back()) << "backwards round the beginning";
    find.wanted().setText("no such text");
    buttons[0]->setFocus();
    key(Qt::Key_Return);
    EXPECT_TRUE(find.message().contains("no such text")) << "Enter presses the button";
    key(Qt::Key_Escape);
    EXPECT_FALSE(find.isVisible());
    EXPECT_EQ(&focus(), &page->view());
}

TEST_F(SheetWindow, TextsThatAreCutShowAfterTheDelayOfTheSheet) {
    type("A1", "a text that is longer than its column");
    type("B1", "neighbour");
    QWidget* cells = page->view().viewport();
    const auto delay = [&] {
        page->view().sync();
        return cells->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay, nullptr, cells);
    };
    const int usual = page->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay, nullptr, page);
    const std::pair<int, int> cases[] = {{3000, 3000}, {0, usual}, {10, 10}};
    for (const auto& [wanted, shown] : cases) {
        page->grid().view().textTipDelay = wanted;
        EXPECT_EQ(delay(), shown) << wanted;
    }
    QTest::mouseMove(cells, cells->rect().bottomRight() - QPoint(5, 5));
    QTest::mouseMove(cells, QPoint(20, 8));
    QTRY_COMPARE(QToolTip::text(), "a text that is longer than its column");
    QToolTip::hideText();
}

TEST_F(SheetWindow, SizesByTheMouseAndSettingsAreStepsToo) {
    page->view().horizontalHeader()->resizeSection(1, 150);
    EXPECT_EQ(page->grid().colWidth(2), 150);
    QTimer::singleShot(0, page, [] {
        auto* dialog = dynamic_cast<SheetSettingsDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->margin(0).setValue(25);
        dialog->accept();
    });
    run(saySheetSettings);
    TwSheetSettings settings;
    settings.readFromSheet(page->spread());
    EXPECT_EQ(settings.marginLeft, 25);
    page->commands().undoAction().trigger();
    settings.readFromSheet(page->spread());
    EXPECT_EQ(settings.marginLeft, 9);
    page->commands().undoAction().trigger();
    EXPECT_NE(page->grid().colWidth(2), 150);
}

TEST_F(SheetWindow, FrozenHeadingsStayAndHideNoActiveCell) {
    type("A1", "Title");
    select("B3");
    run(sayFreeze);
    SheetView& view = page->view();
    EXPECT_EQ(view.frozen().rows(), 2);
    EXPECT_EQ(view.frozen().cols(), 1);
    select("B150");
    for (int i = 0; i < 60; ++i) key(Qt::Key_Up);
    const QRect active = view.visualRect(view.currentIndex());
    EXPECT_GE(active.top(), view.frozen().covered().height());
    // A heading is typed into where it can be seen.
    select("A1");
    keys("New");
    ASSERT_TRUE(view.field());
    EXPECT_TRUE(view.viewport()->rect().contains(view.field()->geometry().center()));
    key(Qt::Key_Return);
    EXPECT_EQ(text(1, 1), "New");
    run(sayFreeze);
    EXPECT_FALSE(view.frozen().isFrozen());
}

TEST_F(SheetWindow, ZoomScalesWhatIsShownAndLeavesTheSheet) {
    const int width = page->grid().colWidth(1), height = page->grid().rowHeight(1);
    page->view().setZoom(200);
    EXPECT_EQ(page->view().columnWidth(0), 2 * width);
    EXPECT_EQ(page->view().rowHeight(0), 2 * height);
    page->view().horizontalHeader()->resizeSection(1, 300);
    EXPECT_EQ(page->grid().colWidth(2), 150);
    run(sayZoomNormal);
    EXPECT_EQ(page->view().columnWidth(0), width);
    EXPECT_EQ(page->view().columnWidth(1), 150);
    EXPECT_EQ(page->grid().colWidth(1), width);
}

}  // namespace
