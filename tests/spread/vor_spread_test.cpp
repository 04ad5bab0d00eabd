#include "spread/vor_spread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/texts/texts.h"
#include "platform/window/dialog.h"
#include "platform/window/scripted_user.h"
#include "platform/window/text_question.h"
#include "support/temporary_folder.h"

namespace {

using control::Block;
using control::CellKind;
using control::Reading;

constexpr int header = Vor_Spread::headerIndex;
constexpr int gridId = 1004;

class VorSpreadTest : public testing::Test {
  protected:
    VorSpreadTest() {
        dialog.create({"#32770", "Dialog", {100, 50, 700, 550}, 0, 0, true}, nullptr);
        placeholder.create({"Static", "", {20, 30, 437, 230}, 0, gridId, true}, &dialog);
        spread.attach(&dialog, gridId, true);
    }
    ~VorSpreadTest() override {
        spread.destroy();
        dialog.destroy();
    }
    void size(int cols, int rows) {
        spread.setNrCols(cols, false);
        spread.setNrRows(rows);
    }
    Vor_String value(int col, int row) const {
        Vor_String text;
        spread.getCellText(col, row, text, Reading::value);
        return text;
    }
    std::vector<int> widths() const {
        std::vector<int> all{spread.colWidthInPixels(header)};
        for (int col = 1; col <= spread.nrCols(); ++col)
            all.push_back(spread.colWidthInPixels(col));
        return all;
    }
    void fill(const std::vector<std::vector<const char*>>& rows) {
        size(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
        for (size_t r = 0; r < rows.size(); ++r)
            for (size_t c = 0; c < rows[r].size(); ++c)
                spread.setData(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
    }
    std::string column(int col) const {
        std::string all;
        for (int row = 1; row <= spread.nrRows(); ++row) all += value(col, row).str() + ",";
        return all;
    }

    CWnd dialog;
    CWnd placeholder;
    Vor_Spread spread;
};

TEST_F(VorSpreadTest, TakesThePlaceOfItsItem) {
    EXPECT_FALSE(placeholder.isCreated());
    EXPECT_EQ(dialog.item(gridId), &spread);
    EXPECT_EQ(spread.rect(), (CRect{20, 30, 437, 230}));
    EXPECT_TRUE(spread.isVisible());
    EXPECT_EQ(spread.nrRows(), 0);
    Vor_Spread other;
    EXPECT_FALSE(other.attach(nullptr, gridId, true));
    EXPECT_FALSE(other.attach(&dialog, 7, true));
    CWnd second;
    second.create({"Static", "", {50, 60, 150, 160}, 0, 7, true}, &dialog);
    EXPECT_TRUE(other.attach(&dialog, 7, false));
    EXPECT_EQ(other.rect(), (CRect{45, 40, 145, 140}));
}

TEST(VorSpread, DoesNothingBeforeItIsAttached) {
    Vor_Spread spread;
    Vor_String text = "old";
    int number = 5, foundCol = 0;
    EXPECT_FALSE(spread.setNrRows(3));
    EXPECT_FALSE(spread.getCellText(1, 1, text, Reading::value));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_FALSE(spread.getCellInt(1, 1, number));
    EXPECT_FALSE(spread.setStandardLook(0));
    EXPECT_FALSE(spread.findInRow("x", false, 1, 1, foundCol));
    EXPECT_FALSE(spread.loadFromFile("nowhere"));
    EXPECT_FALSE(spread.setFormula(1, 1, "1"));
    EXPECT_FALSE(spread.insertRow(1, false, false));
    EXPECT_EQ(spread.appendRow(false), 0);
    EXPECT_FALSE(spread.setCellTag(0, 0, "tag") || spread.getCellTag(0, 0, text));
    EXPECT_FALSE(spread.setData(header, header, "corner") || spread.setValue(0, 0, "corner"));
    EXPECT_FALSE(spread.setBool(30, true) || spread.setRefStyle(2) || spread.setGridType(1));
    EXPECT_FALSE(spread.setColWidthInPixels(header, 50) || spread.userDoubleClicks(0, 0));
    EXPECT_EQ(spread.grid().text(0, 0, Reading::data), "");
    EXPECT_FALSE(spread.grid().option(control::Option::changed));
    int action = 0;
    spread.handleTabKey(Vor_Spread::tabKey, action);
    EXPECT_EQ(action, 1);
}

TEST_F(VorSpreadTest, CellTextsAtTheEdges) {
    size(2, 3);
    Vor_String text = "old";
    EXPECT_FALSE(spread.getCellText(1, 4, text, Reading::data));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_FALSE(spread.getCellText(3, 1, text, Reading::data));
    EXPECT_TRUE(spread.getCellText(1, 3, text, Reading::data));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_TRUE(spread.setData(header, 2, "two"));
    EXPECT_TRUE(spread.getCellText(header, 2, text, Reading::data));
    EXPECT_EQ(text, "two");
    spread.setNumberCell({1, 1, 1, 1}, 2);
    spread.setFormula(1, 1, "5/3");
    spread.setCellTag(1, 1, "tag");
    const char* const expected[] = {"1.67", "5/3", "tag", "1.67"};
    for (int kind = 0; kind <= 3; ++kind) {
        EXPECT_TRUE(spread.getCellText(1, 1, text, static_cast<Reading>(kind)));
        EXPECT_EQ(text, expected[kind]);
    }
}

TEST_F(VorSpreadTest, TypedCellsColumnsAndRows) {
    size(3, 4);
    EXPECT_TRUE(spread.setCellDouble(1, 1, 2.675));
    EXPECT_EQ(value(1, 1), "2.68");
    int whole = 0;
    EXPECT_TRUE(spread.getCellInt(1, 1, whole));
    EXPECT_EQ(whole, 2);
    bool checked = true;
    EXPECT_FALSE(spread.getCheck(1, 1, checked));
    EXPECT_TRUE(checked);
    EXPECT_TRUE(spread.setCheck(1, 1, false));
    EXPECT_TRUE(spread.getCheck(1, 1, checked));
    EXPECT_FALSE(checked);

    EXPECT_TRUE(spread.setColumn(2, Vor_StringArray{"a", "b", "c", "d", "beyond"}));
    EXPECT_EQ(column(2), "a,b,c,d,");
    EXPECT_FALSE(spread.setColumn(4, Vor_StringArray{"x"}));
    EXPECT_TRUE(spread.setColumn(3, Vor_Array<double>{1.005, 2, -0.001}));
    EXPECT_EQ(column(3), "1.01,2,0,,");
    Vor_Array<double> numbers;
    EXPECT_TRUE(spread.getColumn(3, numbers));
    EXPECT_EQ(numbers, (Vor_Array<double>{1.01, 2, 0, 0}));
    Vor_Array<bool> checks{true};
    EXPECT_FALSE(spread.getColumn(2, checks));
    EXPECT_EQ(checks.length(), 1);
    EXPECT_TRUE(spread.setRow(header, Vor_StringArray{"A", "B", "C"}));
    Vor_StringArray names;
    EXPECT_TRUE(spread.getRow(header, names));
    EXPECT_EQ(names, (Vor_StringArray{"A", "B", "C"}));
    EXPECT_TRUE(spread.clearRows(1, 3));
    Vor_Array<Vor_StringArray> rows;
    EXPECT_TRUE(spread.getAllRows(rows));
    EXPECT_EQ(rows.length(), 4);
    EXPECT_EQ(rows[3], (Vor_StringArray{"", "d", ""}));
    // A number column refuses a text and takes the rest.
    spread.setNumberCell({1, -1, 1, -1}, 1);
    EXPECT_FALSE(spread.setColumn(1, Vor_StringArray{"1.25", "x", "3"}, true));
    EXPECT_EQ(column(1), "1.3,,3,,");
}

TEST_F(VorSpreadTest, SizesByMode) {
    size(4, 1);  // 417 wide less the scroll bar: 400 for five columns with the header's
    spread.setAutoSize(1);
    EXPECT_TRUE(spread.autoSize());
    EXPECT_EQ(widths(), (std::vector{80, 80, 80, 80, 80}));
    spread.setAutoSize(3, 2, 50);
    spread.autoSize();
    EXPECT_EQ(widths(), (std::vector{66, 100, 100, 66, 66}));
    spread.setAutoSize(3, -1, 25);
    spread.autoSize();
    EXPECT_EQ(widths(), (std::vector{75, 75, 75, 75, 100}));
    spread.setAutoSize(4, header, 20);
    spread.autoSize();
    EXPECT_EQ(widths(), (std::vector{20, 95, 95, 95, 95}));
    spread.setFixedWidths(5, {2, 4, 1}, {30, 70});
    spread.autoSize();
    EXPECT_EQ(widths(), (std::vector{100, 100, 30, 100, 70}));
    spread.setBool(4, false);
    spread.setAutoSize(1);
    spread.autoSize();
    EXPECT_EQ(spread.colWidthInPixels(4), 100);
    spread.setAutoSize(2);
    spread.setData(2, header, "a rather long heading");
    spread.autoSize();
    EXPECT_GT(spread.colWidthInPixels(2), spread.colWidthInPixels(1) * 2);
    EXPECT_EQ(spread.getCellType(2, header), static_cast<int>(CellKind::staticText));
}

TEST_F(VorSpreadTest, EqualNeighboursBecomeOneCell) {
    fill({{"a"}, {"a"}, {""}, {""}, {"b"}, {"c"}, {"c"}, {"c"}});
    EXPECT_TRUE(spread.mergeEqualCells(1));
    const int extents[] = {2, 2, 0, 0, 0, 3, 3, 3};
    for (int row = 1; row <= 8; ++row) {
        const control::Span* span = spread.grid().spanAt(1, row);
        EXPECT_EQ(span ? span->rows : 0, extents[row - 1]) << row;
    }
    spread.setData(1, 1, "x");
    EXPECT_TRUE(spread.mergeEqualCells(1));
    EXPECT_EQ(spread.grid().spanAt(1, 1), nullptr);
    EXPECT_FALSE(spread.mergeEqualCells(2));
}

TEST_F(VorSpreadTest, RowsComeAndGo) {
    fill({{"1", "a"}, {"2", "b"}});
    spread.setNumberCell({1, 2, 1, 2}, 3);
    EXPECT_TRUE(spread.insertRow(2, false, true));
    EXPECT_EQ(column(2), "a,,b,");
    EXPECT_TRUE(spread.grid().format(1, 2).type.isNumber());
    EXPECT_FALSE(spread.insertRow(5, false, false));
    EXPECT_TRUE(spread.insertRow(4, false, false));
    EXPECT_EQ(spread.nrRows(), 4);
    EXPECT_EQ(spread.appendRow(true), 5);
    EXPECT_TRUE(spread.deleteRow(2));
    EXPECT_TRUE(spread.deleteCol(1));
    EXPECT_EQ(column(1), "a,b,,,");
    EXPECT_FALSE(spread.deleteCol(2));
    EXPECT_TRUE(spread.insertCol(1, false, false));
    EXPECT_EQ(column(2), "a,b,,,");
    spread.setNumberCell({1, 4, 1, 4}, 3);
    EXPECT_TRUE(spread.setNrRows(6));
    EXPECT_TRUE(spread.grid().format(1, 6).type.isNumber());
    EXPECT_EQ(spread.grid().format(2, 6).font.weight, 400);
    EXPECT_EQ(spread.grid().format(2, header).font.weight, 700);
}

TEST_F(VorSpreadTest, NewLinesKeepWhatWasFormattedUntilTheSizeIsSet) {
    fill({{"1", "a"}, {"2", "b"}});
    ASSERT_TRUE(spread.setFont({2, 2, 2, 2}, "Arial", 20, 700));
    ASSERT_TRUE(spread.setMenuCommands({4, 6}));
    spread.setActiveCell(1, 1);
    EXPECT_TRUE(spread.runMenuCommand(0));
    EXPECT_TRUE(spread.insertCol(1, false, true));
    EXPECT_EQ(spread.appendRow(true), 4);
    EXPECT_EQ(spread.grid().format(3, 3).font.height, 20) << "moved right and down";
    EXPECT_EQ(spread.grid().format(3, 4).font.height, 20) << "appended rows look like the last";
    EXPECT_EQ(spread.grid().format(2, 1).font.height, 15);
    EXPECT_TRUE(spread.setNrRows(5));
    for (const int row : {3, 4, 5}) EXPECT_EQ(spread.grid().format(3, row).font.height, 15) << row;
}

TEST_F(VorSpreadTest, NewRowsAndColumnsMayAskForTheirName) {
    fill({{"1"}, {"2"}});
    ScriptedUser user;
    user.whenOpens(textQuestionNumber)
        .does([](CDialog& question) {
            EXPECT_EQ(question.text(), dialString(171).str());
            EXPECT_EQ(question.item(textQuestionLabel)->text(), dialString(1150).str());
            EXPECT_EQ(question.item(textQuestionPrompt)->text(),
                      (dialString(1151) + " " + dialString(1152) + ":").str());
        })
        .types(textQuestionField, "HEA 200")
        .presses(IDOK);
    EXPECT_TRUE(spread.insertRow(2, true, false));
    EXPECT_EQ(value(header, 2), "HEA 200");
    user.whenOpens(textQuestionNumber).presses(IDCANCEL);
    EXPECT_TRUE(spread.insertCol(1, true, false));
    EXPECT_EQ(value(1, header), "");
    EXPECT_EQ(spread.nrCols(), 2);
    EXPECT_THAT(user.problems(), testing::IsEmpty());
}

TEST_F(VorSpreadTest, RowsChangePlaces) {
    fill({{"1"}, {"2"}, {"3"}, {"4"}, {"5"}});
    EXPECT_TRUE(spread.swapRows(1, 2, 4));
    EXPECT_EQ(column(1), "4,5,3,1,2,");
    int col = 0, row = 0;
    spread.getActiveCell(col, row);
    EXPECT_EQ(row, 4);
    EXPECT_TRUE(spread.moveRowUp());
    EXPECT_TRUE(spread.moveRowUp());
    EXPECT_EQ(column(1), "4,1,5,3,2,");
    EXPECT_EQ(spread.currentRow(), 2);
    spread.selectBlock(-1, 5, -1, 5);
    EXPECT_FALSE(spread.moveRowDown());
    EXPECT_TRUE(spread.moveRowUp());
    EXPECT_EQ(column(1), "4,1,5,2,3,");
    EXPECT_FALSE(spread.swapRows(1, 1, 6));
}

TEST_F(VorSpreadTest, TheActiveCellAndTheSelection) {
    size(3, 3);
    int col = 0, row = 0, col2 = 0, row2 = 0;
    EXPECT_TRUE(spread.getActiveCell(col, row));
    EXPECT_EQ(std::pair(col, row), std::pair(1, 1));
    EXPECT_TRUE(spread.selectBlock(2, -1, 2, -1));
    EXPECT_TRUE(spread.getSelection(col, row, col2, row2));
    EXPECT_EQ(std::tuple(col, row, col2, row2), std::tuple(2, -1, 2, -1));
    EXPECT_EQ(spread.currentCol(), 2);
    EXPECT_TRUE(spread.setActiveCell(3, 2));
    EXPECT_EQ(std::pair(spread.currentCol(), spread.currentRow()), std::pair(3, 2));
    EXPECT_FALSE(spread.setActiveCell(4, 1));
}

TEST_F(VorSpreadTest, FindsAndReplaces) {
    fill({{"Input", "Bolt M16"}, {"bolt m16 and m16", "x"}, {"", "OUTPUT"}});
    int col = 0, row = 0;
    EXPECT_TRUE(spread.findNext("output", false, 1, 1, col, row));
    EXPECT_EQ(std::pair(col, row), std::pair(2, 3));
    EXPECT_FALSE(spread.findNext("put", false, 1, 1, col, row));
    EXPECT_TRUE(spread.findNext("m16", true, 1, 1, col, row));
    EXPECT_EQ(std::pair(col, row), std::pair(2, 1));
    EXPECT_TRUE(spread.findNext("m16", true, 3, 1, col, row));
    EXPECT_EQ(std::pair(col, row), std::pair(1, 2));
    EXPECT_FALSE(spread.findNext("m16", true, 2, 2, col, row));
    EXPECT_FALSE(spread.findInRow("x", false, -1, 1, col));
    EXPECT_FALSE(spread.findInRow("x", false, 4, 1, col));
    EXPECT_TRUE(spread.replaceInCell(1, 2, "M16", "M20"));
    EXPECT_EQ(value(1, 2), "bolt M20 and M20");
}

TEST_F(VorSpreadTest, TheContextMenuRunsItsCommands) {
    fill({{"0", "a"}, {"0", "b"}, {"0", "c"}});
    spread.setCheckBoxCell({1, -1, 1, -1});
    EXPECT_FALSE(spread.setMenuCommands({2, 10}));
    EXPECT_TRUE(spread.setMenuCommands({2, 3, 1, 4, 5, 1, 8, 9}));
    ScriptedUser user;
    user.whenMenuOpens().picks(dialString(774).view());
    spread.setActiveCell(2, 2);
    EXPECT_TRUE(spread.showContextMenu());
    EXPECT_EQ(column(2), "a,,b,c,");
    EXPECT_TRUE(spread.runMenuCommand(3));
    EXPECT_EQ(column(2), "a,b,c,");
    spread.selectBlock(1, -1, 2, -1);
    spread.onCommand(0x8032, 0);
    EXPECT_EQ(column(1), "1,1,1,");
    EXPECT_EQ(column(2), "a,b,c,");
    spread.selectBlock(1, 2, 1, 3);
    EXPECT_TRUE(spread.runMenuCommand(5));
    EXPECT_EQ(column(1), "1,0,0,");
    spread.selectBlock(1, 1, 2, 2);
    EXPECT_TRUE(spread.runMenuCommand(0));
    spread.setActiveCell(1, 2);
    EXPECT_TRUE(spread.runMenuCommand(1));
    EXPECT_EQ(column(1) + column(2), "1,1,0,a,a,b,");
    EXPECT_FALSE(spread.runMenuCommand(6));
    EXPECT_FALSE(spread.runMenuCommand(-1));
}

TEST_F(VorSpreadTest, TabLeavesTheGridAtItsEnds) {
    class Keyboard : public WindowSystem {
      public:
        bool isShiftHeld() override { return isHeld; }
        bool isHeld = false;
    } keyboard;
    WindowSystem* const before = WindowSystem::install(&keyboard);
    size(3, 2);
    spread.setLock(1, 1, true);
    spread.grid().addSpan({2, 2, 2, 1});
    const auto actionAt = [&](int col, int row, bool shift) {
        keyboard.isHeld = shift;
        spread.setActiveCell(col, row);
        int action = -1;
        spread.handleTabKey(Vor_Spread::tabKey, action);
        return action;
    };
    EXPECT_EQ(actionAt(2, 1, true), 1);  // the keyboard is elsewhere
    spread.focus();
    EXPECT_EQ(actionAt(2, 1, true), 3);
    EXPECT_EQ(actionAt(1, 2, true), 0);
    EXPECT_EQ(actionAt(2, 2, false), 2);
    EXPECT_EQ(actionAt(2, 1, false), 0);
    spread.setLock(2, 2, true);  // the anchor locks the whole span
    EXPECT_EQ(actionAt(1, 2, false), 2);
    int action = -1;
    spread.handleTabKey('A', action);
    EXPECT_EQ(action, 1);
    WindowSystem::install(before);
}

TEST_F(VorSpreadTest, CheckBoxesLockTheirDependents) {
    fill({{"1", ""}, {"0", ""}, {"", ""}});
    spread.setLock(2, 3, true);
    EXPECT_FALSE(spread.linkCheckColumn(1, 3));
    EXPECT_TRUE(spread.linkCheckColumn(1, 2));
    EXPECT_FALSE(spread.isLocked(2, 1));
    EXPECT_TRUE(spread.isLocked(2, 2));
    EXPECT_TRUE(spread.isLocked(2, 3));
    spread.setCheck(1, 2, true);
    spread.onCellCommand(0x3A, 1, 2);
    spread.onCellCommand(0x3B, 2, 2);
    EXPECT_TRUE(spread.isLocked(2, 2));
    spread.onCellCommand(0x3C, 1, 2);
    EXPECT_FALSE(spread.isLocked(2, 2));
    EXPECT_EQ(std::pair(spread.currentCol(), spread.currentRow()), std::pair(2, 2));
}

TEST_F(VorSpreadTest, PicturesGiveTheirRowsHeight) {
    TemporaryFolder folder;
    size(4, 2);
    std::string bitmap(54, '\0');
    bitmap.replace(0, 2, "BM");
    bitmap[18] = 40;
    bitmap[22] = 90;
    const std::string path = folder.write("part.bmp", bitmap);
    EXPECT_FALSE(spread.setPictureCell(2, 1, folder.inside("none.bmp")));
    EXPECT_EQ(spread.grid().spanAt(2, 1), nullptr);
    EXPECT_TRUE(spread.setPictureCell(2, 1, path));
    EXPECT_EQ(spread.rowHeightInPixels(1), 90);
    EXPECT_EQ(spread.grid().spanAt(4, 1)->cols, 3);
    EXPECT_NE(spread.grid().format(1, 1).borderSides & control::borderRight, 0);
    EXPECT_EQ(spread.getCellType(2, 1), static_cast<int>(CellKind::picture));
    EXPECT_TRUE(spread.setPictureCell(1, 2, folder.write("text.bmp", "no picture")));
    // A comment of 3 bytes stands before the frame: 8 bits, 80 lines of 300 pixels.
    const std::string jpeg("\xFF\xD8\xFF\xFE\0\5abc\xFF\xFF\xC2\0\x0B\x08\0\x50\1\x2C\1\1\x11\0",
                           24);
    EXPECT_TRUE(spread.setPictureCell(1, 2, folder.write("photo.jpg", jpeg)));
    EXPECT_EQ(spread.rowHeightInPixels(2), 80);
    const std::string gif("GIF89a\x2C\1\x3C\0\x80\0\0", 13);
    EXPECT_TRUE(spread.setPictureCell(1, 2, folder.write("cut.gif", gif.substr(0, 9))));
    EXPECT_EQ(spread.rowHeightInPixels(2), 80);
    EXPECT_TRUE(spread.setPictureCell(1, 2, folder.write("sketch.gif", gif)));
    EXPECT_EQ(spread.rowHeightInPixels(2), 60);
    bitmap.replace(22, 4, std::string("\0\0\0\x80", 4));
    EXPECT_TRUE(spread.setPictureCell(1, 2, folder.write("endless.bmp", bitmap)));
    EXPECT_EQ(spread.rowHeightInPixels(2), 60) << "no picture has 2^31 lines";
    EXPECT_TRUE(spread.setIconCell(1, 1, 251, false));
    EXPECT_EQ(spread.grid().format(1, 1).type.picture, 251);
}

TEST_F(VorSpreadTest, CheckBoxAndButtonColumnsSpanHeaders) {
    size(3, 2);
    EXPECT_TRUE(spread.setCheckBoxColumn(1, true, true));
    EXPECT_EQ(spread.grid().spanAt(2, 0)->col, 1);
    EXPECT_EQ(spread.grid().format(1, 2).borderStyle, 6);
    EXPECT_TRUE(spread.setButtonColumn(3, "...", true));
    EXPECT_EQ(spread.grid().spanAt(3, 0)->col, 2);
    EXPECT_EQ(spread.grid().format(3, 2).type.text, "...");
    EXPECT_TRUE(spread.setComboCell({2, 1, 2, 1}, {"S235", "S355"}, true));
    EXPECT_EQ(spread.grid().format(2, 1).type.text, "S235\tS355");
    EXPECT_FALSE(spread.setButtonColumn(4, "x", false));
}

TEST_F(VorSpreadTest, FilesAndTheirErrors) {
    TemporaryFolder folder;
    fill({{"1", "2"}});
    EXPECT_TRUE(spread.setFormula(2, 1, "A1*4"));
    EXPECT_TRUE(spread.saveToFile(folder.inside("t.sss")));
    spread.setData(1, 1, "7");
    EXPECT_FALSE(spread.loadFromFile(folder.write("bad.sss", "vormant-sheet 1\nsize x\n")));
    EXPECT_THAT(spread.lastError(), testing::HasSubstr("bad.sss:2: "));
    EXPECT_EQ(value(1, 1), "7");
    EXPECT_TRUE(spread.loadFromFile(folder.inside("t.sss")));
    EXPECT_EQ(spread.lastError(), "");
    EXPECT_EQ(value(1, 1) + value(2, 1), "14");
    EXPECT_NE(spread.document(), nullptr);
    spread.setData(1, 1, "5");
    EXPECT_EQ(value(2, 1), "4");
    EXPECT_TRUE(spread.reCalcCell(2, 1));
    EXPECT_EQ(value(2, 1), "20");
}

}  // namespace
