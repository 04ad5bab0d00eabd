// Bills from pieces and from tables, and the order in which they are fed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bill/bill_from_parts.h"
#include "bill/bill_from_table.h"
#include "bill/feed_bill.h"
#include "core_api/settings.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string line(const Vor_StringArray& cells) {
    std::string text;
    for (int i = 0; i < cells.length(); ++i) text += (i == 0 ? "" : "|") + cells[i].str();
    return text;
}

/// What was fed, a line each.
class Recorder : public Vor_ListOutputCallback {
  public:
    ErrorStatus onStartFeed() override {
        lines.emplace_back("start");
        return status;
    }
    ErrorStatus onEndFeed() override {
        lines.emplace_back("end");
        return Acad::eOk;
    }
    void onAddRow(const Vor_StringArray& cells) override { lines.push_back("row " + line(cells)); }
    void onAddSubTotals(const Vor_StringArray& cells, const Vor_StringArray& names, bool isTotal,
                        int rowCount) override {
        lines.push_back((isTotal ? "total " : "subtotal " + line(names) + " ") +
                        std::to_string(rowCount) + " " + line(cells));
    }
    void onAddSeperation() override { lines.emplace_back("-"); }

    ErrorStatus status = Acad::eOk;
    std::vector<std::string> lines;
};

std::vector<std::string> fed(Vor_Bill bill) {
    Recorder recorder;
    EXPECT_EQ(feedBill(bill, recorder), BillFeed::done);
    EXPECT_EQ(bill.currentRow, -1);
    return recorder.lines;
}

Vor_BillPart plate(const char* name, double length, const char* material, int count = 1) {
    Vor_BillPart part;
    part.name = name;
    part.section = "PL 10";
    part.material = material;
    part.length = length;
    part.width = 100;
    part.thickness = 10;
    part.mass = length * 0.00785;
    part.count = count;
    return part;
}

Vor_BillPart bolt(const char* section, int count) {
    Vor_BillPart part;
    part.kind = BillPartKind::bolt;
    part.name = "Bolts";
    part.section = section;
    part.count = count;
    return part;
}

TEST(BillFromParts, EqualPiecesAreCountedTogetherInTheirGroups) {
    PartBillOptions options;
    options.fields = {BillField::position, BillField::name,  BillField::section,
                      BillField::length,   BillField::count, BillField::totalMass};
    const std::vector<Vor_BillPart> parts = {bolt("M20", 4),
                                             plate("Cap", 200, "S235", 2),
                                             plate("Cap", 300.5, "S235"),
                                             plate("Fin", 200, "S235"),
                                             bolt("M8", 2),
                                             bolt("m20", 6)};
    const Vor_Bill bill = billFromParts(parts, options);
    EXPECT_THAT(fed(bill), ElementsAre("start",                             //
                                       "row 1|Cap|PL 10|300.5|1|2.358925",  //
                                       "row 2|Cap, Fin|PL 10|200|3|4.71",
                                       "subtotal Plate 2 |Subtotal Plate|||4|7.068925",  //
                                       "-",                                              //
                                       "row 3|Bolts|M8||2|",                             //
                                       "row 4|Bolts|M20||10|",                           //
                                       "subtotal Bolt 2 |Subtotal Bolt|||12|",           //
                                       "total 4 |Total|||16|7.068925",                   //
                                       "end"));
    EXPECT_EQ(bill.columns[3].kind, BillColumnKind::decimal) << "a length is no whole number";
    EXPECT_EQ(bill.piece(3)->count, 10);
    EXPECT_EQ(bill.piece(4), nullptr);
    EXPECT_EQ(line(bill.columnNames()), "Pos.|Name|Section|Length (mm)|Count|Total mass (kg)");
}

TEST(BillFromParts, GroupsFollowWhatWasAskedFor) {
    PartBillOptions options;
    options.fields = {BillField::material, BillField::count};
    const std::vector<Vor_BillPart> parts = {plate("a", 100, "S355"), plate("b", 200, "S235"),
                                             bolt("M20", 4), plate("c", 100, "S235")};
    const auto groups = [&](BillGrouping grouping) {
        options.grouping = grouping;
        std::string names;
        for (const BillGroup& group : billFromParts(parts, options).groups)
            names += group.name.str() + ":" + std::to_string(group.rowCount) + " ";
        return names;
    };
    EXPECT_EQ(groups(BillGrouping::kind), "Plate:3 Bolt:1 ");
    EXPECT_EQ(groups(BillGrouping::material), ":1 S235:2 S355:1 ");
    EXPECT_EQ(groups(BillGrouping::section), "M20:1 PL 10:3 ");
    EXPECT_EQ(groups(BillGrouping::none), "");
    options.fields = {BillField::name};
    const Vor_Bill bill = billFromParts(parts, options);
    EXPECT_TRUE(bill.totals.isEmpty()) << "nothing to sum up";
    EXPECT_THAT(fed(billFromParts({}, options)), ElementsAre("start", "end"));
}

TEST(BillFromParts, LongListsOfNamesAreCut) {
    std::vector<Vor_BillPart> parts;
    for (int i = 0; i < 100; ++i)
        parts.push_back(plate(("Plate " + std::to_string(i)).c_str(), 1, ""));
    PartBillOptions options;
    options.fields = {BillField::name};
    const Vor_Bill bill = billFromParts(parts, options);
    ASSERT_EQ(bill.rows.size(), 1U);
    const std::string names = bill.rows[0].cells[0].str();
    EXPECT_TRUE(names.starts_with("Plate 0, Plate 1,"));
    EXPECT_TRUE(names.ends_with(", \x85")) << names;
    EXPECT_LT(names.size(), 70U);
}

// --- tables -------------------------------------------------------------------------------------

