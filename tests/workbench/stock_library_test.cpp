// The cutting-stock items of the library, opened from its tree and edited as a user does.
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <fstream>
#include <iterator>

#include "cutstock/cutting_stock_dialog.h"
#include "platform/paths.h"
#include "platform/window/text_question.h"
#include "spread/vor_spread.h"
#include "workbench/starters_fixture.h"

namespace {

using Dlg = TwCuttingStockDlg;
using testing::HasSubstr;
using testing::Not;

class StockOfTheLibrary : public StartersTest {
  protected:
    void SetUp() override { openProgram(); }

    static std::string path(const std::string& name) {
        return paths::toMachine(gSettings.libDir() + "Cutting Stock\\" + name);
    }
    static std::string read(const std::string& name) {
        std::ifstream in(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static void write(const std::string& name, const std::string& text) {
        std::ofstream(path(name), std::ios::binary) << text;
    }
    static bool has(const std::string& name) { return std::filesystem::exists(path(name)); }

    QTreeWidgetItem* entry(const char* text) const {
        const auto found = window->tree().findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.front();
    }
    /// Activates the entry and works with the windows that open, in this order.
    void open(const char* text, const std::vector<Visit>& visits) {
        QTreeWidgetItem* item = entry(text);
        ASSERT_TRUE(item) << text;
        visitInTurn([&] { emit window->tree().itemActivated(item, 0); }, visits);
    }
    static Vor_Spread& grid(QWidget& dialog, int table) {
        return dynamic_cast<Vor_Spread&>(*dialogOf(dialog)->item(Dlg::idOf(table, Dlg::sheet)));
    }
    static void enter(QWidget& dialog, int table, int col, int row, const char* text) {
        EXPECT_TRUE(grid(dialog, table).userEnters(col, row, text));
    }
    static void names(QWidget& question, const char* name) {
        auto* field = question.findChild<QLineEdit*>(QString::number(textQuestionField));
        ASSERT_TRUE(field);
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
    }
};

TEST_F(StockOfTheLibrary, KeepsWhatWasEditedAndShowsNewItemsInTheTree) {
    ASSERT_FALSE(entry("UPN 80"));
    open("Items.dat", {[](QWidget& dialog) {
                           enter(dialog, 0, 2, 1, "5401");
                           enter(dialog, 1, 2, 1, "3");
                           press(dialog, Dlg::addItemButton);
                           press(dialog, Dlg::idOf(0, Dlg::insertRowButton));
                           enter(dialog, 0, 1, 1, "U1");
                           press(dialog, IDOK);
                       },
                       [](QWidget& question) { names(question, "UPN 80"); }});
    EXPECT_THAT(read("Items.dat"), HasSubstr("Item\t4\tUPN 80\n"));
    EXPECT_THAT(read("Items.dat"), HasSubstr("Part\t1\tB1\t5401\t6\n"));
    EXPECT_THAT(read("Items.dat"), HasSubstr("Part\t4\tU1\t\t\n"));
    EXPECT_EQ(read("IPE 200/stock2.shp"),
              "12100\xBF"
              "3\n6050\xBF"
              "5\n2870\xBF"
              "1\n");
    for (const char* untouched : {"IPE 200/stock2.buy", "HEA 200/stock2.shp", "L 70x7/stock2.buy"})
        EXPECT_FALSE(has(untouched)) << untouched;
    EXPECT_TRUE(QTest::qWaitFor([&] { return entry("UPN 80") && entry("stock2.shp"); }, 2000));

    open("UPN 80", {[](QWidget& dialog) {
             EXPECT_EQ(dialogOf(dialog)->itemAs<CListBox>(Dlg::itemList)->count(), 4);
             EXPECT_EQ(grid(dialog, 1).nrRows(), 3);
             escape(dialog);
         }});
}

TEST_F(StockOfTheLibrary, IsSavedAsAWholeByItsOwnEntry) {
    const auto saveAll = [](QWidget& shown) {
        auto* box = qobject_cast<QMessageBox*>(&shown);
        if (box) return escape(shown);
        press(shown, Dlg::actionButton);
        press(shown, IDOK);
    };
    EXPECT_EQ(run(saveCuttingStock, saveAll), Outcome::changed);
    for (const char* made : {"IPE 200/stock2.shp", "HEA 200/stock2.shp", "L 70x7/stock2.shp"})
        EXPECT_TRUE(has(made)) << made;
    EXPECT_EQ(read("IPE 200/stock2.shp"), read("IPE 200/stock1.shp"));
    EXPECT_FALSE(has("IPE 200/stock3.shp"));  // OK finds nothing changed
}

TEST_F(StockOfTheLibrary, IsLeftAloneByCancel) {
    const std::string before = read("Items.dat");
    open("Items.dat", {[](QWidget& dialog) {
             enter(dialog, 0, 2, 1, "1");
             enter(dialog, 1, 2, 1, "1");
             press(dialog, Dlg::deleteItemButton);
             press(dialog, IDCANCEL);
         }});
    EXPECT_EQ(read("Items.dat"), before);
    EXPECT_FALSE(has("IPE 200/stock2.shp"));
}

TEST_F(StockOfTheLibrary, AsksBeforeItReplacesWhatAnotherProgramWrote) {
    const std::string others = "Item\t1\tIPE 300\n";
    const char* const question = "changed by another program meanwhile";
    open("Items.dat", {[&](QWidget& dialog) {
                           enter(dialog, 0, 2, 1, "5401");
                           write("Items.dat", others);
                           press(dialog, IDOK);
                       },
                       answers("No", question),
                       [&](QWidget& dialog) {
                           EXPECT_EQ(read("Items.dat"), others);
                           Vor_String kept;
                           grid(dialog, 0).getData(2, 1, kept);
                           EXPECT_EQ(kept, "5401");
                           press(dialog, IDOK);
                       },
                       answers("Yes", question)});
    EXPECT_THAT(read("Items.dat"), HasSubstr("Part\t1\tB1\t5401\t6\n"));
    EXPECT_THAT(read("Items.dat"), Not(HasSubstr("IPE 300")));
}

TEST_F(StockOfTheLibrary, ThatCannotBeReadIsToldWithItsLineAndNotShown) {
    const std::string whole = read("Items.dat");
    const std::string broken = whole + "Part\t9\tX\n";
    write("Items.dat", broken);
    open("Items.dat", {answers("OK", "Items.dat:14: no item above has this number")});
    EXPECT_EQ(read("Items.dat"), broken);

    write("Items.dat", whole);
    open("Items.dat", {[&](QWidget& dialog) {
                           write("Items.dat", broken);
                           press(dialog, IDOK);
                       },
                       answers("No", "changed by another program"),
                       [](QWidget& dialog) { press(dialog, IDCANCEL); }});
    EXPECT_EQ(read("Items.dat"), broken);
}

}  // namespace
