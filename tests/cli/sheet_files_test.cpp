// Documents shown and converted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/program.h"
#include "cli/zip_entry.h"

namespace {

using testing::HasSubstr;
using testing::Not;

const std::string document =
    "vormant-sheet 1\nsize 4 9\n"
    "look 1 number decimals=2\n"
    "cells\n"
    "A1 \"Section\nB1 \"Mass\nC1 \"Total\n"
    "A2 \"IPE 200 \xC3\x9C\nB2 @1 22.4\nC2 =B2*3\t67.2\n"
    "A4 \"a text that runs on\nB4 @1 -0.5\n"
    "C5 =1/0\t#DIV/0!\nC6 =NOSUCH(1)\t#NAME?\nB7 \"a,\"b\"\\nc\n"
    "end 11\n";

TEST(SheetShow, PrintsAnAlignedTable) {
    const program::Folder folder;
    const auto file = folder.write("a.tws", document);
    const auto result = program::run({"sheet", "show", file});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "   A                    B      C\n"
              "1  Section              Mass   Total\n"
              "2  IPE 200 \xC3\x9C            22.40  67.2\n"
              "4  a text that runs on  -0.50\n"
              "5                              #DIV/0!\n"
              "6                              #NAME?\n"
              "7                       a,\"b\" c\n");
    EXPECT_THAT(
        program::run({"sheet", "show", "--formulas", file}).out,
        testing::AllOf(HasSubstr("=B2*3\n"), HasSubstr("=NOSUCH(1)\n"), Not(HasSubstr("67.2"))));
}

