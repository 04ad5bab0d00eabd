// Every starter of the module, reached through the program's menu on a real desktop.
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>

#include "core_api/macros/vor_bolt_module.h"
#include "frame/open_macro_dialogs.h"
#include "frame/string_array_dialog.h"
#include "test_folders.h"
#include "workbench/dialog_problems.h"
#include "workbench/starters_fixture.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/dialog_navigation.h"

namespace {

using testing::IsEmpty;

/// What ends otherwise than cancelled after Escape.
Outcome expectedAfterEscape(int title) {
    using T = StarterTitles;
    switch (title) {
        case T::macroModeless:
        case T::constraints:
            return Outcome::opened;
        case T::takeMacroData:
        case T::endMacroModeless:
        case T::destroyAllMacros:
            return Outcome::noneOpen;
        case T::endConstraints:
        case T::evaluate:
        case T::dstvPoints:
            return Outcome::closed;
        case T::readSheetFile:
            return Outcome::succeeded;
        case T::runStandard:
        case T::selfTest:
            return Outcome::failed;  // neither standard is there
        default:
            return Outcome::cancelled;
    }
}

// --- what makes a dialog good -------------------------------------------------------------------

bool takesKeyboard(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus &&
           !widget.objectName().isEmpty();
}

/// The controls that Tab never comes to.
std::vector<std::string> unreached(QWidget& window, const QtWindowSystem& system) {
    std::set<const QWidget*> reached;
    constexpr int mostPresses = 400;
    for (int i = 0; i < mostPresses; ++i) {
        QWidget* focused = QApplication::focusWidget();
        if (!focused) break;
        if (const CWnd* control = system.windowOf(focused))
            reached.insert(system.widgetOf(*control));
        // Backwards first: a grid is left from its first cell on, not after all others.
        const bool isBack = i < mostPresses / 2;
        QTest::keyClick(focused, isBack ? Qt::Key_Backtab : Qt::Key_Tab,
                        isBack ? Qt::ShiftModifier : Qt::NoModifier);
    }
    std::vector<std::string> missing;
    for (const QWidget* each : window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (takesKeyboard(*each) && !reached.contains(each))
            missing.push_back(each->objectName().toStdString());
    return missing;
}

void checkSizes(QWidget& window, const std::string& name) {
    const QSize usual = window.size();
    const std::pair<const char*, QSize> sizes[] = {
        {"large", usual * 1.4}, {"small", window.minimumSize()}, {"", usual}};
    for (const auto& [label, size] : sizes) {
        window.resize(size);
        QTest::qWait(20);
        EXPECT_THAT(dialogProblems(window), IsEmpty()) << label;
        saveGrab(window, name + label);
    }
}

void checkDialog(QWidget& window, const std::string& name) {
    SCOPED_TRACE(window.windowTitle().toStdString());
    auto& system = dynamic_cast<QtWindowSystem&>(WindowSystem::current());
    auto* dialog = dynamic_cast<CDialog*>(system.windowOf(&window));
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(window.windowTitle().isEmpty());
    checkSizes(window, name);
    const CButton* byEnter = defaultButton(*dialog);
    EXPECT_TRUE((byEnter && byEnter->isVisible()) || dialog->item(IDCANCEL)) << "nothing closes it";
    EXPECT_THAT(unreached(window, system), IsEmpty()) << "by Tab";
}

// --- every starter ------------------------------------------------------------------------------

class EveryStarter : public StartersTest, public testing::WithParamInterface<Language> {
  protected:
    void visit(QWidget& shown, const std::string& name) {
        auto* files = qobject_cast<QFileDialog*>(&shown);
        if (files && name.starts_with(std::to_string(StarterTitles::readSheetFile)))
            return chooseSheet(*files);
        if (!files && !qobject_cast<QMessageBox*>(&shown)) checkDialog(shown, name);
        saveGrab(shown, name);
        escape(shown);
    }
    static void chooseSheet(QFileDialog& files) {
        files.findChild<QLineEdit*>("fileNameEdit")->setText("EndPlate.tws");
        QMetaObject::invokeMethod(&files, "accept");
    }
};

TEST_P(EveryStarter, OpensAGoodDialogAndLeavesAllAsItWasAfterEscape) {
    openProgram(GetParam());
    for (const Starter& each : starters()) {
        const std::string name =
            std::to_string(each.title) + "-" + std::to_string(static_cast<int>(GetParam()));
        SCOPED_TRACE(name + " " + dialString(each.title).str());
        const MacroData before = data().macro()->macroData();
        const Vor_Macro macroBefore = macro();
        const Outcome outcome = run(each.title, [&](QWidget& shown) { visit(shown, name); });
        EXPECT_EQ(outcome, expectedAfterEscape(each.title));
        QTest::qWait(80);  // what is closed with a delay, longer on a busy machine
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownWindows().empty(); }));
        EXPECT_TRUE(data().macro()->macroData() == before);
        EXPECT_TRUE(macro() == macroBefore);
        EXPECT_FALSE(printed().isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryStarter,
                         testing::Values(Language::english, Language::german));

TEST_F(StartersTest, TheMenuHasThemAllWithMnemonicsOfTheirOwn) {
    for (const Language language :
         {Language::english, Language::dutch, Language::german, Language::french}) {
        gSettings.current().language = language;
        QMenu menu;
        ModuleData noData([](const Vor_String&) { return nullptr; });
        addStarters(menu, noData);
        size_t entries = 0;
        for (const QAction* sub : menu.actions()) {
            std::set<QChar> letters;
            for (const QAction* entry : sub->menu()->actions()) {
                const qsizetype mark = entry->text().indexOf('&');
                EXPECT_GE(mark, 0) << entry->text().toStdString();
                EXPECT_TRUE(letters.insert(entry->text()[mark + 1].toLower()).second)
                    << entry->text().toStdString();
                ++entries;
            }
        }
        EXPECT_EQ(entries, starters().size());
    }
}

TEST_F(StartersTest, SayWhatIsMissingWithoutALibrary) {
    window = std::make_unique<MainWindow>(WorkbenchSettings{});
    gSettings.setLibDir("");
    for (const int title : {StarterTitles::macro, macroModeless, macroCuts, profilesOfObjects})
        EXPECT_EQ(start(starter(title), data()), Outcome::noMacro) << title;
    EXPECT_TRUE(printed().contains("open a library"));
}

// --- what comes back ----------------------------------------------------------------------------

TEST_F(StartersTest, TypedValuesComeBackWithOK) {
    openProgram();
    const Outcome outcome = run(constructionGrid, [&](QWidget& shown) {
        QTest::keyClicks(QApplication::focusWidget(), "Hall");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        press(shown, IDOK);
    });
    EXPECT_EQ(outcome, Outcome::changed);
    EXPECT_EQ(data().objects.constructionGrid->name, "Hall");
    EXPECT_TRUE(printed().contains("Construction grid: changed"));
}

TEST_F(StartersTest, LettersWithAltPressButtonsFromWithinTheGrid) {
    openProgram();
    const Outcome outcome = run(rowsOfTexts, [&](QWidget& shown) {
        auto& rows = dynamic_cast<Vor_Spread&>(*dialogOf(shown)->item(stringArrayGrid));
        const int before = rows.nrRows();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shown) && rows.hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
        QTRY_COMPARE(rows.nrRows(), before + 1);  // the button shows that it is pressed first
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(rows.nrRows(), before);
        escape(shown);
    });
    EXPECT_EQ(outcome, Outcome::cancelled);
}

