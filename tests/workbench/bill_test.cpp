// Bills from the desktop: the window that asks, the sheet that shows them, and their files.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QProgressDialog>
#include <QSpinBox>
#include <QTableWidget>

#include "platform/files.h"
#include "platform/paths.h"
#include "support/test_user.h"
#include "test_folders.h"
#include "workbench/bill/bill_dialog.h"
#include "workbench/bill/bill_window_button.h"
#include "workbench/dialog_problems.h"
#include "workbench/starters_fixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class BillWindow : public StartersTest {
  protected:
    void SetUp() override { openProgram(); }
    static std::string inside(const char* name) { return gSettings.libDir().str() + name; }
    static QByteArray content(const std::string& path) {
        std::string error;
        return QByteArray::fromStdString(files::readWhole(path, error).value_or(error));
    }
    bool make(const char* macro, const char* file, bool hasPictures = false) {
        bills::BillChoice choice;
        choice.macros = {inside(macro)};
        bills::BillTarget target;
        target.file = inside(file);
        target.hasPictures = hasPictures;
        return window->bills().make(choice, target, window.get());
    }
};

std::vector<std::string> ticked(QListWidget& list) {
    std::vector<std::string> texts;
    for (int i = 0; i < list.count(); ++i)
        if (list.item(i)->checkState() == Qt::Checked)
            texts.push_back(list.item(i)->text().toStdString());
    return texts;
}

