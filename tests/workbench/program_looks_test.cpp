// The program's own windows and pages look well, in every language: what the module's dialogs are
// measured for, and what only layouts can get wrong.
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "workbench/bill/bill_words.h"
#include "workbench/dialog_problems.h"
#include "workbench/run/run_page.h"
#include "workbench/run/section_picker.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/sheet/sheet_words.h"
#include "workbench/starters_fixture.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

using testing::IsEmpty;

class ProgramLooks : public StartersTest, public testing::WithParamInterface<Language> {
  protected:
    void SetUp() override {
        openProgram(GetParam());
        window->resize(1200, 800);
    }
    std::string name(const char* what) const {
        return std::string(what) + "-" + std::to_string(static_cast<int>(GetParam()));
    }
    void format(QWidget& shown, const char* what) const {
        QTest::qWait(30);
        EXPECT_THAT(windowProblems(shown), IsEmpty()) << name(what);
        saveGrab(*shown.window(), name(what));
    }
    static QAction* entry(const QList<QAction*>& actions, int word) {
        for (QAction* each : actions) {
            if (each->text() == toQt(dialString(word))) return each;
            QAction* below = each->menu() ? entry(each->menu()->actions(), word) : nullptr;
            if (below) return below;
        }
        return nullptr;
    }
    /// Picks an entry of the menu bar and looks at what opens.
    void lookAtDialog(int word, const char* what) {
        QAction* picked = entry(window->menuBar()->actions(), word);
        ASSERT_TRUE(picked) << what;
        lookAtWhatOpens([&] { picked->trigger(); }, what);
    }
    void lookAtWhatOpens(const std::function<void()>& action, const char* what) {
        int seen = 0;
        whileVisiting(action, [&](QWidget& shown) {
            ++seen;
            format(shown, what);
            escape(shown);
        });
        EXPECT_EQ(seen, 1) << what;
    }
    SheetPage& openSheet() {
        SheetPage* page =
            window->openSheet(gSettings.libDir() + "Connection Standards\\EndPlate.tws");
        if (!page) throw std::runtime_error("no sheet");
        return *page;
    }
};

TEST_P(ProgramLooks, Pages) {
    format(*window->pages().currentWidget(), "page-start");
    auto* run = dynamic_cast<RunPage*>(window->open(
        LibraryKind::standard, gSettings.libDir() + "Connection Standards\\EndPlate.tws"));
    ASSERT_TRUE(run);
    format(*run, "page-run");
    lookAtWhatOpens([&] { SectionPicker::ask(window.get(), "HEA-200"); }, "section-picker");
    auto* macro = dynamic_cast<MacroPage*>(openMacro("EndPlate"));
    ASSERT_TRUE(macro);
    format(*macro, "page-macro");
    macro->choose("EndPlate", "BeamToColumn");
    EXPECT_TRUE(macro->run());
    format(*macro, "page-macro-run");
    QWidget* table = window->open(LibraryKind::sectionTable, gSettings.libDir() + "prof\\IPE.pr");
    ASSERT_TRUE(table);
    format(*table, "page-table");
}

TEST_P(ProgramLooks, SheetWithItsBars) {
    SheetPage& page = openSheet();
    format(page, "page-sheet");
    page.commands().action(sayFind).trigger();
    format(page.findBar(), "page-sheet-find");
    page.check();
    format(page.checkPanel(), "page-sheet-check");
}

TEST_P(ProgramLooks, Dialogs) {
    lookAtDialog(wordSettings, "settings");
    lookAtDialog(sayBill, "bill");
    lookAtDialog(wordAbout, "about");
    lookAtDialog(wordOpenLibrary, "open-library");
    lookAtDialog(sayOpenFile, "open-file");
    SheetPage& page = openSheet();
    const std::pair<int, const char*> dialogs[] = {{saySheetSettings, "sheet-settings"},
                                                   {sayPrintPreview, "sheet-preview"},
                                                   {saySort, "sheet-sort"},
                                                   {sayNote, "sheet-note"},
                                                   {sayRowHeight, "sheet-height"},
                                                   {sayKindCombo, "sheet-combo"},
                                                   {sayTextColour, "sheet-colour"},
                                                   {sayFunctions, "sheet-functions"},
                                                   {saySaveAs, "sheet-save"}};
    for (const auto& [word, what] : dialogs) {
        page.goTo({1, 1, 1, 1});
        lookAtDialog(word, what);
    }
}

TEST_P(ProgramLooks, Menus) {
    openSheet();
    std::set<QChar> letters;
    for (QAction* each : window->menuBar()->actions()) {
        EXPECT_THAT(windowProblems(*each->menu()), IsEmpty()) << each->text().toStdString();
        const qsizetype mark = each->text().indexOf('&');
        ASSERT_GE(mark, 0) << each->text().toStdString();
        EXPECT_TRUE(letters.insert(each->text()[mark + 1].toLower()).second)
            << each->text().toStdString();
        each->menu()->popup(window->mapToGlobal(QPoint(20, 20)));
        QTest::qWait(20);
        saveGrab(*each->menu(), name(("menu-" + std::to_string(letters.size())).c_str()));
        each->menu()->close();
    }
}

TEST_P(ProgramLooks, Help) {
    entry(window->menuBar()->actions(), wordManual)->trigger();
    int seen = 0;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (!each->isVisible() || each->windowTitle() != uiTitle(wordManual)) continue;
        ++seen;
        format(*each, "help");
    }
    EXPECT_EQ(seen, 1);
}

INSTANTIATE_TEST_SUITE_P(Languages, ProgramLooks,
                         testing::Values(Language::english, Language::dutch, Language::german,
                                         Language::french));

}  // namespace