TEST(SheetConvert, CsvIsReadByWhatItsFieldsLookLike) {
    const program::Folder folder;
    const auto csv = folder.write(
        "a.csv", "name,12,-1.5e3,\"=IF(B1>1,\"\"x,y\"\",0)\"\n\n\"two\nlines\",,TRUE,=B1*2\n");
    const auto result = program::run({"sheet", "convert", csv, folder / "a.tws"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(folder.read("a.tws"),
                HasSubstr("size 4 3\ncells\n"
                          "A1 \"name\nB1 12\nC1 -1500\nD1 =IF(B1>1,\"x,y\",0)\t\"x,y\n"
                          "A3 \"two\\nlines\nC3 \"TRUE\nD3 =B1*2\t24\n"));
    // And back: the same fields, numbers written the usual way.
    EXPECT_EQ(program::run({"sheet", "convert", folder / "a.tws", folder / "b.csv"}).exitCode, 0);
    EXPECT_EQ(folder.read("b.csv"),
              "name,12,-1500,\"=IF(B1>1,\"\"x,y\"\",0)\"\n,,,\n\"two\nlines\",,TRUE,=B1*2\n");
}

TEST(SheetConvert, TextsThatReadLikeFormulasStayTextsThroughCsv) {
    const program::Folder folder;
    const std::string document =
        "vormant-sheet 1\nsize 1 10\ncells\nA1 \"=1+1\nA2 \"'=1+1\nA3 \"''=\nA4 \"=\nA5 \"'tis\n"
        "A6 \"+1 x\nA7 \"-x\nA8 \"@x\nA9 \"\\tx\nA10 =1+1\t2\nend 10\n";
    const auto file = folder.write("a.tws", document);
    ASSERT_EQ(program::run({"sheet", "convert", file, folder / "a.csv"}).exitCode, 0);
    EXPECT_EQ(folder.read("a.csv"), "'=1+1\n''=1+1\n'''=\n'=\n'tis\n+1 x\n-x\n@x\n\tx\n=1+1\n");
    ASSERT_EQ(program::run({"sheet", "convert", folder / "a.csv", folder / "b.tws"}).exitCode, 0);
    EXPECT_EQ(folder.read("b.tws"), document);
}

/// What the workbook of a document holds; `cells` come after its lines, as many as there are.
std::string workbookOf(const std::string& lines, const std::string& cells) {
    const program::Folder folder;
    const auto count = std::count(cells.begin(), cells.end(), '\n');
    const auto file = folder.write("a.tws", "vormant-sheet 1\n" + lines + "cells\n" + cells +
                                                "end " + std::to_string(count) + "\n");
    const auto result = program::run({"sheet", "convert", file, folder / "a.XLSX"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return folder.read("a.XLSX");
}

TEST(SheetConvert, WorkbooksKeepFormulasResultsAndFormats) {
    const std::string archive =
        workbookOf("size 3 3\nlook 1 number decimals=3\nspan B3 2 1\n",
                   "A1 @1 2.5\nB1 @1 =A1*2\t5\nC1 =IFS(A1>2,\"a<b\")\t\"a<b\nA2 \"\xC3\x9C\n"
                   "B2 =STDEV.S(A1:B1)&ERROR.TYPE(C2)\t\"x\nC2 =1/0\t#DIV/0!\nB3 \"wide\n");
    const std::string sheet = zipEntry(archive, "xl/worksheets/sheet1.xml");
    EXPECT_THAT(sheet, HasSubstr("<v>2.5</v>"));
    EXPECT_THAT(sheet, HasSubstr("<f>A1*2</f><v>5</v>"));
    EXPECT_THAT(sheet, HasSubstr("<f>_xlfn.IFS(A1&gt;2,\"a&lt;b\")</f><v>a&lt;b</v>"));
    EXPECT_THAT(sheet, HasSubstr("<f>_xlfn.STDEV.S(A1:B1)&amp;ERROR.TYPE(C2)</f>"));
    EXPECT_THAT(sheet, HasSubstr("<f>1/0</f><v>#DIV/0!</v>"));
    EXPECT_THAT(sheet, HasSubstr("<mergeCell ref=\"B3:C3\"/>"));
    EXPECT_THAT(zipEntry(archive, "xl/sharedStrings.xml"), HasSubstr("\xC3\x9C"));
    EXPECT_THAT(zipEntry(archive, "xl/styles.xml"), HasSubstr("formatCode=\"0.000\""));
}

TEST(SheetConvert, WorkbooksKeepSizesOfHiddenLinesAndThoseOfAllOthers) {
    const std::string sheet = zipEntry(
        workbookOf("size 4 4\ncolwidth all 140\nrowheight all 40\ncolwidth B 70\nrowheight 2 30\n"
                   "hidecol B\nhidecol C\nhiderow 2\n",
                   "A1 1\n"),
        "xl/worksheets/sheet1.xml");
    for (const char* part :
         {"<sheetFormatPr defaultColWidth=\"20\" defaultRowHeight=\"30\" customHeight=\"1\"/>",
          "<col min=\"2\" max=\"2\" width=\"10\" hidden=\"1\"",
          "<col min=\"3\" max=\"3\" width=\"20\" hidden=\"1\"",
          "<row r=\"2\" ht=\"22.5\" customHeight=\"1\" hidden=\"1\">"})
        EXPECT_THAT(sheet, HasSubstr(part));
}

TEST(SheetConvert, FormulasInTextCellsStayFormulasWhenTheyAreEdited) {
    const std::string styles =
        zipEntry(workbookOf("size 1 1\nlook 1 edit\n", "A1 @1 =1+1\t2\n"), "xl/styles.xml");
    EXPECT_THAT(styles, Not(HasSubstr("numFmtId=\"49\"")));
    EXPECT_THAT(zipEntry(workbookOf("size 1 1\nlook 1 edit\n", "A1 @1 \"007\n"), "xl/styles.xml"),
                HasSubstr("numFmtId=\"49\""));
}

TEST(SheetConvert, WorkbooksAreWellFormedAndExactWhateverTheyHold) {
    std::string controls;
    for (char c = 1; c < ' '; ++c)
        if (c != '\t' && c != '\n' && c != '\r') controls += c;
    const std::string archive =
        workbookOf("size 5 5\nnote A1 \"a\x07<&\n",
                   "A1 \"" + controls +
                       "\nB1 =CHAR(7)&\"]]>\"\t\"\nC1 0.30000000000000004\nD1 =1>0\tTRUE\n"
                       "A2 \"_x0041_\nB2 #N/A\nC2 123456789012345680\n");
    const std::string sheet = zipEntry(archive, "xl/worksheets/sheet1.xml");
    const std::string texts = zipEntry(archive, "xl/sharedStrings.xml");
    const std::string notes = zipEntry(archive, "xl/comments1.xml");
    for (const std::string& part : {sheet, texts, notes})
        for (const char c : part) ASSERT_TRUE(c == '\n' || c < 0 || c >= ' ') << int{c};
    EXPECT_THAT(sheet, HasSubstr("<v>_x0007_]]&gt;</v>"));
    EXPECT_THAT(sheet, HasSubstr("<v>0.30000000000000004</v>"));
    EXPECT_THAT(sheet, HasSubstr("t=\"b\"><f>1&gt;0</f><v>1</v>"));
    EXPECT_THAT(sheet, HasSubstr("t=\"e\"><v>#N/A</v>"));
    EXPECT_THAT(sheet, HasSubstr("<v>123456789012345680</v>"));
    EXPECT_THAT(texts, HasSubstr("_x0001__x0002_"));
    EXPECT_THAT(texts, HasSubstr("_x005F_x0041_"));
    EXPECT_THAT(notes, HasSubstr("a_x0007_&lt;&amp;"));
}

TEST(SheetConvert, WorkbooksCarryPicturesOfEveryKind) {
    const program::Folder folder;  // of the pictures
    std::string bitmap(58, '\0');  // one pixel of 24 bits
    for (const auto& [at, value] : {std::pair(0, 'B'),
                                    {1, 'M'},
                                    {2, 58},
                                    {10, 54},
                                    {14, 40},
                                    {18, 1},
                                    {22, 1},
                                    {26, 1},
                                    {28, 24},
                                    {34, 4}})
        bitmap[static_cast<size_t>(at)] = static_cast<char>(value);
    const struct {
        std::string name, bytes, extent;  // of 9525 units to the pixel
    } pictures[] = {
        {"image1.bmp", bitmap, "cx=\"9525\" cy=\"9525\""},
        {"image2.png", std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\3\0\0\0\2", 24),
         "cx=\"28575\" cy=\"19050\""},
        {"image3.jpeg", std::string("\xFF\xD8\xFF\xC0\0\x0B\x08\0\4\0\5\1\1\x11\0", 15),
         "cx=\"47625\" cy=\"38100\""},
        {"image4.gif", std::string("GIF87a\7\0\6\0\0\0\0", 13), "cx=\"66675\" cy=\"57150\""},
    };
    std::string formats, cells;
    for (size_t i = 0; i < std::size(pictures); ++i) {
        const std::string number = std::to_string(i + 1);
        formats += "look " + number + " picture text=\"" +
                   folder.write("from" + number, pictures[i].bytes) + "\"\n";
        cells += "A" + number + " @" + number + " \"\n";
    }
    const std::string archive = workbookOf("size 1 4\n" + formats, cells);
    const std::string drawing = zipEntry(archive, "xl/drawings/drawing1.xml");
    const std::string types = zipEntry(archive, "[Content_Types].xml");
    for (const auto& [name, bytes, extent] : pictures) {
        EXPECT_EQ(zipEntry(archive, "xl/media/" + name), bytes) << name;
        EXPECT_THAT(drawing, HasSubstr(extent)) << name;
        const std::string extension = name.substr(name.find('.') + 1);
        EXPECT_THAT(types, HasSubstr("\"image/" + extension + "\"")) << name;
    }
}

TEST(SheetConvert, WhatAWorkbookCannotHoldIsNamed) {
    const struct {
        std::string cell, message;
    } cases[] = {{"B1 \"" + std::string(32768, 'x'), "cell B1: its text is longer than 32767"},
                 {"C2 =LEN(\"" + std::string(8190, 'x') + "\")\t8190",
                  "cell C2: its formula is longer than 8192"}};
    for (const auto& each : cases) {
        const program::Folder folder;
        const auto file =
            folder.write("a.tws", "vormant-sheet 1\nsize 3 3\ncells\n" + each.cell + "\nend 1\n");
        folder.write("a.xlsx", "old");
        const auto result = program::run({"sheet", "convert", file, folder / "a.xlsx"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr(each.message));
        EXPECT_EQ(folder.read("a.xlsx"), "old");
    }
}

TEST(SheetConvert, WhatCannotBeReadLeavesTheTargetAlone) {
    const struct {
        std::string name;
        std::string content;
        std::string message;
    } cases[] = {
        {"a.csv", "1,2\n3,\"=ROUND(1\"\n", "a.csv:2: cell B2: the formula =ROUND(1 is refused"},
        {"a.csv", "=NOSUCH(1)\n", "a.csv:1: cell A1"},
        {"a.csv", "\xE4\xB8\xAD\n", "a.csv:1: cell A1: character U+4E2D"},
        {"a.csv", "\xFF\n", "a.csv:1: cell A1: byte 0xFF"},
        {"a.csv", "x\n\"y\n", "a.csv:2: a quoted field has no end"},
        {"a.csv", std::string("x\0y", 3), "a.csv:1: cell A1: a zero byte"},
        {"a.csv", std::string(16384, ','), "a.csv:1: more than 16384 fields"},
        {"a.tws", "", "a.tws"},
        {"a.tws", document.substr(0, document.size() - 20), "a.tws"},
        {"a.tws", "vormant-sheet 1\nsize 2000000000 2000000000\ncells\nend 0\n", "a.tws:2:"},
        {"a.tws", std::string("\x7F\x45\x4C\x46\0\1", 6), "a.tws:1:"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.message);
        const program::Folder folder;
        const auto from = folder.write(row.name, row.content);
        for (const std::string to : {"to.tws", "to.csv", "to.xlsx"}) {
            folder.write(to, "old");
            const auto result = program::run({"sheet", "convert", from, folder / to});
            EXPECT_EQ(result.exitCode, 1);
            EXPECT_THAT(result.err, testing::StartsWith("vormant: "));
            EXPECT_THAT(result.err, HasSubstr(row.message));
            EXPECT_EQ(folder.read(to), "old");
        }
        EXPECT_EQ(folder.names().size(), 4u) << "something was left behind";
    }
}

TEST(SheetShow, ResultsAreThoseOfTheValuesAsTheyAre) {
    const program::Folder folder;
    const auto file = folder.write("a.tws",
                                   "vormant-sheet 1\nsize 2 2\ncells\n"
                                   "A1 3\nB1 =A1*2\nA2 =B1+1\t99\nend 3\n");
    EXPECT_EQ(program::run({"sheet", "show", file}).out, "   A  B\n1  3  6\n2  7\n");
}

TEST(SheetConvert, SparseSheetsAreNotBlownUp) {
    const program::Folder folder;
    const auto file = folder.write("a.tws",
                                   "vormant-sheet 1\nsize 16384 1048576\ncells\n"
                                   "A1 1\nXFD1048576 2\nend 2\n");
    const auto csv = program::run({"sheet", "convert", file, folder / "a.csv"});
    EXPECT_EQ(csv.exitCode, 1);
    EXPECT_THAT(csv.err, HasSubstr("XFD1048576, too far for CSV"));
    EXPECT_EQ(program::run({"sheet", "convert", file, folder / "a.xlsx"}).exitCode, 0);
    EXPECT_EQ(program::run({"sheet", "show", file}).out,
              "         A  XFD\n      1  1\n1048576       2\n");

    const auto spanned = folder.write("b.tws",
                                      "vormant-sheet 1\nsize 16384 1048576\nspan A1 16000 100000\n"
                                      "cells\nA1 1\nend 1\n");
    const auto workbook = program::run({"sheet", "convert", spanned, folder / "b.xlsx"});
    EXPECT_EQ(workbook.exitCode, 1);
    EXPECT_THAT(workbook.err, HasSubstr("b.xlsx: the spans hold too many cells"));
}

TEST(SheetConvert, AFolderThatCannotBeWrittenIsNamed) {
    const program::Folder folder;
    const auto file = folder.write("a.tws", document);
    for (const std::string to : {"no/a.csv", "no/a.xlsx", "no/b.tws"}) {
        const auto result = program::run({"sheet", "convert", file, folder / to});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr(folder / to));
    }
}

}  // namespace