TEST_F(StartersTest, FilesDroppedOnTheProgramOpen) {
    openProgram();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(VORMANT_SOURCE_DIR "/library/Macros/EndPlate.macro"),
                   QUrl("https://example.org/IPE.pr")});
    const int pages = window->pages().count();
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(window->pages().count(), pages + 1);
    EXPECT_TRUE(dynamic_cast<MacroPage*>(window->pages().currentWidget()));

    QMimeData text;
    text.setText("IPE");
    QDragEnterEvent other({50, 50}, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(window.get(), &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(StartersTest, ChangesOfAMacroGoToItsPage) {
    openProgram();
    auto* page = dynamic_cast<MacroPage*>(openMacro("EndPlate"));
    ASSERT_TRUE(page);
    const auto type = [](int row, const char* text) {
        return [=](QWidget& shown) {
            valuesOf(shown).grid().setData(namedValuesValueColumn, row, text);
            press(shown, IDOK);
        };
    };
    EXPECT_EQ(run(StarterTitles::macro, type(1, "24")), Outcome::changed);
    EXPECT_EQ(asBoltModule(macro().findModule("Bolts"))->boltDiameter(), 24);
    EXPECT_TRUE(page->isChanged());
    EXPECT_EQ(run(constraintsModal, type(3, "321")), Outcome::changed);
    EXPECT_EQ(page->value("Plate.Height"), "321");
    EXPECT_EQ(run(profilesOfObjects, type(1, "IPE-400")), Outcome::changed);
    EXPECT_EQ(data().member().sectionName, "IPE-400");
    EXPECT_EQ(run(runStandard, escape), Outcome::succeeded) << printed().toStdString();
}

TEST_F(StartersTest, CutsChangeWithTheirType) {
    openProgram();
    EXPECT_EQ(run(macroCuts,
                  [&](QWidget& shown) {
                      valuesOf(shown).grid().setData(namedValuesValueColumn, 5, "-7.5");
                      valuesOf(shown).press(IDOK);
                  }),
              Outcome::cancelled)
        << "nothing was changed by the user";
    EXPECT_EQ(run(macroCuts,
                  [&](QWidget& shown) {
                      for (int i = 0; i < 3; ++i)  // module, name, type
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
                      QTest::keyClicks(QApplication::focusWidget(), "-7.5");
                      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                      press(shown, IDOK);
                  }),
              Outcome::changed);
    EXPECT_EQ(macro().findModule("Plate1")->findCut("Cope")->offsets[cutOffset], -7.5);
}

TEST_F(StartersTest, EntriesComeAndGoByKeysThatATextKeepsForItself) {
    openProgram();
    const Outcome outcome = run(levels, [&](QWidget& shown) {
        Vor_Spread& grid = valuesOf(shown).grid();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shown) && grid.hasFocus());
        const auto press = [](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QTest::qWait(20);
        };
        const int before = grid.nrRows();
        QTest::keyClicks(QApplication::focusWidget(), "Cellar");
        press(Qt::Key_Home);
        press(Qt::Key_Insert);
        press(Qt::Key_Delete);
        EXPECT_EQ(grid.nrRows(), before);
        press(Qt::Key_Return);
        press(Qt::Key_Insert);
        EXPECT_EQ(grid.nrRows(), before + 3);
        press(Qt::Key_Down);
        QTest::keyClicks(QApplication::focusWidget(), "-2500");
        press(Qt::Key_Return);
        for (int i = 0; i < 2; ++i) {
            grid.userMoves(namedValuesValueColumn, grid.nrRows());
            press(Qt::Key_Delete);
        }
        EXPECT_EQ(grid.nrRows(), before - 3);
        StartersTest::press(shown, IDOK);
    });
    EXPECT_EQ(outcome, Outcome::changed);
    const auto& made = data().objects.levels->levels;
    ASSERT_EQ(made.length(), 2);
    EXPECT_EQ(made[0].name, "ellar");
    EXPECT_EQ(made[1], (TwLevel{"ellar", -2500, true}));
}

