// The cutting-stock dialog, worked with as a user does.
#include "cutstock/cutting_stock_dialog.h"

#include <stdlib.h>
#include <time.h>

#include "core_api/dialogs/info_dialog.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "cutstock/stock_library.h"
#include "frame/frame_host.h"
#include "frame/starters.h"
#include "platform/window/text_question.h"

namespace {

using Dlg = TwCuttingStockDlg;
using cutstock::Rows, cutstock::rowsOf;

constexpr int openTitle = 618, saveTitle = 619;

/// Files that are asked for are noted with what was proposed.
class NotingUser : public TestUser {
  public:
    std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd* parent) override {
        asked.push_back(question);
        return TestUser::chooseFiles(question, parent);
    }
    std::vector<FileQuestion> asked;
};

class CuttingStock : public testing::Test {
  protected:
    CuttingStock() : m_scope(host) {
        ::setenv("TZ", "UTC", 1);
        ::tzset();
        data.itemIds = {7, 2};
        data.itemNames = {"IPE", "HEA"};
        data.tables[0] = {{"Mark", "Length"}, {7, 7, 2}, {{"a", "1"}, {"b", "2"}, {"c", "3"}}};
        data.tables[1] = {{"Length", "Number"}, {2, 7}, {{"12000", "5"}, {"6000", "9"}}};
        data.tables[2] = {{"Length"}, {}, {}};
    }
    ScriptedUser::Answer& opens() { return user.whenOpens(Dlg::resourceNumber); }

    static Vor_Spread& gridOf(CDialog& dialog, int table) {
        return dynamic_cast<Vor_Spread&>(*dialog.item(Dlg::idOf(table, Dlg::sheet)));
    }
    static Rows shown(CDialog& dialog, int table) {
        Rows rows;
        gridOf(dialog, table).getAllRows(rows);
        return rows;
    }
    static auto enters(int table, int col, int row, const char* text) {
        return
            [=](CDialog& dialog) { EXPECT_TRUE(gridOf(dialog, table).userEnters(col, row, text)); };
    }
    static auto shows(int table, const Rows& rows) {
        return [=](CDialog& dialog) { EXPECT_EQ(shown(dialog, table), rows) << table; };
    }
    Rows rows(int table, int id) const {
        return rowsOf(data.tables[static_cast<size_t>(table)], id);
    }
    std::string inside(const std::string& name) const {
        return library.folder.inside("Cutting Stock\\" + name);
    }

    OwnSettings settings;
    StockLibrary library;
    FrameHost host;
    NotingUser user;
    DlgCSP2Data data;

  private:
    HostScope m_scope;
};

// --- items and rows -----------------------------------------------------------------------------

TEST_F(CuttingStock, ShowsOneItemAtATimeAndKeepsWhatWasTypedOnOk) {
    opens()
        .does([](CDialog& dialog) {
            const auto& list = *dialog.itemAs<CListBox>(Dlg::itemList);
            EXPECT_EQ(list.count(), 2);
            EXPECT_EQ(list.selectedText(), "IPE");
            EXPECT_EQ(dialog.text(), "Cutting stock");
            Vor_String heading;
            gridOf(dialog, 1).getData(2, Vor_Spread::headerIndex, heading);
            EXPECT_EQ(heading, "Number");
        })
        .does(shows(0, {{"a", "1"}, {"b", "2"}}))
        .does(shows(1, {{"6000", "9"}}))
        .does(enters(0, 2, 2, "=1+1"))
        .does(enters(1, 1, 1, "007"))
        .selects(Dlg::itemList, 1)
        .does(shows(0, {{"c", "3"}}))
        .does(enters(0, 1, 1, "1.50"))
        .selects(Dlg::itemList, 0)
        .does(shows(0, {{"a", "1"}, {"b", "=1+1"}}))
        .presses(IDOK);
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_EQ(rows(0, 7), (Rows{{"a", "1"}, {"b", "=1+1"}}));
    EXPECT_EQ(rows(1, 7), (Rows{{"007", "9"}}));
    EXPECT_EQ(rows(0, 2), (Rows{{"1.50", "3"}}));
}

TEST_F(CuttingStock, CancelLeavesTheCallersData) {
    const Rows before = data.tables[0].rows;
    opens().does(enters(0, 1, 1, "x")).presses(Dlg::deleteItemButton).presses(IDCANCEL);
    EXPECT_FALSE(StartDlgCSP2(data));
    EXPECT_EQ(data.tables[0].rows, before);
    EXPECT_EQ(data.itemIds, (AcArray<int>{7, 2}));
}

