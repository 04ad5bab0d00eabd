// The bill in its sheet: growing and trimming, kinds of cells, subtotals, variables, saving.
#include "bill/tw_ss_bill_output.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "bill/bill_pictures.h"
#include "bill/bill_title.h"
#include "bill/feed_bill.h"
#include "core_api/settings.h"
#include "platform/files.h"
#include "platform/host/host.h"
#include "platform/window/bitmap.h"
#include "platform/window/window_system.h"
#include "spread/tw_sheet_settings.h"
#include "support/printed.h"
#include "support/temporary_folder.h"

namespace {

using control::Reading;
using testing::HasSubstr;

class BillOutput : public testing::Test {
  protected:
    BillOutput() {
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        m_before = gSettings;
        gSettings.setVorDir(folder.inside());
    }
    ~BillOutput() override {
        gSettings = m_before;
        ::unsetenv("XDG_CONFIG_HOME");
    }
    void start(const Vor_StringArray& columns, const AcArray<int>& kinds,
               const char* name = "Frame 12.sss") {
        path = folder.inside(name);
        ASSERT_EQ(output.init(path, columns, {}, kinds, "Bill", {"Client"}, {"Smith"}), Acad::eOk);
        ASSERT_EQ(output.onStartFeed(), Acad::eOk);
    }
    std::string cell(int col, int row, Reading reading = Reading::value) {
        return output.sheet()->grid().text(col, row, reading);
    }
    const control::CellFormat& format(int col, int row) {
        return output.sheet()->grid().format(col, row);
    }

    TemporaryFolder folder;
    Vor_String path;
    TwSSBillOutput output;