TEST_F(StartersTest, CutsAndConstraintsThatComeOrGoDoSoInTheMacro) {
    openProgram();
    const auto at = [](int row, int button, std::initializer_list<const char*> texts) {
        return [=](QWidget& shown) {
            NamedValuesDialog& dialog = valuesOf(shown);
            dialog.grid().userMoves(namedValuesValueColumn, row);
            dialog.press(button);
            int next = dialog.grid().currentRow();
            for (const char* text : texts)
                EXPECT_TRUE(dialog.grid().userEnters(namedValuesValueColumn, next++, text)) << text;
            dialog.press(IDOK);
        };
    };
    const Vor_Array<CutConstraint> cuts = macro().findModule("Plate1")->cuts();
    EXPECT_EQ(run(macroCuts, at(2, namedValuesInsert, {"Plate1", "Own", "Round", "12"})),
              Outcome::changed);
    const CutConstraint* own = macro().findModule("Plate1")->findCut("Own");
    ASSERT_TRUE(own);
    EXPECT_EQ(own->offsets[cutRadius], 12);
    EXPECT_EQ(run(macroCuts, at(8, namedValuesDelete, {})), Outcome::changed);
    EXPECT_EQ(macro().findModule("Plate1")->cuts(), cuts);

    const Vor_Array<ConstraintVariable> before = macro().module(0).variables();
    EXPECT_EQ(run(constraintsModal, at(2, namedValuesInsert, {"Own", "7.5"})), Outcome::changed);
    const ConstraintVariable* variable = macro().module(0).findVariable("Own");
    ASSERT_TRUE(variable);
    EXPECT_EQ(variable->value, 7.5);
    EXPECT_EQ(run(constraintsModal, at(5, namedValuesDelete, {})), Outcome::changed);
    EXPECT_EQ(macro().module(0).variables(), before);

    const auto deleteAll = [&](QWidget& shown) {
        valuesOf(shown).grid().userSelects({1, 2, 2, valuesOf(shown).grid().nrRows()});
        valuesOf(shown).press(namedValuesDelete);
        valuesOf(shown).press(IDOK);
    };
    EXPECT_EQ(run(constraintsModal, deleteAll), Outcome::changed);
    EXPECT_TRUE(macro().module(0).variables().isEmpty());
    EXPECT_EQ(run(constraintsModal, at(1, namedValuesInsert, {"Again"})), Outcome::changed);
    EXPECT_TRUE(macro().module(0).findVariable("Again")) << "not in the next module that has some";
}