TEST_F(CuttingStock, AddsItemsOfNewNames) {
    const auto names = [&](const char* typed) -> ScriptedUser::Answer& {
        return user.whenOpens(textQuestionNumber).types(textQuestionField, typed).presses(IDOK);
    };
    opens()
        .does(enters(0, 1, 1, "kept"))
        .presses(Dlg::addItemButton)
        .does([](CDialog& dialog) {
            EXPECT_EQ(dialog.itemAs<CListBox>(Dlg::itemList)->selectedText(), "UPN 180");
            EXPECT_EQ(gridOf(dialog, 0).nrRows(), 0);
        })
        .presses(Dlg::idOf(0, Dlg::insertRowButton))
        .does(enters(0, 1, 1, "first"))
        .presses(IDOK);
    names("");
    names("ipe");
    names("a/b");
    names("UPN 180");
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_EQ(user.messages().size(), 3u);
    EXPECT_EQ(data.itemIds, (AcArray<int>{7, 2, 8}));
    EXPECT_EQ(data.itemNames[2], "UPN 180");
    EXPECT_EQ(rows(0, 8), (Rows{{"first", ""}}));
    EXPECT_EQ(rows(0, 7)[0][0], "kept");
}

TEST_F(CuttingStock, DeletedItemsMakeWayForTheNextOrTheNewLastOne) {
    data.itemIds.append(5);
    data.itemNames.append("L");
    const auto selected = [](const char* name) {
        return [=](CDialog& dialog) {
            EXPECT_EQ(dialog.itemAs<CListBox>(Dlg::itemList)->selectedText(), name);
        };
    };
    opens()
        .selects(Dlg::itemList, 1)
        .presses(Dlg::deleteItemButton)
        .does(selected("L"))
        .presses(Dlg::deleteItemButton)
        .does(selected("IPE"))
        .does(shows(1, {{"6000", "9"}}))
        .presses(Dlg::deleteItemButton)
        .does([](CDialog& dialog) {
            for (int table = 0; table < 3; ++table) EXPECT_EQ(gridOf(dialog, table).nrRows(), 0);
            for (const int id : {+Dlg::deleteItemButton, +Dlg::actionButton,
                                 Dlg::idOf(0, Dlg::insertRowButton), Dlg::idOf(1, Dlg::saveButton)})
                EXPECT_FALSE(dialog.press(id)) << id;
        })
        .presses(IDOK);
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_TRUE(data.itemIds.isEmpty() && data.itemNames.isEmpty());
    for (const Csp2Table& table : data.tables) EXPECT_EQ(table.rows, Rows());
}

TEST_F(CuttingStock, RowsComeBelowTheActiveOneAndGoByButtonOrKey) {
    opens()
        .does([](CDialog& dialog) {
            Vor_Spread& grid = gridOf(dialog, 0);
            grid.userMoves(2, 1);
            EXPECT_TRUE(dialog.press(Dlg::idOf(0, Dlg::insertRowButton)));
            EXPECT_EQ(grid.currentRow(), 2);
            EXPECT_TRUE(grid.userEnters(1, 2, "new"));
            grid.userMoves(1, 3);
            EXPECT_TRUE(dispatchKey(grid, {keyInsert, true, false, true, false}));
            EXPECT_TRUE(grid.userEnters(2, 4, "000"));
            grid.userMoves(1, 1);
            EXPECT_TRUE(dispatchKey(grid, {keyDelete, true, false, true, false}));
            EXPECT_FALSE(dispatchKey(grid, {'S', true, false, true, false})) << "lies in no file";
            EXPECT_TRUE(dialog.press(Dlg::idOf(1, Dlg::deleteRowButton)));
            EXPECT_FALSE(dialog.press(Dlg::idOf(1, Dlg::deleteRowButton)));
            // From the menu into an empty sheet: cells are texts all the same.
            EXPECT_TRUE(gridOf(dialog, 1).runMenuCommand(2));
            EXPECT_TRUE(gridOf(dialog, 1).userEnters(1, 1, "0.10"));
        })
        .presses(IDOK);
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_EQ(rows(0, 7), (Rows{{"new", ""}, {"b", "2"}, {"", "000"}}));
    EXPECT_EQ(rows(1, 7), (Rows{{"0.10", ""}}));
}

TEST_F(CuttingStock, TablesShareTheHeightOfALargeWindow) {
    opens()
        .does([](CDialog& dialog) {
            const auto height = [&](int table) { return gridOf(dialog, table).rect().height(); };
            const int before = height(0);
            const CRect place = dialog.rect();
            dialog.move({place.left, place.top, place.right + 200, place.bottom + 300});
            for (int table = 0; table < 3; ++table) EXPECT_EQ(height(table), before + 100);
            const auto bottom = [&](int id) { return dialog.item(id)->rect().bottom; };
            EXPECT_LE(bottom(Dlg::idOf(2, Dlg::frame)), bottom(Dlg::tablesFrame));
            EXPECT_LT(bottom(Dlg::idOf(0, Dlg::frame)), gridOf(dialog, 1).rect().top);
            dialog.move(place);
            EXPECT_EQ(height(1), before);
        })
        .presses(IDCANCEL);
    StartDlgCSP2(data);
}

