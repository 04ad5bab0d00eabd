#include "spread/control/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "platform/files.h"
#include "spread/control/grid.h"
#include "support/temporary_folder.h"

namespace {

using control::Block;
using control::CellFormat;
using control::Grid;
using control::headerIndex;
using control::Reading;
using testing::HasSubstr;

// A sheet with something of everything that a document carries.
void fill(Grid& grid) {
    grid.setCols(5);
    grid.setRows(6);
    grid.setReferenceStyle(1);
    grid.setOption(control::Option::rowHeaders, false);
    grid.setType({3, -1, 3, -1}, control::numberType(2, 1, -100, 100));
    control::CellType combo;
    combo.kind = control::CellKind::comboBox;
    combo.text = "S235\t\"S355\"\\";
    grid.setType(4, 2, combo);
    grid.changeFormats({1, headerIndex, -1, headerIndex},
                       [](CellFormat& format) { format.font.weight = 700; });
    grid.changeFormats({headerIndex, 2, headerIndex, 2},
                       [](CellFormat& format) { format.locked = true; });
    EXPECT_EQ(grid.format(5, headerIndex).font.weight, 700);
    EXPECT_EQ(grid.format(headerIndex, 2).locked, true);
    EXPECT_EQ(grid.format(headerIndex, 3).locked, false);
    grid.setBorder({1, 1, 2, 2}, control::borderOutline, 6, control::rgb(1, 2, 3));
    grid.setData(1, 1, "quote \" backslash \\ tab \t line \n return \r euro \x80 e \xE9");
    grid.setData(2, 1, "0.1");
    grid.writeValue(2, 2, formula::Value(0.1 + 0.2));
    grid.writeValue(2, 3, formula::Value(1e300));
    grid.writeValue(2, 4, formula::Value::boolean(true));
    grid.writeValue(2, 5, formula::Value(formula::ErrorCode::na));
    grid.setFormula(3, 1, "B1*2 + LEN(\"tab\t\")");
    grid.setFormula(3, 2, "IF(B2>0,\"yes\",\"no\")");
    grid.setFormula(4, 1, "{1,2,3}");
    grid.setTag(0, 0,
                "settings\xA4"
                "2");
    grid.setTag(1, 1, "tag");
    grid.setNote(1, 6, "note");
    grid.setData(headerIndex, headerIndex, "corner");
    grid.setData(2, headerIndex, "Width");
    grid.setData(headerIndex, 3, "Row");
    grid.addSpan({1, 5, 2, 2});
    grid.addSpan({2, headerIndex, 3, 1});
    grid.setColWidth(2, 123);
    grid.setColWidth(headerIndex, 77);
    grid.setRowHeight(headerIndex, 33);
    grid.setRowHeight(4, 44);
    grid.setColHidden(5, true);
    grid.setRowHidden(6, true);
    grid.changeSides().gridColour = control::rgb(50, 50, 50);
    grid.changeSides().gridType = 7;
}

void expectSame(const Grid& a, const Grid& b) {
    ASSERT_EQ(a.cols(), b.cols());
    ASSERT_EQ(a.rows(), b.rows());
    for (int col = 0; col <= a.cols(); ++col) {
        for (int row = 0; row <= a.rows(); ++row) {
            SCOPED_TRACE(testing::Message() << "column " << col << ", row " << row);
            for (const Reading reading :
                 {Reading::data, Reading::formula, Reading::tag, Reading::value})
                EXPECT_EQ(a.text(col, row, reading), b.text(col, row, reading));
            EXPECT_EQ(a.note(col, row), b.note(col, row));
            EXPECT_TRUE(a.format(col, row) == b.format(col, row));
            EXPECT_EQ(a.spanAt(col, row) != nullptr, b.spanAt(col, row) != nullptr);
        }
    }
    EXPECT_EQ(a.colWidth(2), b.colWidth(2));
    EXPECT_EQ(a.colWidth(5), b.colWidth(5));
    EXPECT_EQ(a.rowHeight(4), b.rowHeight(4));
    EXPECT_EQ(a.colWidth(headerIndex), b.colWidth(headerIndex));
    EXPECT_EQ(a.option(control::Option::rowHeaders), b.option(control::Option::rowHeaders));
}

std::shared_ptr<control::Document> parsed(std::string_view text) {
    std::string error;
    auto document = control::readDocument(text, "sheet", error);
    EXPECT_NE(document, nullptr) << error;
    return document;
}

TEST(Document, EverythingComesBack) {
    Grid grid;
    fill(grid);
    const std::string text = writeDocument(grid);
    Grid copy;
    copy.restore(parsed(text));
    expectSame(grid, copy);
    EXPECT_EQ(copy.sheet().value(2, 2).number(), 0.1 + 0.2);
    EXPECT_EQ(writeDocument(copy), text);
    Grid adopted;
    adopted.adopt(parsed(text));
    expectSame(grid, adopted);
    // A calculation gives what the document carried.
    copy.recalculate();
    expectSame(grid, copy);
}

TEST(Document, NumbersReadBackToTheSameDouble) {
    const double numbers[] = {0.1,
                              -0.0,
                              100000,
                              1e15,
                              123456789.123456,
                              5e-324,
                              1.7976931348623157e308,
                              1.0 / 3,
                              999999999999999.0,
                              0.000001,
                              -2.5,
                              1e22};
    Grid grid;
    grid.setCols(1);
    grid.setRows(20);
    int row = 0;
    for (const double number : numbers) grid.writeValue(1, ++row, formula::Value(number));
    const std::string text = writeDocument(grid);
    EXPECT_THAT(text, HasSubstr("\nA3 100000\n"));
    const auto document = parsed(text);
    for (row = 1; row <= static_cast<int>(std::size(numbers)); ++row)
        EXPECT_EQ(document->sheet().value(1, row).number(), numbers[row - 1]) << text;
}

TEST(Document, IsReadAsPeopleWriteIt) {
    const auto document = parsed(
        "\xEF\xBB\xBFvormant-sheet 1\r\nsize 3 3\r\nlook 7 number decimals=2 locked=1\r\ncells\r\n"
        "B2 @7 12.5\r\nA1 \"Caf\xC3\xA9 \xE2\x82\xAC\r\nC1 =B2*2\r\nC3 =SUM(B1:B3)\t99\r\nend "
        "4\r\n");
    Grid grid;
    grid.restore(document);
    EXPECT_EQ(grid.text(1, 1, Reading::value), "Caf\xE9 \x80");
    EXPECT_EQ(grid.text(2, 2, Reading::data), "12.50");
    EXPECT_EQ(grid.text(3, 3, Reading::value), "99");
    EXPECT_TRUE(grid.recalculateCell(3, 1));
    EXPECT_EQ(grid.text(3, 1, Reading::value), "25");
}

TEST(Document, DamageIsRefusedWithItsLine) {
    const std::string head = "vormant-sheet 1\nsize 3 3\n";
    struct Case {
        std::string text;
        std::string message;
    };
    const Case cases[] = {
        {"", "sheet:1: the file is empty"},
        {"\x89PNG\r\n\x1A", "sheet:1: this is no sheet document"},
        {"vormant-sheet 2\nsize 1 1\n", "sheet:1: the document was written by a newer version"},
        {"vormant-sheet 0\n", "sheet:1: unknown version"},
        {"vormant-sheet 1\ncells\nend 0\n", "sheet:2: no line before gave the size"},
        {"vormant-sheet 1\nsize 16384 2000000000\ncells\nend 0\n", "sheet:2: the size"},
        {"vormant-sheet 1\nsize 3\n", "sheet:2: the size"},
        {"vormant-sheet 1\nsize -1 3\n", "sheet:2: the size"},
        {head, "sheet:2: the document ends before its cells: it was cut off"},
        {head + "cells\nA1 1\n", "sheet:4: the document ends without its last line"},
        {head + "cells\nA1 1\nend 2\n", "sheet:5: the last line counts 2 cells, but 1 stand here"},
        {head + "cells\nA1 1\nend 1\nA2 1\n", "sheet:6: text after the last line"},
        {head + "cells\nA1 1\nA1 2\nend 2\n", "sheet:5: the cell is given twice"},
        {head + "cells\nB1 =1\nC3 1\nB1 2\nend 3\n", "sheet:6: the cell is given twice"},
        {head + "cells\nD1 1\nend 1\n", "sheet:4: the cell lies outside the sheet"},
        {head + "cells\nA0 1\nend 1\n", "sheet:4: the cell lies outside the sheet"},
        {head + "cells\nA1 12 mm\nend 1\n", "sheet:4: bad cell line \"A1 12 mm\""},
        {head + "cells\nA1 1e999\nend 1\n", "sheet:4: bad cell line"},
        {head + "cells\nA1 nan\nend 1\n", "sheet:4: bad cell line"},
        {head + "cells\nA1 @1 2\nend 1\n", "sheet:4: a look that no line before gave"},
        {head + "cells\nA1 =\nend 1\n", "sheet:4: bad formula line"},
        {head + "cells\nA1 \"\xE4\xB8\xAD\nend 1\n", "sheet:4: character U+4E2D"},
        {head + "cells\nA1 \"\xFF\nend 1\n", "sheet:4: byte 0xFF is not UTF-8"},
        {head + "cells\nA1 \"a" + std::string(1, '\0') + "\nend 1\n", "sheet:4: a zero byte"},
        {head + "cells\nA1 \"\\q\nend 1\n", "sheet:4: a backslash is followed by none of"},
        {head + "look 1 blob\ncells\nend 0\n", "sheet:3: unknown kind of cell \"blob\""},
        {head + "look 1 number decimals=99\n", "sheet:3: a look has values out of range"},
        {head + "look 1 number decimals=300\n", "sheet:3: bad entry \"decimals\""},
        {head + "look 1 combo text=\"a\n", "sheet:3: an entry of a look is no key=value"},
        {head + "span C3 2 1\n", "sheet:3: bad span line"},
        {head + "colwidth D 10\n", "sheet:3: bad colwidth line"},
        {head + "tag A9 \"x\n", "sheet:3: the cell lies outside the sheet"},
        {head + "option refstyle 9\n", "sheet:3: unknown option \"refstyle\" or value \"9\""},
        {head + std::string(1 << 20, 'x') + "\n",
         "sheet:3: unknown line \"" + std::string(40, 'x') + "\x85\""},
    };
    for (const Case& c : cases) {
        std::string error;
        EXPECT_EQ(control::readDocument(c.text, "sheet", error), nullptr);
        EXPECT_THAT(error, HasSubstr(c.message));
        EXPECT_LT(error.size(), 200U);
    }
}

TEST(Document, EveryTruncationIsNoticed) {
    Grid grid;
    fill(grid);
    const std::string text = writeDocument(grid);
    std::string error;
    for (size_t length = 0; length + 1 < text.size(); ++length)
        ASSERT_EQ(control::readDocument(text.substr(0, length), "sheet", error), nullptr) << length;
}

TEST(Document, CellsSpreadWidelyAreRefusedBeforeMemoryRunsOut) {
    std::string text = "vormant-sheet 1\nsize 16384 1048576\ncells\n";
    for (int row = 1; row <= 8192; ++row)
        for (const char* col : {"A", "ZZ", "XFD", "B", "C", "D", "E",  "F",  "G",  "H",  "I",
                                "J", "K",  "L",   "M", "N", "O", "P",  "Q",  "R",  "S",  "T",
                                "U", "V",  "W",   "X", "Y", "Z", "AA", "AB", "AC", "AD", "AE"})
            text += col + std::to_string(row * 128) + " 1\n";
    std::string error;
    EXPECT_EQ(control::readDocument(text, "sheet", error), nullptr);
    EXPECT_THAT(error, HasSubstr("the cells need more memory than a sheet may take"));
}

TEST(Document, ResultsThatAreOutOfDateAreNotWritten) {
    Grid grid;
    grid.setCols(1);
    grid.setRows(2);
    ASSERT_TRUE(grid.setFormula(1, 2, "A1*2"));
    grid.writeValue(1, 1, 5.0);
    Grid copy;
    copy.restore(parsed(writeDocument(grid)));
    copy.setOption(control::Option::automaticRecalculation, true);
    EXPECT_EQ(copy.text(1, 2, Reading::value), "10");
}

TEST(Document, AFormulaWhoseFunctionIsUnknownWaitsForIt) {
    const auto document =
        parsed("vormant-sheet 1\nsize 2 2\ncells\nA1 =TWICE(B1)\t8\nB1 4\nend 2\n");
    Grid grid;
    grid.restore(document);
    EXPECT_EQ(grid.text(1, 1, Reading::formula), "TWICE(B1)");
    EXPECT_EQ(grid.text(1, 1, Reading::value), "#NAME?");
    static const int identity = 0;
    formula::CustomFunction twice;
    twice.name = "TWICE";
    twice.least = twice.most = 1;
    twice.call = [](formula::Calculation&, std::span<const formula::Value> args) {
        return formula::Value(args[0].number() * 2);
    };
    grid.addCustomFunction(control::internCustomFunction(twice, &identity));
    EXPECT_TRUE(grid.recalculateCell(1, 1));
    EXPECT_EQ(grid.text(1, 1, Reading::value), "8");
    // The registration outlives the next load.
    grid.restore(document);
    EXPECT_TRUE(grid.recalculateCell(1, 1));
    EXPECT_EQ(grid.text(1, 1, Reading::value), "8");
}

TEST(Document, StartingAgainUndoesWhateverWasDone) {
    Grid source;
    source.setCols(4);
    source.setRows(10);
    for (int row = 1; row <= 10; ++row) source.setData(1, row, "Double x" + std::to_string(row));
    source.setType(2, 2, control::numberType(2));
    source.setData(2, 2, "1.25");
    source.setTag(1, 1, "tag");
    const auto document = parsed(writeDocument(source));
    Grid fresh, used;
    fresh.restore(document);
    used.restore(document);
    using Change = void (*)(Grid&);
    const Change changes[] = {
        [](Grid& g) { g.setType(1, 3, control::numberType(7)), g.setData(1, 3, "5"); },
        [](Grid& g) { g.setData(2, 2, ""), g.setData(4, 10, "new"), g.setFormula(3, 3, "A1&1"); },
        [](Grid& g) { g.setTag(2, 2, "x"), g.setData(0, 1, "h"), g.setColWidth(1, 9); },
        [](Grid& g) {
            g.clearCells({1, 1, -1, -1});
        },
        [](Grid& g) {
            g.changeFormats({1, 1, 4, 10}, [](CellFormat& format) { format.locked = true; });
        },
        [](Grid& g) {
            g.changeFormats({-1, -1, -1, -1}, [](CellFormat& format) { format.locked = true; });
        },
        [](Grid& g) { g.insertRows(2, 3), g.setData(1, 2, "x"); },
        [](Grid& g) { g.setRows(2), g.setCols(2); },
        [](Grid& g) { g.swapCols(1, 2, 1); },
        [](Grid& g) {
            g.copyBlock({1, 1, 2, 5}, 2, 2);
        },
        [](Grid& g) { g.pasteText(1, 1, "a\tb\nc\td"); },
        [](Grid& g) { g.setFormula(1, 1, "1+1"), g.setFormula(1, 1, ""); },
        [](Grid& g) {
            // Numbers past all bookkeeping, into a cell as it was and into one that was changed.
            const control::CellType own = control::numberType(2), given = control::numberType(7);
            g.writeEmpty(1, 3, given);
            Grid::setPlain(*g.plainCell(1, 3, given), given, 5);
            Grid::setPlain(*g.plainCell(2, 2, own), own, 7);
        },
        [](Grid& g) {
            for (int i = 0; i < 3000; ++i) g.setData(1 + i % 4, 1 + i % 10, std::to_string(i));
        },
    };
    for (size_t i = 0; i < std::size(changes); ++i) {
        SCOPED_TRACE(testing::Message() << "change " << i);
        changes[i](used);
        EXPECT_NE(writeDocument(used), writeDocument(fresh));
        used.restore(document);
        expectSame(fresh, used);
        EXPECT_EQ(writeDocument(used), writeDocument(fresh));
    }
}

TEST(DocumentStore, AnUnchangedFileIsReadOnceAndAChangedOneAgain) {
    TemporaryFolder folder;
    const std::string path =
        folder.write("a.tws", "vormant-sheet 1\nsize 1 1\ncells\nA1 1\nend 1\n");
    const auto longAgo =
        std::filesystem::last_write_time(folder.path() / "a.tws") - std::chrono::hours(1);
    std::filesystem::last_write_time(folder.path() / "a.tws", longAgo);
    std::string error;
    const auto first = control::loadDocument(path, error);
    ASSERT_NE(first, nullptr) << error;
    EXPECT_EQ(control::loadDocument(path, error), first);
    first->attachment() = std::make_shared<int>(5);
    EXPECT_EQ(*std::static_pointer_cast<int>(control::loadDocument(path, error)->attachment()), 5);
    // Same size, changed again and again: never an old answer.
    for (const char digit : {'2', '3', '4'}) {
        std::string text = "vormant-sheet 1\nsize 1 1\ncells\nA1 1\nend 1\n";
        text[text.find("A1 1") + 3] = digit;
        folder.write("a.tws", text);
        const auto changed = control::loadDocument(path, error);
        ASSERT_NE(changed, nullptr);
        EXPECT_EQ(changed->sheet().value(1, 1).number(), digit - '0');
    }
    std::filesystem::remove(folder.path() / "a.tws");
    EXPECT_EQ(control::loadDocument(path, error), nullptr);
    EXPECT_THAT(error, HasSubstr("a.tws"));
}

TEST(DocumentStore, AFailedLoadOrSaveLeavesTheOldContents) {
    class NoRename : public files::WriteSteps {
      public:
        NoRename() { files::installWriteSteps(this); }
        ~NoRename() override { files::installWriteSteps(nullptr); }
        int rename(const std::string&, const std::string&) override { return ENOSPC; }
    };
    TemporaryFolder folder;
    Grid grid;
    fill(grid);
    std::string error;
    const std::string path = folder.inside("sheet.sss");
    ASSERT_TRUE(saveDocument(grid, path, error)) << error;
    const std::string before = folder.read("sheet.sss");
    {
        NoRename full;
        grid.setData(1, 1, "changed");
        EXPECT_FALSE(saveDocument(grid, path, error));
        EXPECT_THAT(error, HasSubstr("sheet.sss"));
    }
    EXPECT_EQ(folder.read("sheet.sss"), before);
    const std::string damaged = folder.write("bad.sss", before.substr(0, before.size() / 2));
    EXPECT_FALSE(loadInto(grid, damaged, error));
    EXPECT_THAT(error, HasSubstr("bad.sss:"));
    EXPECT_EQ(grid.text(1, 1, Reading::value), "changed");
    EXPECT_TRUE(loadInto(grid, path, error));
    EXPECT_EQ(writeDocument(grid), before);
}

TEST(Document, CarriesThePicturesThatItsCellsShow) {
    Grid grid;
    grid.setCols(2);
    grid.setRows(2);
    const std::string bytes("BM\0\xFF any bytes", 14);
    const std::string name = grid.keepPicture(bytes);
    EXPECT_EQ(grid.keepPicture(bytes), name) << "equal pictures are kept once";
    const std::string unused = grid.keepPicture("shown by no cell");
    control::CellType type;
    type.kind = control::CellKind::picture;
    type.text = name;
    grid.setType(1, 1, type);
    const std::string text = control::writeDocument(grid);
    std::string error;
    const auto document = control::readDocument(text, "a", error);
    ASSERT_TRUE(document) << error;
    Grid read;
    read.restore(document);
    ASSERT_NE(read.embeddedImage(read.format(1, 1).type.text), nullptr);
    EXPECT_EQ(*read.embeddedImage(name), bytes);
    EXPECT_EQ(read.embeddedImage(unused), nullptr);
    EXPECT_EQ(control::writeDocument(read), text);

    const auto with = [](const std::string& line) {
        return "vormant-sheet 1\nsize 1 1\n" + line + "\ncells\nend 0\n";
    };
    for (const char* bad : {"picture", "picture a.bmp QUJD", "picture #1 QUJ", "picture #1 Q!==",
                            "picture #1 QUJD\npicture #1 QUJD", "picture #G QUJD"}) {
        EXPECT_FALSE(control::readDocument(with(bad), "a", error)) << bad;
        EXPECT_THAT(error, HasSubstr("picture")) << bad;
    }
}

}  // namespace