  private:
    Vor_Settings m_before;
};

TEST_F(BillOutput, SheetsGrowByAHundredRowsAndAreTrimmedToTheLastOne) {
    start({"Pos", "Name"}, {1, 3});
    std::vector<std::pair<int, int>> growth;
    for (int row = 1; row <= 250; ++row) {
        const int before = output.sheet()->nrRows();
        output.onAddRow({std::to_string(row), "Plate"});
        if (const int rows = output.sheet()->nrRows(); rows != before)
            growth.emplace_back(row, rows);
    }
    EXPECT_THAT(growth,
                testing::ElementsAre(std::pair(12, 112), std::pair(113, 213), std::pair(214, 314)));
    EXPECT_EQ(output.onEndFeed(), Acad::eOk);
    EXPECT_EQ(output.sheet()->nrRows(), 250);
    EXPECT_EQ(cell(1, 250), "250");
    EXPECT_TRUE(output.wasSaved());
}

TEST_F(BillOutput, LongerRowsWidenTheSheet) {
    start({"Pos", "Mass"}, {1, 2});
    output.onAddRow({"7", "12.345", "007"});
    output.onAddRow({"8", ""});
    EXPECT_EQ(output.sheet()->nrCols(), 3);
    EXPECT_EQ(cell(3, 1), "007");
    EXPECT_EQ(format(3, 1).type, control::editType(100)) << "no kind, so the sheet's own";
    EXPECT_EQ(format(2, 2).type.most, 99999999999999.0);
    EXPECT_EQ(cell(2, 2), "");
}

TEST_F(BillOutput, EachKindRoundsOrKeepsWhatItIsGiven) {
    const std::string longText(300, 'x');
    const struct {
        int kind;
        std::string given, value, shown;
    } cases[] = {
        // Halves away from zero, by the digits that were given.
        {1, "2.5", "3", "3"},
        {1, "-2.5", "-3", "-3"},
        {1, "2.4999", "2", "2"},
        {1, "-0.4", "0", "0"},
        {1, "1e3", "1000", "1000"},
        {1, " +7 ", "7", "7"},
        {1, "99999999999999.4", "99999999999999", "99999999999999"},
        {2, "2.45", "2.5", "2.5"},
        {2, "-2.45", "-2.5", "-2.5"},
        {2, "2.4499996", "2.4", "2.4"},
        {2, "1.15", "1.2", "1.2"},
        {2, "8.35", "8.4", "8.4"},
        {2, "123456789012.25", "123456789012.3", "123456789012.3"},
        {2, "7", "7", "7.0"},
        {2, "-0.04", "0", "0.0"},
        // What is no number, or too large, is none of these cells.
        {1, "100000000000000", "", ""},
        {1, "7,5", "", ""},
        {2, "x", "", ""},
        // Texts stay as they are, and so do all other kinds.
        {3, "007", "007", "007"},
        {3, "2.50", "2.50", "2.50"},
        {3, "=1+1", "=1+1", "=1+1"},
        {3, longText, longText, longText},
        {0, "2.450", "2.450", "2.450"},
        {4, "2.45", "2.45", "2.45"},
        {-1, "007", "007", "007"},
    };
    for (const auto& each : cases) {
        start({"Column"}, {each.kind});
        output.onAddRow({each.given});
        EXPECT_EQ(cell(1, 1), each.value) << each.kind << " given " << each.given;
        EXPECT_EQ(cell(1, 1, Reading::data), each.shown) << each.kind << " given " << each.given;
        const control::CellType& type = format(1, 1).type;
        if (each.kind == 1 || each.kind == 2) {
            EXPECT_EQ(type.decimals, each.kind - 1) << each.given;
            EXPECT_TRUE(type.isNumber());
        } else {
            EXPECT_EQ(type, control::editType(each.kind == 3 ? 200 : 100)) << each.kind;
        }
    }
}

TEST_F(BillOutput, SubtotalsAreFramedAndColouredWhereTheySaySomething) {
    start({"Name", "Count", "Mass"}, {3, 1, 2});
    for (int row = 1; row <= 10; ++row) output.onAddRow({"Plate", "1", "2.5"});
    output.onAddSubTotals({"Subtotal", "", "25"}, {}, false, 10);
    output.onAddRow({"Bolt", "1", "0.2"});  // the sheet grows behind the subtotal
    for (const int col : {1, 3}) {
        EXPECT_EQ(format(col, 11).background, control::rgb(164, 208, 255)) << col;
        EXPECT_EQ(format(col, 11).borderSides, 15) << col;
        EXPECT_EQ(format(col, 11).borderStyle, 1) << col;
    }
    for (const auto& [col, row] : {std::pair{2, 11}, {1, 10}, {1, 12}, {3, 12}, {3, 40}}) {
        EXPECT_EQ(format(col, row).background, control::automatic) << col << ' ' << row;
        EXPECT_EQ(format(col, row).borderSides, 0) << col << ' ' << row;
    }
}

TEST_F(BillOutput, RowsComeWithoutTheFramesAndSpansThatWereThere) {
    start({"Name", "Count", "Free"}, {3, 1});
    Vor_Spread& sheet = *output.sheet();
    sheet.setBorder({1, 1, 3, 2}, 31, 1);
    sheet.addCellSpan({1, 1, 2, 1});
    output.onAddRow({"Plate", "1"});
    for (const int col : {1, 2}) {
        EXPECT_EQ(format(col, 1).borderStyle, 0) << col;
        EXPECT_EQ(sheet.grid().spanAt(col, 1), nullptr) << col;
    }
    EXPECT_EQ(format(3, 1).borderStyle, 1) << "a column without a kind is left alone";
    EXPECT_EQ(format(1, 2).borderStyle, 1) << "not yet fed";
}

TEST_F(BillOutput, TextsInColumnsOfNumbersLeaveANoteAndAreReported) {
    Printed printed;
    const HostScope scope(printed);
    start({"Name", "Count", "Mass"}, {3, 1, 2});
    output.onAddRow({"7,5", "7,5", " "});
    output.onAddRow({"", "8", "1e15"});
    output.onAddSubTotals({"Total", "x", "y"}, {}, true, 2);
    output.onEndFeed();
    EXPECT_EQ(cell(2, 1), "");
    const control::Grid& grid = output.sheet()->grid();
    EXPECT_EQ(grid.note(1, 1), "");
    EXPECT_EQ(grid.note(2, 1), "7,5");
    EXPECT_EQ(grid.note(3, 1), "");
    EXPECT_EQ(grid.note(2, 2), "");
    EXPECT_EQ(grid.note(3, 2), "1e15");
    EXPECT_EQ(grid.note(3, 3), "y");
    EXPECT_THAT(printed.text,
                testing::AllOf(HasSubstr("row 1, column B: \"7,5\" is no number"),
                               HasSubstr("row 2, column C: \"1e15\""),
                               HasSubstr("row 3, column B: \"x\""), HasSubstr("1 more text")));
    printed.text.clear();
    start({"Count"}, {1});
    output.onAddRow({"1"});
    output.onEndFeed();
    EXPECT_EQ(printed.text, "") << "another bill begins anew";
}

TEST_F(BillOutput, VariablesStandBeforeTheCallersAndTheSheetIsSavedWithThem) {
    start({"Name"}, {3});
    output.onAddRow({"A plate with a name that is wider than its column"});
    output.onEndFeed();
    Vor_Spread loaded;
    loaded.attachHidden();
    ASSERT_TRUE(loaded.loadFromFile(path)) << loaded.lastError();
    TwSheetSettings settings;
    settings.readFromSheet(loaded);
    EXPECT_EQ(settings.varNames, (Vor_StringArray{"Date", "Title", "BillFilename", "Client"}));
    ASSERT_EQ(settings.varValues.length(), 4);
    EXPECT_EQ(settings.varValues[1].str(), "Frame 12");
    EXPECT_EQ(settings.varValues[2], path);
    EXPECT_EQ(settings.varValues[3].str(), "Smith");
    const std::string date = settings.varValues[0].str();
    EXPECT_THAT(date, testing::MatchesRegex(
                          "[0-9][0-9] [A-Z][a-z]+, 20[0-9][0-9] .[0-9][0-9]:[0-9][0-9]."));
    gSettings.current().language = Language::french;
    ::setenv("SOURCE_DATE_EPOCH", "0", 1);
    start({"Nom"}, {3});
    output.setNames("Portique", "Autre.pdf");
    output.onEndFeed();
    ::unsetenv("SOURCE_DATE_EPOCH");
    gSettings.current().language = Language::english;
    settings.readFromSheet(*output.sheet());
    EXPECT_EQ(settings.varValues[0].str(), "01 janvier, 1970 (00:00)");
    EXPECT_EQ(settings.varValues[1].str(), "Portique");
    EXPECT_EQ(settings.varValues[2].str(), "Autre.pdf");
    EXPECT_EQ(loaded.colWidthInPixels(1), loaded.grid().fitWidth(1));
    EXPECT_GT(loaded.colWidthInPixels(1), 200);
    EXPECT_EQ(loaded.grid().format(1, Vor_Spread::headerIndex).type.kind,
              control::CellKind::staticText);
    EXPECT_EQ(loaded.grid().sides().gridType, 7);
}

TEST_F(BillOutput, FontsComeFromTheSettingsFile) {
    TwSheetSettings settings;
    settings.defaultFont = "Courier";
    settings.defaultTextHeight = 20;
    std::string error;
    ASSERT_TRUE(settings.writeToFile("Bill", error)) << error;
    start({"Name"}, {3});
    output.onAddRow({"x"});
    EXPECT_EQ(format(1, 1).font.name, "Courier");
    EXPECT_EQ(format(1, Vor_Spread::headerIndex).font.weight, 700);
    EXPECT_EQ(output.sheet()->fontHeight(), 20);
    EXPECT_GT(output.sheet()->rowHeightInPixels(1), 20);
}

TEST_F(BillOutput, AnotherBillInTheSameWindowStartsEmpty) {
    start({"Name", "Count"}, {3, 1});
    for (int row = 0; row < 20; ++row) output.onAddRow({"Old", "1"});
    output.onEndFeed();
    TwSSBillOutput copy = output;
    ASSERT_EQ(copy.init(folder.inside("Next.sss"), {"Only"}, {}, {3}, {}, {}, {}), Acad::eOk);
    EXPECT_EQ(copy.sheet(), output.sheet()) << "a copy writes into the same window";
    copy.onAddRow({"New"});
    copy.onEndFeed();
    EXPECT_EQ(copy.sheet()->nrRows(), 1);
    EXPECT_EQ(copy.sheet()->nrCols(), 1);
    EXPECT_EQ(cell(1, 1), "New");
}

TEST_F(BillOutput, WithoutAWindowRowsAreDroppedAndTheEndSaysSo) {
    output.onStartFeed();
    output.onAddRow({"lost"});
    output.onAddSubTotals({"lost"}, {}, true, 1);
    EXPECT_EQ(output.onEndFeed(), Acad::eInvalidInput);
}

TEST_F(BillOutput, AFileThatCannotBeWrittenIsToldOf) {
    Printed printed;
    const HostScope scope(printed);
    start({"Name"}, {3}, "no such folder\\Bill.sss");
    output.onAddRow({"x"});
    EXPECT_EQ(output.onEndFeed(), Acad::eOk);
    EXPECT_FALSE(output.wasSaved());
    EXPECT_THAT(printed.text, HasSubstr("Bill.sss"));
}

// --- pictures -----------------------------------------------------------------------------------

Vor_Bill pictureBill() {
    Vor_Bill bill;
    bill.columns = {{"Name"}, {"Section"}, {"Length"}};
    Vor_BillPart plate;
    plate.name = "Plate";
    plate.section = "PL 10";
    plate.length = 200;
    plate.width = 100;
    plate.thickness = 10;
    bill.rows.push_back({{"Plate", "PL 10", "200"}, plate});
    bill.rows.push_back({{"Unknown", "", ""}, std::nullopt});
    plate.width = 0;
    bill.rows.push_back({{"Incomplete", "PL 10", "200"}, plate});
    return bill;
}

TEST_F(BillOutput, PicturesStandBelowTheirRowsAndGoWithTheSheet) {
    const TemporaryFolder temporary;
    ::setenv("TMPDIR", temporary.path().c_str(), 1);
    Vor_Bill bill = pictureBill();
    AcTransaction transaction;
    path = folder.inside("Pictures.sss");
    output.init(path, bill.columnNames(), {}, {3, 3, 1}, {}, {}, {});
    output.setVars(-1, 90, 0, true, true, &bill, &transaction);
    bool hadFiles = false;
    const auto peep = [&](int, int) { return hadFiles = temporary.fileCount() == 1, true; };
    ASSERT_EQ(feedBill(bill, output, peep), BillFeed::done);
    EXPECT_TRUE(hadFiles);
    EXPECT_EQ(temporary.fileCount(), 0) << "the files of the pictures are gone";
    const control::Grid& grid = output.sheet()->grid();
    ASSERT_EQ(grid.rows(), 4) << "one picture, below the row of the plate";
    EXPECT_EQ(grid.rowHeight(2), 90);
    EXPECT_EQ(format(2, 2).type.kind, control::CellKind::picture);
    ASSERT_NE(grid.spanAt(3, 2), nullptr);
    EXPECT_EQ(*grid.spanAt(3, 2), (control::Span{2, 2, 2, 1}));
    EXPECT_EQ(format(1, 2).type.picture, 251);
    EXPECT_EQ(format(1, 2).borderStyle, 6);
    EXPECT_EQ(cell(1, 3), "Unknown");
    EXPECT_EQ(cell(1, 4), "Incomplete");

    Vor_Spread loaded;
    loaded.attachHidden();
    ASSERT_TRUE(loaded.loadFromFile(path)) << loaded.lastError();
    const std::string* kept = loaded.grid().embeddedImage(loaded.grid().format(2, 2).type.text);
    ASSERT_NE(kept, nullptr);
    std::string error;
    const auto picture = decodeBitmap(*kept, error);
    ASSERT_TRUE(picture) << error;
    EXPECT_EQ(picture->height(), 90);

    EXPECT_EQ(feedBill(bill, output, [](int done, int) { return done == 0; }), BillFeed::cancelled);
    EXPECT_EQ(temporary.fileCount(), 0) << "also when the feed was cancelled";
    ::unsetenv("TMPDIR");
}

TEST_F(BillOutput, PiecesThatLookAlikeShareTheirPictureAndNoOthersDo) {
    Vor_Bill bill = pictureBill();
    bill.rows.resize(1);
    const BillRow plate = bill.rows.front();
    const auto add = [&](auto change) {
        bill.rows.push_back(plate);
        change(*bill.rows.back().piece);
    };
    add([](Vor_BillPart& piece) { piece.count = 7; });
    add([](Vor_BillPart& piece) { piece.mass = 3; });
    add([](Vor_BillPart& piece) { piece.length = 210; });
    add([](Vor_BillPart& piece) { piece.width = 110; });
    add([](Vor_BillPart& piece) { piece.thickness = 25; });
    add([](Vor_BillPart& piece) { piece.name = "Other"; });
    add([](Vor_BillPart& piece) { piece.section = "PL 11"; });
    AcTransaction transaction;
    output.init(folder.inside("Alike.sss"), bill.columnNames(), {}, {}, {}, {}, {});
    output.setVars(-1, 0, 0, true, true, &bill, &transaction);
    ASSERT_EQ(feedBill(bill, output), BillFeed::done);
    std::vector<std::string> pictures;
    for (int row = 2; row <= 16; row += 2) pictures.push_back(format(2, row).type.text);
    EXPECT_EQ(pictures[0], pictures[1]);
    EXPECT_EQ(pictures[0], pictures[2]);
    EXPECT_EQ(std::set(pictures.begin(), pictures.end()).size(), 6U);
}

TEST_F(BillOutput, OneColumnHasItsPicturesToo) {
    Vor_Bill bill = pictureBill();
    bill.columns.resize(1);
    for (BillRow& row : bill.rows) row.cells.setLength(1);
    AcTransaction transaction;
    output.init(folder.inside("One.sss"), bill.columnNames(), {}, {3}, {}, {}, {});
    output.setVars(-1, 90, 200, true, true, &bill, &transaction);
    ASSERT_EQ(feedBill(bill, output), BillFeed::done);
    ASSERT_EQ(output.sheet()->nrRows(), 4);
    EXPECT_EQ(format(1, 2).type.kind, control::CellKind::picture);
    EXPECT_EQ(output.sheet()->colWidthInPixels(1), 200) << "nothing of it is cut";
}

TEST_F(BillOutput, ProgramsAreToldOfPicturesThatWereLost) {
    Vor_Bill bill = pictureBill();
    AcTransaction transaction;
    for (const bool byProgram : {false, true}) {
        TwSSBillOutput own;
        if (byProgram) own.leaveFailuresToCaller(HeaderFiles::whereUsable);
        const Vor_String file = folder.inside(byProgram ? "b.sss" : "a.sss");
        own.init(file, bill.columnNames(), {}, {}, {}, {}, {});
        own.setVars(-1, 90, 0, true, true, &bill, &transaction);
        ::setenv("TMPDIR", "/no such folder", 1);
        ASSERT_EQ(feedBill(bill, own), BillFeed::done);
        ::unsetenv("TMPDIR");
        EXPECT_EQ(own.wasSaved(), !byProgram) << own.saveFailure();
        EXPECT_EQ(files::exists(file), !byProgram);
    }
}

TEST_F(BillOutput, ASubtotalOrPictureBeforeNewRowsDoesNotShowInThem) {
    Vor_Bill bill = pictureBill();
    bill.rows.resize(1);
    bill.rows.resize(6, bill.rows.front());
    AcTransaction transaction;
    output.init(folder.inside("Grown.sss"), bill.columnNames(), {}, {}, {}, {}, {});
    output.setVars(-1, 0, 0, true, true, &bill, &transaction);
    ASSERT_EQ(feedBill(bill, output), BillFeed::done);
    ASSERT_EQ(output.sheet()->nrRows(), 12) << "the sheet grew for the last picture";
    EXPECT_EQ(format(2, 11).type, control::editType(100)) << "columns without a kind";
    EXPECT_EQ(format(2, 12).type.kind, control::CellKind::picture);
}

TEST_F(BillOutput, ImagesAreMadeOfKnownPiecesInsideATransactionAlone) {
    Vor_Bill bill = pictureBill();
    AcTransaction open, over;
    over.commit();
    const Vor_String file = folder.inside("image.bmp");
    const auto made = [&](int row, int height, const Vor_Bill* of, AcTransaction* transaction) {
        int width = 0;
        bool withSizes = true, withName = false;
        const bool isOk = createImage(row, height, width, withSizes, withName, of, transaction,
                                      file) == Acad::eOk;
        EXPECT_EQ(isOk, files::exists(file));
        std::string error;
        files::removeFile(file, error);
        return isOk;
    };
    EXPECT_FALSE(made(0, 0, &bill, &open)) << "nothing is ready for pictures";
    EXPECT_TRUE(nextPictureFile().isEmpty());
    ASSERT_EQ(initBMPDialog(220), Acad::eOk);
    EXPECT_TRUE(made(0, 200, &bill, &open));
    EXPECT_FALSE(made(0, 221, &bill, &open)) << "higher than was said";
    EXPECT_FALSE(made(1, 0, &bill, &open)) << "no piece is known";
    EXPECT_FALSE(made(2, 0, &bill, &open)) << "a plate without a width";
    EXPECT_FALSE(made(3, 0, &bill, &open)) << "no such row";
    EXPECT_FALSE(made(-1, 0, &bill, &open)) << "no row is being fed";
    EXPECT_FALSE(made(0, 0, &bill, &over));
    EXPECT_FALSE(made(0, 0, &bill, nullptr));
    EXPECT_FALSE(made(0, 0, nullptr, &open));
    bill.currentRow = 0;
    EXPECT_TRUE(made(-1, 0, &bill, &open));
    closeBMPDialog();
    EXPECT_FALSE(made(0, 0, &bill, &open));
}

TEST(BillTitle, IsTheFilesNameBehindItsMark) {
    const std::pair<const char*, const char*> cases[] = {
        {"C:\\Bills\\Frame 12.sss", "Frame 12"},
        {"A\xBF"
         "B.tws",
         "B"},
        {"x\\1\xBF"
         "2\xBF"
         "C.D.sss",
         "C.D"},
        {"A\xBF.sss", ""},
        {"Plain", "Plain"},
        {"dir\xBF\\Name.sss", "Name"},
    };
    for (const auto& [file, title] : cases) EXPECT_EQ(billTitle(file).str(), title) << file;
}

}  // namespace