// --- one file at a time -------------------------------------------------------------------------

TEST_F(CuttingStock, SavesWhatIsShownUnderTheNextNumberOrAChosenName) {
    library.write("IPE/Stock1.shp", "");
    library.write("IPE/Stock7.shp", "seven\n");
    const int save = Dlg::idOf(1, Dlg::saveButton);
    opens()
        .does(enters(1, 1, 1, "8000"))
        .presses(save)
        .presses(save)
        .presses(Dlg::idOf(2, Dlg::saveButton))
        .presses(save)
        .presses(IDCANCEL);
    user.whenAskedForFile(dialString(saveTitle)).chooses({inside("IPE\\Stock8.shp")});
    user.whenAskedForFile(dialString(saveTitle)).chooses({inside("IPE\\Data.SHP")});
    user.whenAskedForFile(dialString(saveTitle)).chooses({inside("IPE\\Bought")});
    user.whenAskedForFile(dialString(saveTitle)).chooses({});
    StartDlgCSP2(data);
    ASSERT_EQ(user.asked.size(), 4u);
    EXPECT_EQ(user.asked[0].folder, inside("IPE\\"));
    EXPECT_EQ(user.asked[0].preset, "Stock8.shp");
    EXPECT_EQ(user.asked[0].filterName, dialString(626).str());
    EXPECT_EQ(user.asked[0].extension, "shp");
    EXPECT_EQ(user.asked[1].preset, "Stock9.shp") << "stock8.shp is there now";
    EXPECT_EQ(user.asked[2].preset, "Stock1.buy");
    EXPECT_EQ(library.read("IPE/stock8.shp"),
              "8000\xBF"
              "9\n");
    EXPECT_EQ(library.read("IPE/data.shp"),
              "8000\xBF"
              "9\n");
    EXPECT_EQ(library.read("IPE/bought.buy"), "");
    EXPECT_EQ(library.read("IPE/Stock7.shp"), "seven\n");
    EXPECT_NE(host.printed.find("data.shp: written"), std::string::npos) << host.printed;
}

TEST_F(CuttingStock, OpensTheProposedNewestFileAndKeepsOtherTables) {
    library.write("IPE/a.shp", "old\n", 1000);
    library.write("IPE/b.shp",
                  "6100\xBF"
                  "4\r\n6200\xBF"
                  "5\xBF"
                  "extra\n",
                  2000);
    opens()
        .does(enters(0, 1, 1, "kept"))
        .presses(Dlg::idOf(1, Dlg::openButton))
        .does(shows(0, {{"kept", "1"}, {"b", "2"}}))
        .does(shows(1, {{"6100", "4", ""}, {"6200", "5", "extra"}}))
        .presses(IDOK);
    user.whenAskedForFile(dialString(openTitle)).chooses({inside("IPE\\b.shp")});
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_EQ(user.asked[0].preset, "b.shp");
    EXPECT_EQ(rows(1, 7), (Rows{{"6100", "4"}, {"6200", "5", "extra"}}));
    EXPECT_EQ(rows(1, 2), (Rows{{"12000", "5"}}));
}

TEST_F(CuttingStock, TellsWhatCouldNotBeReadOrWrittenAndHarmsNoFile) {
    std::filesystem::create_directories(library.path("IPE/folder.shp"));
    opens()
        .does(enters(0, 1, 1, "kept"))
        .presses(Dlg::idOf(1, Dlg::openButton))
        .does(shows(1, {}))
        .presses(Dlg::idOf(1, Dlg::saveButton))
        .presses(IDOK);
    for (const int title : {openTitle, saveTitle})
        user.whenAskedForFile(dialString(title)).chooses({inside("IPE\\folder.shp")});
    EXPECT_TRUE(StartDlgCSP2(data));
    ASSERT_EQ(user.messages().size(), 2u);
    for (const MessageBox& box : user.messages()) {
        EXPECT_NE(box.text.find("folder.shp"), std::string::npos);
        EXPECT_NE(host.printed.find(box.text), std::string::npos);
    }
    EXPECT_NE(user.messages()[0].text.find(dialString(25204).view()), std::string::npos);
    EXPECT_EQ(rows(1, 7), Rows()) << "as a file that cannot be read leaves it";
    EXPECT_EQ(rows(0, 7)[0][0], "kept");
}

