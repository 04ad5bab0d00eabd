// The cutting-stock dialog under mouse and keyboard.
#include "cutstock/cutting_stock_dialog.h"

#include <stdlib.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "core_api/settings.h"
#include "support/own_settings.h"
#include "workbench/desktop_fixture.h"
#include "workbench/dialog_problems.h"
#include "workbench/grid/show_grids.h"

namespace {

using Dlg = TwCuttingStockDlg;
using cutstock::Rows, cutstock::rowsOf;

class CuttingStockDesktop : public Desktop {
  protected:
    CuttingStockDesktop() {
        showGrids(system);
        gSettings.setLibDir(library.inside());
        DlgCSP2Data& data = dialog.data();
        data.itemIds = {1, 2};
        data.itemNames = {"IPE 200", "HEA 200"};
        for (Csp2Table& table : data.tables) table.columnNames = {"Length", "Number"};
        data.tables[1].rowItemIds = {1};
        data.tables[1].rows = {{"12100", "2"}};
    }
    ~CuttingStockDesktop() override { gSettings = before; }

    /// The real one, worked with until it is closed.
    int runWith(std::function<void()> steps) {
        meanwhile(std::move(steps));
        return dialog.doModal();
    }
    void press(int table, Dlg::Part part) {
        click(widget<QWidget>(dialog, Dlg::idOf(table, part)));
    }
    /// Types over the active cell and goes on to the next.
    static void types(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        key(Qt::Key_Tab);
    }
    Rows rows(int table, int id) {
        return rowsOf(dialog.data().tables[static_cast<size_t>(table)], id);
    }

    OwnSettings settings;
    TemporaryFolder library;
    Vor_Settings before = gSettings;
    Dlg dialog;
};

TEST_F(CuttingStockDesktop, RowsAreTypedOneAfterAnother) {
    const int result = runWith([&] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);  // in the list of items
        EXPECT_EQ(dialog.itemAs<CListBox>(Dlg::itemList)->selected(), 1);
        press(0, Dlg::insertRowButton);
        types("5400");
        QTest::keyClicks(QApplication::focusWidget(), "6");
        key(Qt::Key_Return);
        key(Qt::Key_Insert, Qt::ControlModifier);
        types("880");
        saveGrab(*system.widgetOf(dialog), "cutstock-typed");
        // The last cell is still being typed into.
        QTest::keyClicks(QApplication::focusWidget(), "12");
        click(widget<QWidget>(dialog, IDOK));
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(rows(0, 2), (Rows{{"5400", "6"}, {"880", "12"}}));
    EXPECT_EQ(rows(1, 1), (Rows{{"12100", "2"}}));
}

TEST_F(CuttingStockDesktop, TheMarkedLetterOfTheListLeadsToIt) {
    runWith([&] {
        widget<QWidget>(dialog, IDOK).setFocus();
        key(Qt::Key_I, Qt::AltModifier);
        EXPECT_EQ(CWnd::focused(), dialog.item(Dlg::itemList));
        key(Qt::Key_Escape);
    });
}

TEST_F(CuttingStockDesktop, AFileIsSavedUnderTheNameProposedAndOpenedAgain) {
    const auto accepts = [] {
        meanwhile([] {
            auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(chooser);
            QMetaObject::invokeMethod(chooser, "accept");
        });
    };
    const int result = runWith([&] {
        accepts();
        press(1, Dlg::saveButton);
        EXPECT_EQ(library.read("Cutting Stock/IPE 200/stock1.shp"),
                  "12100\xBF"
                  "2\n");
        press(1, Dlg::deleteRowButton);
        accepts();
        press(1, Dlg::openButton);
        click(widget<QWidget>(dialog, IDOK));
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(rows(1, 1), (Rows{{"12100", "2"}}));
}

}  // namespace