// --- modeless dialogs ---------------------------------------------------------------------------

TEST_F(StartersTest, ModelessMacroDialogsCloseByMenuAndTellTheMacroWhatWasConfirmed) {
    openProgram();
    const auto leave = [](QWidget&) {};
    for (int i = 0; i < 3; ++i) EXPECT_EQ(run(macroModeless, leave), Outcome::opened);
    const auto shown = shownWindows();
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(run(endMacroModeless, leave), Outcome::closed);
    EXPECT_EQ(shownWindows().size(), 2u);

    QWidget& first = *shownWindows().front();
    valuesOf(first).grid().setData(namedValuesValueColumn, 1, "33");
    press(first, IDOK);
    EXPECT_EQ(shownWindows().size(), 2u) << "busy with its own button";
    QTest::qWait(150);
    EXPECT_EQ(shownWindows().size(), 1u);
    EXPECT_EQ(asBoltModule(macro().findModule("Bolts1"))->boltDiameter(), 33);
    EXPECT_EQ(run(takeMacroData, leave), Outcome::changed);
    EXPECT_EQ(run(destroyAllMacros, leave), Outcome::closed);
    EXPECT_THAT(shownWindows(), IsEmpty());
    EXPECT_EQ(openMacroDialogs().length(), 0);
}

TEST_F(StartersTest, ClosingTheProgramUnloadsTheModuleWithAllThatIsOpen) {
    openProgram();
    for (const int title : {macroModeless, macroModeless, constraints})
        EXPECT_EQ(start(starter(title), data()), Outcome::opened);
    QTest::qWait(30);
    EXPECT_EQ(shownWindows().size(), 3u);
    press(*shownWindows().front(), IDCANCEL);  // one is just about to close
    EXPECT_TRUE(window->close());
    EXPECT_THAT(shownWindows(), IsEmpty());
    window.reset();
    QTest::qWait(100);
}

TEST_F(StartersTest, TheProgramMayGoWithoutBeingClosed) {
    openProgram();
    for (const int title : {macroModeless, constraints}) start(starter(title), data());
    QTest::qWait(30);
    window.reset();
    QTest::qWait(100);
    EXPECT_THAT(shownWindows(), IsEmpty());
}

TEST_F(StartersTest, QuestionsLieOverTheirDialog) {
    openProgram();
    int boxes = 0;
    const Outcome outcome = run(bracing, [&](QWidget& shown) {
        if (qobject_cast<QMessageBox*>(&shown)) {
            ++boxes;
            saveGrab(shown, "refused");
            escape(shown);
            return;
        }
        QTimer::singleShot(0, &shown, [&] {
            valuesOf(shown).grid().setData(namedValuesValueColumn, 4, "1e9");
            press(shown, IDOK);
            EXPECT_EQ(boxes, 1);
            escape(shown);
        });
    });
    EXPECT_EQ(outcome, Outcome::cancelled);
    EXPECT_EQ(boxes, 1);
}

TEST_F(StartersTest, SectionTablesOpenAsPagesThatSort) {
    openProgram();
    auto* page = dynamic_cast<TablePage*>(
        window->open(LibraryKind::sectionTable, gSettings.libDir() + "prof\\IPE.pr"));
    ASSERT_TRUE(page);
    QTableView& table = page->table();
    const auto first = [&] { return table.model()->index(0, 0).data().toString(); };
    EXPECT_EQ(first(), "80") << "as in the file";
    table.sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(first(), "750x220") << "by number, not by letter";
    window->resize(1000, 600);
    QTest::qWait(30);
    saveGrab(*window, "table-page");
}

}  // namespace