const Vor_StringArray header = {"Profil", "Werkstoff", "L\xE4nge (mm)", "Anzahl", "Mass", "Gesamt"};
const Vor_Array<Vor_StringArray> rows = {{"IPE-200", "S355", "1000", "2", "22.4", "44.8"},
                                         {"HEA-100", "S235", "500", "1", "8.4", "8.4"},
                                         {"IPE-200", "S355", "1000", "3", "22.4", "67.2"},
                                         {"M20", "8.8"},
                                         {"", "", "12"}};

TEST(BillFromTable, HeadingsInAnyLanguageSayWhatIsSummedUpAndDrawn) {
    std::string error;
    TableBillOptions options;
    options.groupBy = "section";
    options.countTogether = true;
    options.columns = {"Profil", "count", "Gesamt"};
    const auto bill = billFromTable(header, rows, options, error);
    ASSERT_TRUE(bill) << error;
    EXPECT_THAT(fed(*bill), ElementsAre("start",                   //
                                        "row ||",                  //
                                        "subtotal  1 Subtotal||",  //
                                        "-",                       //
                                        "row HEA-100|1|8.4",       //
                                        "subtotal HEA-100 1 Subtotal HEA-100|1|8.4",
                                        "-",                  //
                                        "row IPE-200|5|112",  //
                                        "subtotal IPE-200 1 Subtotal IPE-200|5|112",
                                        "-",                              //
                                        "row M20||",                      //
                                        "subtotal M20 1 Subtotal M20||",  //
                                        "total 4 Total|6|120.4",          //
                                        "end"));
    EXPECT_EQ(bill->columns[1].kind, BillColumnKind::whole);
    EXPECT_EQ(bill->columns[2].kind, BillColumnKind::decimal);
    EXPECT_EQ(bill->piece(0), nullptr) << "nothing is known of it";
    EXPECT_EQ(bill->piece(2)->kind, BillPartKind::profile);
    EXPECT_EQ(bill->piece(2)->length, 1000);
    EXPECT_EQ(bill->piece(3)->diameter, 20);
}

TEST(BillFromTable, SmallAmountsAddUpInsteadOfBeingRoundedAway) {
    Vor_Array<Vor_StringArray> shims;
    for (int i = 0; i < 100; ++i) shims.append({"Shim", "1", "0.0004"});
    TableBillOptions options;
    options.groupBy = "Name";
    options.countTogether = true;
    std::string error;
    const auto bill = billFromTable({"Name", "Count", "Total mass"}, shims, options, error);
    ASSERT_TRUE(bill) << error;
    ASSERT_EQ(bill->rows.size(), 1U);
    EXPECT_EQ(line(bill->rows[0].cells), "Shim|100|0.04");
    EXPECT_EQ(line(bill->totals), "Total|100|0.04");
}

TEST(BillFromTable, ColumnsAreNumbersWhenAllTheirCellsAre) {
    struct Case {
        Vor_StringArray cells;
        BillColumnKind kind;
    };
    const Case cases[] = {
        {{"1", "", "-20"}, BillColumnKind::whole}, {{"1", "2.0"}, BillColumnKind::whole},
        {{"1.5", "2"}, BillColumnKind::decimal},   {{"0.5", "0"}, BillColumnKind::decimal},
        {{"001", "2"}, BillColumnKind::text},      {{"1", "x"}, BillColumnKind::text},
        {{"", " "}, BillColumnKind::text},         {{"1e300"}, BillColumnKind::text},
        {{"1,5"}, BillColumnKind::text},
    };
    for (const Case& each : cases) {
        Vor_Array<Vor_StringArray> column;
        for (const Vor_String& cell : each.cells) column.append({cell});
        std::string error;
        const auto bill = billFromTable({"C"}, column, {}, error);
        EXPECT_EQ(bill->columns[0].kind, each.kind) << line(each.cells);
    }
}

TEST(BillFromTable, UnknownColumnsAreRefusedWithTheOnesThereAre) {
    std::string error;
    TableBillOptions options;
    options.groupBy = "Colour";
    EXPECT_FALSE(billFromTable(header, rows, options, error));
    EXPECT_THAT(error, HasSubstr("no column \"Colour\"; the columns are Profil, Werkstoff"));
    options = {};
    options.columns = {"Nope"};
    EXPECT_FALSE(billFromTable(header, rows, options, error));
    EXPECT_FALSE(billFromTable({}, rows, {}, error));
    EXPECT_THAT(error, HasSubstr("no header"));
}

TEST(BillFromTable, LongerRowsKeepTheirCells) {
    std::string error;
    const auto bill = billFromTable({"A"}, {{"1"}, {"2", "x", "y"}}, {}, error);
    EXPECT_EQ(line(bill->rows[1].cells), "2|x|y");
}

// --- feeding ------------------------------------------------------------------------------------

TEST(FeedBill, TellsOfItsProgressAndCanBeCancelled) {
    std::string error;
    Vor_Bill bill = *billFromTable(header, rows, {}, error);
    Recorder recorder;
    std::vector<int> done;
    const auto progress = [&](int row, int all) {
        EXPECT_EQ(all, 5);
        EXPECT_EQ(bill.currentRow, row - 1);
        done.push_back(row);
        return row < 2;
    };
    EXPECT_EQ(feedBill(bill, recorder, progress), BillFeed::cancelled);
    EXPECT_THAT(done, ElementsAre(0, 1, 2));
    EXPECT_EQ(recorder.lines.size(), 3U) << "no end";
    EXPECT_EQ(bill.currentRow, -1);
    recorder.status = Acad::eInvalidInput;
    EXPECT_EQ(feedBill(bill, recorder), BillFeed::failed);
}

}  // namespace