// --- those of all items -------------------------------------------------------------------------

TEST_F(CuttingStock, SavesTheStockOfAllItemsUnderDefaultNames) {
    data.savesAll = true;
    data.itemIds.append(9);
    data.itemNames.append("L 50/5");  // no folder can be called so
    library.write("HEA/Stock4.shp", "old\n");
    opens()
        .does([](CDialog& dialog) {
            EXPECT_EQ(dialog.item(Dlg::actionButton)->text(), dialString(628).str());
            EXPECT_TRUE(dialog.item(Dlg::askNamesCheck)->isShown());
        })
        .does(enters(1, 2, 1, "10"))
        .presses(Dlg::actionButton)
        .presses(IDCANCEL);
    StartDlgCSP2(data);
    EXPECT_TRUE(user.asked.empty());
    EXPECT_EQ(library.read("IPE/stock1.shp"),
              "6000\xBF"
              "10\n");
    EXPECT_EQ(library.read("HEA/stock5.shp"),
              "12000\xBF"
              "5\n");
    ASSERT_EQ(user.messages().size(), 1u);
    EXPECT_NE(user.messages()[0].text.find("\"L 50/5\""), std::string::npos);
}

TEST_F(CuttingStock, AsksForEachNameWhenWanted) {
    data.savesAll = true;
    opens().presses(Dlg::askNamesCheck).presses(Dlg::actionButton).presses(IDCANCEL);
    user.whenAskedForFile(dialString(saveTitle)).chooses({});
    user.whenAskedForFile(dialString(saveTitle)).chooses({inside("HEA\\Mine")});
    StartDlgCSP2(data);
    EXPECT_TRUE(std::filesystem::is_empty(library.path("IPE")));
    EXPECT_EQ(library.read("HEA/mine.shp"),
              "12000\xBF"
              "5\n");
}

TEST_F(CuttingStock, LoadsTheNewestFilesOfAllItemsAndReports) {
    library.write("IPE/Stock1.shp", "old\n", 1000);
    library.write("IPE/Stock2.shp",
                  "6100\xBF"
                  "4\n",
                  86400 * 364L + 3600 * 9 + 60 * 5);
    library.write("HEA/x.buy", "15000\n", 1000);
    const std::string rule(116, '-');
    const std::vector<std::string> expected = {
        rule,
        "The stock file \"Stock2.shp\" for the item \"IPE\" was loaded, last changed on "
        "31 December, 1970 (09:05)",
        "",
        "There is no purchase file for the item \"IPE\".",
        rule,
        "There is no stock file for the item \"HEA\".",
        "",
        "The purchase file \"x.buy\" for the item \"HEA\" was loaded, last changed on "
        "01 January, 1970 (00:16)",
        rule};
    opens()
        .does([](CDialog& dialog) { EXPECT_FALSE(dialog.item(Dlg::askNamesCheck)->isShown()); })
        .does(enters(0, 1, 1, "kept"))
        .presses(Dlg::actionButton)
        .does(shows(1, {{"6100", "4"}}))
        .presses(IDOK);
    user.whenOpens(infoDialogNumber)
        .does([&](CDialog& dialog) {
            EXPECT_EQ(dialog.text(), dialString(652).str());
            EXPECT_EQ(dialog.item(infoHeading)->text(), dialString(285).str());
            Vor_StringArray lines;
            for (const std::string& line : expected) lines.append(line);
            EXPECT_EQ(dialog.item(infoLines)->text(), arrToStr(lines, "\n").str());
        })
        .presses(IDCANCEL);
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_EQ(rows(0, 7)[0][0], "kept");
    EXPECT_EQ(rows(1, 2), (Rows{{"12000", "5"}})) << "no file, nothing changed";
    EXPECT_EQ(rows(2, 2), (Rows{{"15000"}}));
}

TEST_F(CuttingStock, TheReportTellsOfFilesThatCannotBeRead) {
    const std::string path = library.write("HEA/a.shp", "");
    std::filesystem::resize_file(library.path("HEA/a.shp"), 40u << 20);  // beyond what is read
    opens().presses(Dlg::actionButton).presses(IDOK);
    std::string report;
    user.whenOpens(infoDialogNumber)
        .does([&](CDialog& dialog) { report = dialog.item(infoLines)->text(); })
        .presses(IDCANCEL);
    EXPECT_TRUE(StartDlgCSP2(data));
    EXPECT_NE(report.find(path + ":"), std::string::npos) << report;
    EXPECT_NE(host.printed.find(path + ":"), std::string::npos) << host.printed;
    EXPECT_EQ(rows(1, 2), Rows());
    EXPECT_EQ(rows(1, 7), (Rows{{"6000", "9"}}));
}

}  // namespace
