#include "spread/control/grid.h"

#include <gtest/gtest.h>

#include <random>

#include "core_api/text/number_text.h"
#include "spread/control/formula/coerce.h"

namespace {

using control::Block;
using control::CellFormat;
using control::CellKind;
using control::CellType;
using control::Grid;
using control::headerIndex;
using control::Reading;
using formula::ErrorCode;
using formula::Value;

CellType typeOf(CellKind kind) {
    CellType type;
    type.kind = kind;
    return type;
}

class GridTest : public testing::Test {
  protected:
    GridTest() {
        grid.setCols(6);
        grid.setRows(8);
    }
    std::string value(int col, int row) const { return grid.text(col, row, Reading::value); }
    std::string data(int col, int row) const { return grid.text(col, row, Reading::data); }
    std::string formula(int col, int row) const { return grid.text(col, row, Reading::formula); }
    Grid grid;
};

TEST_F(GridTest, CellsTakeWhatTheirTypeAllows) {
    const CellType general, edit = control::editType(200), whole = control::numberType(0),
                            cents = control::numberType(2),
                            small = control::numberType(1, 0, -10, 10),
                            check = typeOf(CellKind::checkBox);
    const char* const refused = nullptr;
    struct Case {
        const CellType& type;
        const char* written;
        const char* value;
        const char* data;
    };
    const Case cases[] = {
        {general, "12.5", "12.5", "12.5"},
        {general, "007", "007", "007"},
        {general, "1.50", "1.50", "1.50"},
        {general, "1e5", "1e5", "1e5"},
        {general, "Double Width", "Double Width", "Double Width"},
        {general, "123456789012345678", "123456789012345678", "123456789012345678"},
        {general, "", "", ""},
        {edit, "12.5", "12.5", "12.5"},
        {edit, "#DIV/0!", "#DIV/0!", "#DIV/0!"},
        {whole, "2.5", "3", "3"},
        {whole, "-2.5", "-3", "-3"},
        {whole, "-0.4", "0", "0"},
        {cents, "2.675", "2.68", "2.68"},
        {cents, "1.005", "1.01", "1.01"},
        {cents, "2", "2", "2.00"},
        {cents, "2.50", "2.5", "2.50"},
        {cents, " 1e2 ", "100", "100.00"},
        {cents, "", "", ""},
        {cents, "#N/A", "#N/A", "#N/A"},
        {cents, "#nonsense", refused, refused},
        {cents, "IPE 200", refused, refused},
        {cents, "1/2", refused, refused},
        {cents, "12 mm", refused, refused},
        {small, "10.04", "10", "10.0"},
        {small, "10.05", refused, refused},
        {small, "-11", refused, refused},
        {check, "1", "1", "1"},
        {check, "0", "0", "0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.written);
        grid.setType(1, 1, general);
        grid.setData(1, 1, "before");
        grid.setType(1, 1, c.type);
        EXPECT_EQ(grid.setData(1, 1, c.written), c.value != refused);
        EXPECT_EQ(value(1, 1), c.value ? c.value : "before");
        EXPECT_EQ(data(1, 1), c.data ? c.data : "before");
    }
}

// The typed calls are the fast way through the same rules: the text calls judge them.
TEST_F(GridTest, TypedValuesReadAsTheirTextsWould) {
    const CellType types[] = {CellType(), control::editType(0), control::numberType(0),
                              control::numberType(7), typeOf(CellKind::staticText)};
    const Value values[] = {
        Value(),
        Value(0.1 + 0.2),
        Value(2.675),
        Value(-1e15),
        Value(1e-9),
        Value(123456.7654321),
        Value(600.0),
        Value(ErrorCode::div0),
        Value::borrowedText("IPE 200"),
        Value::borrowedText("12.50"),
        Value::borrowedText("#REF!"),
    };
    for (const CellType& type : types) {
        for (const Value& written : values) {
            grid.setType(Block{1, 1, 2, 1}, type);
            grid.setData(1, 1, "");
            grid.setType(3, 1, CellType());
            grid.writeValue(3, 1, written);
            const bool taken = grid.writeValue(1, 1, written);
            EXPECT_EQ(grid.setData(2, 1, value(3, 1)), taken) << value(3, 1);
            EXPECT_EQ(value(1, 1), taken ? value(2, 1) : "") << value(3, 1);
        }
    }
    grid.setType(1, 1, control::numberType(2));
    EXPECT_TRUE(grid.writeValue(1, 1, Value::boolean(true)));
    EXPECT_EQ(value(1, 1), "1");
    EXPECT_FALSE(grid.writeValue(1, 1, Value(1 / 0.0)));
    EXPECT_FALSE(grid.writeValue(7, 1, Value(1.0)));
    EXPECT_FALSE(grid.writeValue(1, 9, Value(1.0)));
}

TEST(Rounding, NumbersAndTheirTextsAreRoundedAlike) {
    std::mt19937_64 random(7);
    NumberBuffer buffer;
    for (int i = 0; i < 200'000; ++i) {
        const int decimals = static_cast<int>(random() % 16);
        double number = static_cast<double>(random() % 2'000'000'001) / 1000.0 - 1e6;
        if (i % 3 == 0) number = std::round(number) + 0.5;
        if (i % 5 == 0) number *= 1e-7;
        std::string_view text = writeNumber(buffer, number, decimals);
        ASSERT_EQ(takeNumber(text), roundAsWritten(number, decimals))
            << number << " to " << decimals;
    }
    EXPECT_FALSE(std::signbit(roundAsWritten(-0.001, 2)));
    EXPECT_EQ(roundAsWritten(1e300, 2), 1e300);
}

TEST_F(GridTest, FormulaResultsAreRoundedInReadingsOnly) {
    grid.setType(1, 1, control::numberType(2));
    ASSERT_TRUE(grid.setFormula(1, 1, "2/3"));
    ASSERT_TRUE(grid.setFormula(2, 1, "A1*3"));
    EXPECT_EQ(value(1, 1), "0.67");
    EXPECT_EQ(grid.shownValue(1, 1).number(), 0.67);
    EXPECT_EQ(value(2, 1), "2");
    EXPECT_EQ(formula(1, 1), "2/3");
    ASSERT_TRUE(grid.setFormula(1, 1, "1=1"));
    EXPECT_EQ(value(1, 1), "1");
    EXPECT_EQ(data(1, 1), "1.00");
    ASSERT_TRUE(grid.setFormula(2, 1, "1=1"));
    EXPECT_EQ(value(2, 1), "TRUE");
    // A refused formula changes nothing; the empty one leaves the value.
    formula::ParseError error;
    EXPECT_FALSE(grid.setFormula(1, 1, "NOSUCH(1)", &error));
    EXPECT_FALSE(error.message.empty());
    EXPECT_EQ(formula(1, 1), "1=1");
    EXPECT_TRUE(grid.setFormula(2, 1, ""));
    EXPECT_EQ(formula(2, 1), "");
    EXPECT_EQ(value(2, 1), "TRUE");
}

TEST_F(GridTest, HeaderCellsAndTags) {
    EXPECT_TRUE(grid.setData(headerIndex, 3, "Row three"));
    EXPECT_TRUE(grid.setData(2, headerIndex, "Width"));
    EXPECT_TRUE(grid.setData(headerIndex, headerIndex, "corner"));
    EXPECT_EQ(data(2, 0), "Width");
    EXPECT_EQ(data(headerIndex, 3), "Row three");
    EXPECT_EQ(data(0, 0), "corner");
    EXPECT_FALSE(grid.setData(7, headerIndex, "beyond"));
    EXPECT_TRUE(grid.setTag(0, 0, "settings"));
    EXPECT_TRUE(grid.setTag(2, 2, "tag"));
    EXPECT_EQ(grid.text(headerIndex, headerIndex, Reading::tag), "settings");
    EXPECT_EQ(grid.text(2, 2, Reading::tag), "tag");
    grid.clearCells({1, 1, -1, -1});
    EXPECT_EQ(grid.text(2, 2, Reading::tag), "");
    EXPECT_EQ(grid.text(0, 0, Reading::tag), "settings");
}

TEST_F(GridTest, EverythingOfARowMovesWithIt) {
    grid.setData(1, 3, "three");
    grid.setTag(1, 3, "tag");
    grid.setNote(1, 3, "note");
    grid.setRowHeight(3, 55);
    grid.setData(headerIndex, 3, "head");
    grid.addSpan({2, 3, 2, 2});
    grid.changeFormats({1, 3, 1, 3}, [](CellFormat& format) { format.locked = true; });
    grid.setFormula(1, 5, "A3");
    const auto isAt = [&](int row) {
        return value(1, row) == "three" && grid.text(1, row, Reading::tag) == "tag" &&
               grid.note(1, row) == "note" && grid.rowHeight(row) == 55 &&
               data(headerIndex, row) == "head" && grid.spanAt(3, row + 1) != nullptr &&
               grid.format(1, row).locked;
    };
    ASSERT_TRUE(isAt(3));
    EXPECT_TRUE(grid.insertRows(2, 1));
    EXPECT_TRUE(isAt(4));
    EXPECT_EQ(grid.rows(), 8);
    EXPECT_EQ(formula(1, 6), "A4");
    EXPECT_TRUE(grid.deleteRows(1, 2));
    EXPECT_TRUE(isAt(2));
    EXPECT_EQ(formula(1, 4), "A2");
    EXPECT_TRUE(grid.swapRows(2, 6, 2));
    EXPECT_TRUE(isAt(6));
    EXPECT_FALSE(grid.swapRows(2, 3, 2));
    EXPECT_FALSE(grid.swapRows(2, 8, 2));
    // Inside a span it grows, and shrinks again.
    EXPECT_TRUE(grid.insertRows(7, 1));
    EXPECT_EQ(grid.spanAt(2, 6)->rows, 3);
    EXPECT_TRUE(grid.deleteRows(6, 1));
    EXPECT_EQ(grid.spanAt(2, 6)->rows, 2);
    EXPECT_EQ(grid.text(1, 6, Reading::tag), "");
    // What is pushed over the edge is gone.
    grid.setData(1, 8, "last");
    EXPECT_TRUE(grid.insertRows(1, 1));
    grid.setRows(9);
    EXPECT_EQ(value(1, 9), "");
}

TEST_F(GridTest, ColumnsMoveWithTheirLooks) {
    grid.setType({2, -1, 2, -1}, control::numberType(1));
    grid.setData(2, 1, "1.25");
    grid.setColWidth(2, 99);
    EXPECT_EQ(data(2, 1), "1.3");
    EXPECT_TRUE(grid.insertCols(1, 1));
    EXPECT_EQ(data(3, 1), "1.3");
    EXPECT_EQ(grid.colWidth(3), 99);
    EXPECT_TRUE(grid.format(3, 8).type.isNumber());
    EXPECT_FALSE(grid.format(2, 8).type.isNumber());
    EXPECT_TRUE(grid.copyColFormats(3, 5));
    EXPECT_TRUE(grid.format(5, 8).type.isNumber());
    EXPECT_TRUE(grid.deleteCols(1, 2));
    EXPECT_TRUE(grid.format(1, 1).type.isNumber());
    // Rows that come later look like the rest of the column.
    grid.setRows(100'000);
    EXPECT_TRUE(grid.format(1, 100'000).type.isNumber());
}

TEST_F(GridTest, SizesHaveLimitsAndShrinkingDrops) {
    EXPECT_FALSE(grid.setRows(formula::maxRows + 1));
    EXPECT_FALSE(grid.setCols(formula::maxCols + 1));
    EXPECT_FALSE(grid.setRows(-1));
    grid.setData(6, 8, "corner");
    grid.addSpan({5, 7, 2, 2});
    grid.setActive(6, 8);
    EXPECT_TRUE(grid.setRows(7));
    EXPECT_TRUE(grid.setRows(8));
    EXPECT_EQ(value(6, 8), "");
    EXPECT_EQ(grid.spanAt(5, 7)->rows, 1);
    EXPECT_EQ(grid.active().col, 0);
    EXPECT_TRUE(grid.setRows(0));
    EXPECT_TRUE(grid.setRows(8));
    EXPECT_EQ(grid.sheet().cells().lastRow(), 0);
}

TEST_F(GridTest, NewSpansPushOverlappingOnesOut) {
    grid.addSpan({1, 1, 2, 2});
    grid.addSpan({4, 1, 1, 3});
    grid.addSpan({2, 2, 2, 1});
    EXPECT_EQ(grid.spanAt(1, 1), nullptr);
    ASSERT_NE(grid.spanAt(3, 2), nullptr);
    EXPECT_EQ(grid.spanAt(3, 2)->col, 2);
    EXPECT_NE(grid.spanAt(4, 3), nullptr);
    EXPECT_TRUE(grid.addSpan({1, headerIndex, 2, 2}));
    EXPECT_EQ(grid.spanAt(2, 0)->rows, 1);
    EXPECT_FALSE(grid.addSpan({7, 1, 1, 1}));
}

TEST_F(GridTest, BordersGoRoundABlock) {
    EXPECT_TRUE(grid.setBorder({2, 2, 4, 3}, control::borderOutline, 6, control::rgb(1, 2, 3)));
    EXPECT_EQ(grid.format(2, 2).borderSides, control::borderLeft | control::borderTop);
    EXPECT_EQ(grid.format(4, 3).borderSides, control::borderRight | control::borderBottom);
    EXPECT_EQ(grid.format(3, 2).borderSides, control::borderTop);
    EXPECT_EQ(grid.format(3, 3).borderColour, 0x030201U);
    EXPECT_TRUE(grid.setBorder({2, 2, 4, 3}, 31, 0, control::automatic));
    EXPECT_EQ(grid.format(2, 2).borderSides, 0);
}

TEST_F(GridTest, UsersAreHeldToLocksKindsAndLengths) {
    grid.setOption(control::Option::userFormulas, true);
    grid.changeFormats({1, 1, 1, 1}, [](CellFormat& format) { format.locked = true; });
    CellType combo = typeOf(CellKind::comboBox);
    combo.text = "S235\tS355";
    grid.setType(2, 1, combo);
    grid.setType(3, 1, control::editType(3));
    grid.setType(4, 1, typeOf(CellKind::staticText));
    grid.setType(5, 1, control::numberType(1));
    struct Case {
        int col;
        const char* typed;
        bool taken;
    };
    const Case cases[] = {{1, "x", false},   {2, "S355", true},  {2, "S275", false},
                          {3, "abc", true},  {3, "abcd", false}, {4, "x", false},
                          {5, "1.25", true}, {5, "one", false},  {6, "=E1*2", true},
                          {6, "=(", false}};
    for (const Case& c : cases) EXPECT_EQ(grid.enter(c.col, 1, c.typed), c.taken) << c.typed;
    EXPECT_EQ(value(6, 1), "2.6");
    grid.setOption(control::Option::userFormulas, false);
    EXPECT_TRUE(grid.enter(6, 1, "=E1*2"));
    EXPECT_EQ(value(6, 1), "=E1*2");
    EXPECT_TRUE(grid.enter(6, 2, "1.50"));
    EXPECT_EQ(value(6, 2), "1.5");

    EXPECT_FALSE(grid.beginEdit());
    grid.setActive(1, 1);
    EXPECT_FALSE(grid.beginEdit());
    grid.setActive(5, 1);
    ASSERT_TRUE(grid.beginEdit());
    EXPECT_EQ(grid.editText(), "1.3");
    grid.setEditText("many");
    EXPECT_TRUE(grid.setEditSelection(1, 100));
    EXPECT_EQ(grid.editSelection(), std::pair(1, 3));
    EXPECT_FALSE(grid.endEdit(true));
    EXPECT_TRUE(grid.isEditing());
    EXPECT_TRUE(grid.endEdit(false));
    EXPECT_EQ(data(5, 1), "1.3");
}

TEST_F(GridTest, WhatIsRefusedDoesNotCountAsAChange) {
    grid.setOption(control::Option::userFormulas, true);
    grid.setType(3, 1, control::numberType(2, 0, 0, 10));
    grid.setType(4, 1, typeOf(CellKind::checkBox));
    grid.setOption(control::Option::changed, false);
    EXPECT_FALSE(grid.setFormula(1, 1, "1+") || grid.enter(1, 1, "=nope(") ||
                 grid.enter(4, 1, "=1+1") || grid.enter(4, 1, "yes") || grid.enter(3, 1, "11"));
    EXPECT_FALSE(grid.setColWidth(1, -1) || grid.setRowHeight(1, 1 << 30) ||
                 grid.setColWidth(99, 5) || grid.moveRows(1, 1, 99) || grid.addSpan({99, 1, 2, 2}));
    EXPECT_TRUE(grid.setFormula(1, 1, "")) << "there is none to remove";
    EXPECT_FALSE(grid.option(control::Option::changed));
}

TEST_F(GridTest, CopiedTextPastesBackWhole) {
    grid.setData(1, 1, "plain");
    grid.setData(2, 1, "tab\there");
    grid.setData(1, 2, "two\nlines");
    grid.setData(2, 2, "a \"quoted\" word");
    const std::string copied = grid.copyText({1, 1, 2, 2});
    EXPECT_TRUE(grid.pasteText(4, 3, copied));
    for (int col = 1; col <= 2; ++col)
        for (int row = 1; row <= 2; ++row) EXPECT_EQ(value(col + 3, row + 2), value(col, row));
    EXPECT_TRUE(grid.pasteText(5, 7, "1\t2\t3\r\n4\r\n5\r\n"));
    EXPECT_EQ(value(6, 7), "2");
    EXPECT_EQ(value(5, 8), "4");
}

TEST_F(GridTest, CopiedBlocksMayOverlap) {
    for (int row = 1; row <= 4; ++row) grid.setData(1, row, std::to_string(row));
    grid.setFormula(2, 1, "A1*10");
    EXPECT_TRUE(grid.copyBlock({1, 1, 1, 4}, 1, 2));
    EXPECT_EQ(value(1, 2) + value(1, 3) + value(1, 5), "124");
    EXPECT_TRUE(grid.copyBlock({2, 1, 2, 1}, 2, 3));
    EXPECT_EQ(formula(2, 3), "A3*10");
}

TEST_F(GridTest, TheWidestTextFitsAndPicturesAskForNothing) {
    grid.setData(1, 2, "a much longer text than the others");
    grid.setData(1, 3, "short");
    const int wide = grid.fitWidth(1);
    grid.setType(1, 2, typeOf(CellKind::picture));
    EXPECT_LT(grid.fitWidth(1), wide / 2);
    grid.setData(2, 1, "two\nlines");
    EXPECT_GT(grid.fitHeight(1), grid.fitHeight(3) * 3 / 2);
}

}  // namespace
