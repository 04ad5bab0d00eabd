// Typing into the cells of a grid.
#include <QPlainTextEdit>
#include <QProgressDialog>

#include "spread/control/stop_calculation.h"
#include "workbench/grid/calculation_stop.h"
#include "workbench/grid/refusal.h"
#include "workbench/grid_window.h"

namespace {

using control::Block;
using control::Reading;

using GridEditing = GridWindow;

TEST_F(GridEditing, KeysThatWriteNothingAreLeftAlone) {
    open();
    keys("a");
    ASSERT_TRUE(view->field());
    // A real keyboard tells of Shift before the capital; a field uses neither it nor these.
    for (const Qt::Key each : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_CapsLock, Qt::Key_F12}) {
        QTest::keyPress(view->field(), each);
        QTest::keyPress(view.get(), each);
        ASSERT_TRUE(view->field()) << each;
    }
    keys("B");
    QTest::keyClick(view.get(), 'c');
    EXPECT_EQ(view->field()->toPlainText(), "aBc");
}

TEST_F(GridEditing, TypingEntersATextAndEnterGoesOnAsTheGridSays) {
    struct Row {
        int action;
        const char* typed;
        std::pair<int, int> then;
    };
    open();
    for (const Row& row : {Row{0, "M12", {2, 2}}, Row{2, "M16", {2, 3}}, Row{5, "M20", {3, 2}}}) {
        SCOPED_TRACE(row.action);
        grid().view().editEnterAction = row.action;
        moveTo(2, 2);
        keys(row.typed);
        EXPECT_TRUE(grid().isEditing());
        EXPECT_NE(text(2, 2), row.typed);
        key(Qt::Key_Return);
        EXPECT_FALSE(grid().isEditing());
        EXPECT_EQ(text(2, 2), row.typed);
        EXPECT_EQ(active(), row.then);
    }
    EXPECT_EQ(notices.front(), "changed 2,2");
    EXPECT_EQ(std::count(notices.begin(), notices.end(), "changed 2,2"), 3);
}

TEST_F(GridEditing, EscapeKeepsWhatTheCellHadAndF2ChangesIt) {
    spread.setData(1, 1, "plate");
    open();
    moveTo(1, 1);
    keys("x");
    key(Qt::Key_Escape);
    EXPECT_EQ(text(1, 1), "plate");
    key(Qt::Key_F2);
    keys("s");
    key(Qt::Key_Down);
    EXPECT_EQ(text(1, 1), "plates");
    EXPECT_EQ(active(), std::pair(1, 2));
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place(1, 1).center());
    EXPECT_TRUE(grid().isEditing());
    keys("!");
    click(3, 3);
    EXPECT_EQ(text(1, 1), "plates!");
    EXPECT_EQ(active(), std::pair(3, 3));
    EXPECT_THAT(notices, testing::Contains("double 1,1"));
}

TEST_F(GridEditing, AResultThatWasOnlyLookedAtKeepsItsFormula) {
    spread.setFormula(1, 1, "1/3");
    open();
    moveTo(1, 1);
    key(Qt::Key_F2);
    key(Qt::Key_Return);
    EXPECT_EQ(grid().text(1, 1, Reading::formula), "1/3");
    grid().setOption(control::Option::userFormulas, true);
    moveTo(1, 2);
    keys("=A1*3");
    key(Qt::Key_Return);
    EXPECT_EQ(text(1, 2), "1");
}

TEST_F(GridEditing, ARefusedTextStaysOpenAndSaysWhy) {
    spread.setNumberCell(Block{1, 1, 1, 2}, 2);
    grid().setType(2, 1, control::numberType(0, 0, 1, 9));
    spread.setTextCell(Block{3, 1, 3, 1}, 3);
    Vor_StringArray items;
    items.append("M12");
    items.append("M16");
    spread.setComboCell({4, 1, 4, 1}, items, true);
    grid().changeFormats({4, 1, 4, 1},
                         [](control::CellFormat& format) { format.type.editable = true; });
    struct Row {
        int col;
        const char* typed;
        const char* why;
    };
    open();
    grid().setOption(control::Option::userFormulas, true);
    for (const Row& row :
         {Row{1, "12x", "\"12x\" is no number. Type digits and a point, such as 12.5."},
          Row{1, "1,5", "\"1,5\" is no number. Type digits and a point, such as 12.5."},
          Row{2, "10", "The number must lie between 1 and 9."},
          Row{1, "=NOSUCH(1)", "The formula cannot be read: "}}) {
        SCOPED_TRACE(row.typed);
        moveTo(row.col, 1);
        keys(row.typed);
        key(Qt::Key_Return);
        EXPECT_TRUE(view->isEditing());
        EXPECT_EQ(grid().editText(), row.typed);
        EXPECT_THAT(view->refusal().toStdString(), testing::StartsWith(row.why));
        click(4, 4);  // going elsewhere does not lose it either
        EXPECT_EQ(active(), std::pair(row.col, 1));
        key(Qt::Key_Escape);
        EXPECT_FALSE(view->isEditing());
        EXPECT_EQ(view->refusal(), "");
        EXPECT_EQ(text(row.col, 1), "");
    }
    moveTo(3, 1);
    keys("abcd");
    EXPECT_EQ(view->refusal(), "At most 3 characters fit here.");
    key(Qt::Key_Return);
    EXPECT_EQ(text(3, 1), "abc");
}