TEST_F(BillWindow, AsksForMacrosColumnsAndTheFile) {
    BillDialog dialog({inside("Macros\\EndPlate.macro")}, window.get());
    QTableWidget& macros = dialog.macros();
    ASSERT_EQ(macros.rowCount(), 4);
    for (int row = 0; row < macros.rowCount(); ++row) {
        const bool isChosen = macros.item(row, 0)->text() == "EndPlate";
        EXPECT_EQ(macros.item(row, 0)->checkState(), isChosen ? Qt::Checked : Qt::Unchecked);
        if (isChosen) static_cast<QSpinBox*>(macros.cellWidget(row, 1))->setValue(3);
    }
    EXPECT_EQ(dialog.choice().macros.length(), 3) << "counted three times";
    EXPECT_EQ(ticked(dialog.columns()).front(), "Pos.");
    EXPECT_EQ(ticked(dialog.columns()).size(), PartBillOptions().fields.size());
    dialog.columns().item(0)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(dialog.choice().columns[0].str(), "name");
    EXPECT_EQ(dialog.choice().group.str(), "kind");
    EXPECT_EQ(dialog.target().settings.str(), "Bill");
    dialog.file().setText("x.doc");
    dialog.accept();
    EXPECT_THAT(dialog.message().text().toStdString(), HasSubstr(".xlsx"));
    for (int row = 0; row < macros.rowCount(); ++row)
        macros.item(row, 0)->setCheckState(Qt::Unchecked);
    dialog.accept();
    EXPECT_THAT(dialog.message().text().toStdString(), HasSubstr("Nothing is chosen"));
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(BillWindow, ATableBringsItsOwnColumns) {
    BillDialog dialog({}, window.get());
    dialog.useTable("none.csv");
    EXPECT_THAT(dialog.message().text().toStdString(), HasSubstr("none.csv"));
    const QTemporaryDir folder;
    QFile table(folder.filePath("t.csv"));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write("Part,Count,Colour\nA,2,red\n");
    table.close();
    dialog.useTable(table.fileName());
    EXPECT_EQ(dialog.message().text(), "");
    EXPECT_THAT(ticked(dialog.columns()), ElementsAre("Part", "Count", "Colour"));
    EXPECT_GE(dialog.group().findData("Colour"), 0);
    EXPECT_TRUE(dialog.choice().isTable());
    dialog.file().setText(folder.filePath("t.sss"));
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);

    // A file that is there is not replaced without a question.
    dialog.setResult(QDialog::Rejected);
    dialog.file().setText(table.fileName());
    TestUser user;
    user.whenMessage("t.csv is there already").presses(IDNO);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    user.whenMessage("t.csv is there already").presses(IDYES);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(BillWindow, ShowsTheSheetAndSavesItInEveryFormat) {
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Bill.sss", true));
    EXPECT_THAT(printed().toStdString(), HasSubstr("The bill was saved as"));
    EXPECT_THAT(printed().toStdString(), HasSubstr("No mass is known of Bolts (M20)"));
    const std::vector<QWidget*> shown = shownWindows();
    ASSERT_EQ(shown.size(), 1U) << "the editor's window";
    EXPECT_EQ(window->bills().last()->output().sheet()->nrRows(), 7) << "with two pictures";
    EXPECT_TRUE(content(inside("Bill.sss")).contains("\npicture #"));
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Bill.xlsx"));
    EXPECT_TRUE(content(inside("Bill.xlsx")).startsWith("PK"));
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Bill.pdf", true));
    const QByteArray pdf = content(inside("Bill.pdf"));
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_GT(pdf.size(), 5000);
    EXPECT_EQ(shownWindows().size(), 1U) << "the window of the bill before is gone";
}

TEST_F(BillWindow, WhatFailedIsToldOnceInAMessage) {
    const QString before = printed();
    const std::pair<const char*, const char*> cases[] = {
        {"Macros\\Gone.macro", "Bill.sss"},
        {"Macros\\EndPlate.macro", "none\\Bill.sss"},
        {"Macros\\EndPlate.macro", "none\\Bill.xlsx"},
        {"Macros\\EndPlate.macro", "none\\Bill.pdf"},
    };
    for (const auto& [macro, file] : cases) {
        TestUser user;
        const bool isMacroGone = std::string_view(macro).ends_with("Gone.macro");
        user.whenMessage(isMacroGone ? "Gone.macro" : "Bill.").presses(IDOK);
        EXPECT_FALSE(make(macro, file)) << file;
        EXPECT_EQ(printed(), before) << file;
    }
    ASSERT_TRUE(window->bills().last()) << "what could not be written is still shown";
    EXPECT_EQ(window->bills().last()->output().sheet()->nrRows(), 5);
}

BillWindowButton* exportButton(const QWidget& shown) {
    for (auto* each : shown.findChildren<QPushButton*>())
        if (auto* found = dynamic_cast<BillWindowButton*>(each)) return found;
    return nullptr;
}

TEST_F(BillWindow, ItsButtonExportsWhatIsShown) {
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Frame 7.sss", true));
    QWidget& shown = *shownWindows().at(0);
    BillWindowButton* button = exportButton(shown);
    ASSERT_TRUE(button);
    EXPECT_TRUE(window->bills().last()->output().sheet()->setData(2, 1, "Renamed"));
    const QList<QAction*> entries = button->menu()->actions();
    const struct {
        const char *file, *begin;
    } exports[] = {{"Out.xlsx", "PK"}, {"Out.csv", "Pos.,Name"}, {"Out.pdf", "%PDF"}};
    for (size_t i = 0; i < std::size(exports); ++i) {
        TestUser user;
        user.whenAskedForFile("Export").chooses({inside(exports[i].file)});
        entries[static_cast<int>(i)]->trigger();
        EXPECT_TRUE(content(inside(exports[i].file)).startsWith(exports[i].begin));
        EXPECT_THAT(printed().toStdString(), HasSubstr(exports[i].file));
    }
    EXPECT_TRUE(content(inside("Out.csv")).contains("Renamed"));
    const QString before = printed();
    TestUser user;
    user.whenAskedForFile("Export").chooses({inside("none\\Out.csv")});
    user.whenMessage("none").presses(IDOK);
    entries[1]->trigger();
    user.whenAskedForFile("Export").chooses({});
    entries[0]->trigger();
    EXPECT_EQ(printed(), before) << "what failed, or was not wanted, is not said to be written";
}

TEST_F(BillWindow, ItsButtonPreviewsAndPrints) {
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Bill.sss"));
    QWidget& shown = *shownWindows().at(0);
    std::vector<std::string> opened;
    const auto note = [&](QWidget& asked) {
        opened.emplace_back(asked.metaObject()->className());
        escape(asked);
    };
    whileVisiting([&] { exportButton(shown)->menu()->actions()[4]->trigger(); }, note);
    shown.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
    whileVisiting([&] { QTest::keyClick(&shown, Qt::Key_P, Qt::ControlModifier); }, note);
    EXPECT_THAT(opened, ElementsAre("QPrintPreviewDialog", "QPrintDialog"));
}

class BillWindowLooks : public BillWindow, public testing::WithParamInterface<Language> {
  protected:
    void SetUp() override { openProgram(GetParam()); }
};

TEST_P(BillWindowLooks, TheButtonStandsInLineAndFits) {
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Bill.sss", true));
    QWidget& shown = *shownWindows().at(0);
    const QWidget& button = *exportButton(shown);
    const QWidget& ok = *shown.findChild<QWidget*>(QString::number(IDOK));
    for (const int wider : {0, 200}) {
        shown.resize(shown.width() + wider, shown.height() + wider);
        QTest::qWait(30);
        EXPECT_THAT(windowProblems(shown), testing::IsEmpty());
        EXPECT_THAT(dialogProblems(shown), testing::IsEmpty());
        EXPECT_EQ(button.y(), ok.y());
        EXPECT_LT(button.geometry().right(), ok.x());
        EXPECT_GT(button.width(), button.sizeHint().width());
    }
    saveGrab(shown, "bill-window-" + std::to_string(static_cast<int>(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(All, BillWindowLooks,
                         testing::Values(Language::english, Language::dutch, Language::german,
                                         Language::french));

TEST_F(BillWindow, AnOpenMacroIsTakenAsItIsOnItsPage) {
    auto* page = dynamic_cast<MacroPage*>(openMacro("EndPlate"));
    ASSERT_TRUE(page);
    page->macro().macro().macroWrite()->findModuleWrite("Plate")->setVariable("Thickness", 25);
    ASSERT_TRUE(make("Macros\\EndPlate.macro", "Bill.csv"));
    EXPECT_TRUE(content(inside("Bill.csv")).contains("PL 25"))
        << content(inside("Bill.csv")).data();
}

TEST_F(BillWindow, CancellingLeavesTheFileAsItWas) {
    const QTemporaryDir folder;
    QFile table(folder.filePath("long.csv"));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write("Section,Length\n");
    for (int i = 0; i < 400; ++i)
        table.write(QByteArray("IPE-300,") + QByteArray::number(500 + i) + "\n");
    table.close();
    bills::BillChoice choice;
    choice.table = *paths::toInside(table.fileName().toStdString());
    bills::BillTarget target;
    target.file = *paths::toInside(folder.filePath("long.sss").toStdString());
    target.hasPictures = true;
    QTimer cancel;
    cancel.callOnTimeout([] {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* progress = qobject_cast<QProgressDialog*>(each);
                progress && progress->isVisible())
                progress->cancel();
    });
    cancel.start(20);
    EXPECT_FALSE(window->bills().make(choice, target, window.get()));
    EXPECT_FALSE(QFile::exists(folder.filePath("long.sss")));
    EXPECT_EQ(window->bills().last(), nullptr);
}

TEST_F(BillWindow, TheMenuOpensTheWindowWithTheMacroInFront) {
    openMacro("BasePlate");
    bool wasSeen = false;
    QTimer format;
    format.callOnTimeout([&] {
        auto* dialog = dynamic_cast<BillDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        wasSeen = true;
        EXPECT_TRUE(dialog->choice().macros[0].endsWith("BasePlate.macro"));
        for (const auto* button : dialog->findChildren<QPushButton*>())
            EXPECT_EQ(button->isDefault(), button->text() == "OK") << "Enter makes the bill";
        escape(*dialog);
    });
    format.start(10);
    window->makeBill();
    EXPECT_TRUE(wasSeen);
}

TEST(PrintingWithoutAWindow, WritesAPdfOrSaysWhyNot) {
    const QTemporaryDir folder;
    const auto run = [](const QStringList& arguments) {
        QProcess process;
        process.start(VORMANT_WORKBENCH_PROGRAM, QStringList("--print") + arguments);
        EXPECT_TRUE(process.waitForFinished());
        return std::pair(process.exitCode(), process.readAllStandardError().toStdString());
    };
    const QString standard =
        VORMANT_SOURCE_DIR "/library/Connection Standards/Childs/BoltSpacing.tws";
    const QString pdf = folder.filePath("a.pdf");
    EXPECT_EQ(run({standard, pdf}).first, 0);
    QFile written(pdf);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().startsWith("%PDF"));
    const auto missing = run({"none.sss", pdf});
    EXPECT_EQ(missing.first, 1);
    EXPECT_THAT(missing.second, HasSubstr("none.sss"));
    EXPECT_EQ(run({standard, folder.filePath("no/a.pdf")}).first, 1);
    EXPECT_EQ(run({standard}).first, 2);
}

}  // namespace
