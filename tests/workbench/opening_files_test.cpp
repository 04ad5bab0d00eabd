// Files that a user names, chooses or drops: each opens as what it is, or tells why not.
#include <QMessageBox>
#include <QPushButton>

#include "cutstock/cutting_stock_dialog.h"
#include "platform/paths.h"
#include "workbench/dialog_problems.h"
#include "workbench/run/run_page.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/starters_fixture.h"
#include "workbench/window/dialog_font.h"

namespace {

using testing::AllOf, testing::ElementsAre, testing::HasSubstr;

template <class Page>
bool isA(QWidget* page) {
    return dynamic_cast<Page*>(page) != nullptr;
}

class OpeningFiles : public StartersTest {
  protected:
    void SetUp() override { openProgram(); }

    QWidget* open(const std::string& path) {
        return window->openFile(QString::fromStdString(path));
    }
    QWidget* openInLibrary(const char* path) {
        return open(paths::toMachine(gSettings.libDir() + path));
    }
    std::string written(const char* name, std::string_view content) {
        elsewhere.write(name, content);
        return (elsewhere.path() / name).string();
    }
    /// What is told while a file that no page shows is opened.
    std::vector<std::string> told(const std::string& path) {
        std::vector<std::string> texts;
        const int pages = window->pages().count();
        whileVisiting([&] { EXPECT_EQ(open(path), nullptr); },
                      [&](QWidget& shown) {
                          auto* box = qobject_cast<QMessageBox*>(&shown);
                          ASSERT_TRUE(box);
                          texts.push_back(box->text().toStdString());
                          escape(shown);
                      });
        EXPECT_EQ(window->pages().count(), pages);
        return texts;
    }

    TemporaryFolder elsewhere;
};

TEST_F(OpeningFiles, EachOpensOnAPageOfItsKind) {
    const struct {
        const char* path;
        bool (*isRight)(QWidget*);
    } files[] = {
        {"Connection Standards\\EndPlate.tws", isA<RunPage>},
        {"Macros\\EndPlate.macro", isA<MacroPage>},
        {"prof\\IPE.pr", isA<TablePage>},
        {"Bill footer.sss", isA<SheetPage>},
        {"Connection Standards\\EndPlate.cases.csv", isA<SheetPage>},
        {"Connection Standards\\Data\\steel.txt", isA<SheetPage>},
    };
    int pages = window->pages().count();
    for (const auto& file : files) {
        QWidget* page = openInLibrary(file.path);
        EXPECT_TRUE(file.isRight(page)) << file.path;
        EXPECT_EQ(window->pages().count(), ++pages) << file.path;
    }
    auto* table = dynamic_cast<TablePage*>(openInLibrary("prof\\..\\prof\\IPE.pr"));
    ASSERT_TRUE(table);
    EXPECT_TRUE(table->isOfLibrary());
    EXPECT_EQ(window->pages().count(), pages) << "the page that was open";
}

TEST_F(OpeningFiles, TheStockOfAnItemOpensInItsDialog) {
    int dialogs = 0;
    whileVisiting([&] { openInLibrary("Cutting Stock\\HEA 200\\stock1.shp"); },
                  [&](QWidget& shown) {
                      dialogs += dynamic_cast<TwCuttingStockDlg*>(dialogOf(shown)) ? 1 : 0;
                      escape(shown);
                  });
    EXPECT_EQ(dialogs, 1);
}

// Their buttons would change the library's table of the same name.
TEST_F(OpeningFiles, TablesFromElsewhereAreOnlyShown) {
    auto* page = dynamic_cast<TablePage*>(
        open(written("IPE.pr",
                     "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tHeight\tWidth\n"
                     "own\t1\tIPE own\t\t\t\t77\t66\n")));
    ASSERT_TRUE(page);
    QTest::qWait(20);
    EXPECT_EQ(page->section(), "IPE-own");
    for (QPushButton* button : page->findChildren<QPushButton*>())
        EXPECT_FALSE(button->isVisible()) << button->text().toStdString();
    saveGrab(*window, "foreign-table");
    window->open(LibraryKind::sectionTable, gSettings.libDir() + "prof\\IPE.pr");
    QTest::keyClick(window.get(), Qt::Key_F5);
    EXPECT_EQ(page->section(), "IPE-own");
}

TEST_F(OpeningFiles, WhatNoPageShowsIsToldOnce) {
    EXPECT_THAT(told(written("drawing.dxf", "0\nSECTION\n")),
                ElementsAre(AllOf(HasSubstr("drawing.dxf"), HasSubstr("no page shows"))));
    EXPECT_THAT(told(written("stock1.shp", "")), ElementsAre(HasSubstr("stock1.shp")));
    EXPECT_THAT(told(written("broken.pr", "1\n")), ElementsAre(HasSubstr("no column names")));
    EXPECT_THAT(told((elsewhere.path() / "gone.pr").string()),
                ElementsAre(HasSubstr("no such file")));
}

TEST_F(OpeningFiles, AFolderBecomesTheLibrary) {
    elsewhere.write("prof/OWN.pr", "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tHeight\n");
    EXPECT_EQ(open(elsewhere.path().string()), nullptr);
    EXPECT_EQ(window->tree().count(LibraryKind::sectionTable), 1);
}

}  // namespace