TEST_F(GridEditing, AskingWhyACellRefusesChangesNothing) {
    open();
    control::CellType box;
    box.kind = control::CellKind::checkBox;
    grid().setType(1, 1, box);
    grid().setOption(control::Option::userFormulas, true);
    grid().setOption(control::Option::changed, false);
    EXPECT_EQ(whyRefused(grid(), 1, 1, "=1+1"), "A check box takes 1 or 0.");
    EXPECT_THAT(whyRefused(grid(), 2, 1, "=1+").toStdString(),
                testing::MatchesRegex("The formula cannot be read: ..+"));
    EXPECT_EQ(grid().sheet().formulaCount(), 0);
    EXPECT_FALSE(grid().option(control::Option::changed));
}

// Stands for a user who presses the button as soon as the window shows.
class PressesStop : public QObject {
  public:
    PressesStop() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* window = qobject_cast<QProgressDialog*>(object);
        if (!window || event->type() != QEvent::Show) return false;
        ++shown;
        QMetaObject::invokeMethod(window, &QProgressDialog::cancel, Qt::QueuedConnection);
        return false;
    }
    int shown = 0;
};

TEST_F(GridEditing, ALongCalculationCanBeStopped) {
    open();
    grid().setCols(4);
    grid().setRows(20000);
    control::TextBlock* const formula = control::TextBlock::make("SUM(ROW($1:$20000)*1)");
    for (int row = 1; row <= 20000; ++row) grid().putCell(1, row, {}, formula, false);
    control::TextBlock::release(formula);
    const PressesStop user;
    offerToStopCalculations();
    grid().recalculate();
    EXPECT_EQ(user.shown, 1);
    EXPECT_TRUE(grid().sheet().isStopped());
    EXPECT_EQ(text(1, 1), "200010000");
    EXPECT_EQ(text(1, 20000), "");
    control::setStopCalculation(nullptr);
}

TEST_F(GridEditing, CharactersThatTheModuleCannotKeepAreRefusedAtOnce) {
    open();
    moveTo(1, 1);
    keys("12");
    view->findChild<QPlainTextEdit*>()->insertPlainText(QString::fromUtf8("3\xE6\x9D\xB1"));
    EXPECT_EQ(grid().editText(), "12");
    EXPECT_THAT(view->refusal().toStdString(), testing::HasSubstr("\xE6\x9D\xB1"));
    view->findChild<QPlainTextEdit*>()->insertPlainText(QString::fromUtf8("\xE2\x82\xAC"));
    key(Qt::Key_Return);
    EXPECT_EQ(text(1, 1), "12\x80");
}

TEST_F(GridEditing, EditModeAndCharactersSelectedFromOutsideShow) {
    spread.setData(2, 2, "bolt M16");
    open();
    grid().setActive(2, 2);
    grid().beginEdit();
    grid().setEditSelection(5, 3);
    view->sync();
    auto* field = view->findChild<QPlainTextEdit*>();
    ASSERT_TRUE(field);
    EXPECT_EQ(field->textCursor().selectedText(), "M16");
    key(Qt::Key_End);
    EXPECT_EQ(grid().editSelection(), std::pair(8, 0));
    grid().endEdit(false);
    view->sync();
    EXPECT_FALSE(view->isEditing());
    EXPECT_TRUE(view->hasFocus());
}

TEST_F(GridEditing, LockedAndStaticCellsSayThatTheyAreClosed) {
    spread.setLock(1, 1, true);
    spread.setStaticCell({2, 1, 2, 1});
    spread.setData(1, 1, "kept");
    open();
    moveTo(1, 1);
    keys("x");
    EXPECT_EQ(view->refusal(), "This cell is locked.");
    key(Qt::Key_Delete);
    EXPECT_EQ(text(1, 1), "kept");
    moveTo(2, 1);
    key(Qt::Key_F2);
    EXPECT_EQ(view->refusal(), "This cell cannot be typed into.");
    EXPECT_FALSE(view->isEditing());
}

}  // namespace
