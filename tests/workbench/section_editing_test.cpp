// Editing the sections of the library from the page of a table, as a user does.
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <fstream>
#include <iterator>

#include "core_api/sections/section_tables.h"
#include "platform/paths.h"
#include "sections/dialogs/library_dialog.h"
#include "sections/dialogs/size_dialog.h"
#include "spread/find_replace_dlg.h"
#include "workbench/dialog_problems.h"
#include "workbench/grid/grid_view.h"
#include "workbench/run/run_page.h"
#include "workbench/sections/table_page.h"
#include "workbench/sheet/sheet_page.h"
#include "workbench/starters_fixture.h"
#include "workbench/window/dialog_font.h"

namespace {

using testing::HasSubstr;

class SectionEditing : public StartersTest {
  protected:
    void SetUp() override {
        openProgram();
        page = dynamic_cast<TablePage*>(
            window->open(LibraryKind::sectionTable, gSettings.libDir() + "prof\\HEA.pr"));
        ASSERT_TRUE(page);
        QTest::qWait(20);
    }
    ~SectionEditing() override { gSectionTables.reload(); }

    /// Presses a button of the page and works with the windows that open.
    void press(int button, const std::vector<Visit>& visits) {
        auto* pressed = page->findChild<QPushButton*>(QString::number(button));
        ASSERT_TRUE(pressed);
        visitInTurn([&] { QTest::mouseClick(pressed, Qt::LeftButton); }, visits);
    }
    static void fill(QWidget& dialog, int id, const char* text) {
        auto* field = dialog.findChild<QLineEdit*>(QString::number(id));
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    QStringList sizes() const {
        QStringList all;
        const QAbstractItemModel& model = *page->table().model();
        for (int row = 0; row < model.rowCount(); ++row)
            all += model.index(row, 0).data().toString();
        return all;
    }
    std::string file() const {
        std::ifstream in(paths::toMachine(gSettings.libDir() + "prof\\HEA.pr"), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    /// Another program adds the values of 220 under this name.
    void addElsewhere(const char* name) const {
        const std::string path = paths::toMachine(gSettings.libDir() + "prof\\HEA.pr");
        const std::string text = file();
        const size_t line = text.find("\n220\t") + 1;
        std::string size = text.substr(line, text.find('\n', line) + 1 - line);
        size.replace(0, 3, name);
        std::filesystem::remove(path);
        std::ofstream(path, std::ios::binary) << text << size;
    }

    static constexpr int editLibrary = 25330, addSize = 25331;
    TablePage* page = nullptr;
};

TEST_F(SectionEditing, AddsASizeThatIsThereTheNextDay) {
    RunPage* run = window->openStandard(gSettings.libDir() + "Connection Standards\\FinPlate.tws");
    auto* sections = qobject_cast<QComboBox*>(run->editor("BeamSection"));
    ASSERT_TRUE(sections);
    const QString before = sections->currentText();
    window->pages().setCurrentWidget(page);
    EXPECT_TRUE(page->select("HEA-220"));
    press(addSize, {[&](QWidget& dialog) {
              fill(dialog, SizeDialog::firstValueField, "215");
              fill(dialog, SizeDialog::firstValueField + 1, "225");
              auto* name = dialog.findChild<QLineEdit*>(QString::number(SizeDialog::nameField));
              EXPECT_TRUE(name->text().contains("225")) << name->text().toStdString();
              saveGrab(dialog, "add-size");
              QTest::keyClick(&dialog, Qt::Key_Return);
          }});
    EXPECT_EQ(page->section(), "HEA-225") << "it is selected";
    EXPECT_EQ(sizes().mid(sizes().indexOf("220"), 3), (QStringList{"220", "225", "240"}));
    saveGrab(*window, "added-size");
    Vor_String width;
    EXPECT_EQ(getSectionValue("HEA-225", 1, width), Acad::eOk);
    EXPECT_EQ(width, "225");
    EXPECT_TRUE(ModuleData::sections("HEA").contains("HEA-225")) << "for those who choose one";
    EXPECT_GE(sections->findText("HEA-225"), 0) << "on pages that were open";
    EXPECT_EQ(sections->currentText(), before);

    window.reset();
    gSectionTables.reload();  // as a program that starts afresh
    EXPECT_EQ(getSectionValue("HEA-225", 0, width), Acad::eOk);
    EXPECT_EQ(width, "215");
}

TEST_F(SectionEditing, DrawsASizeOfAnOwnNameAndFindsItByThat) {
    EXPECT_TRUE(page->select("HEA-220"));
    const QImage before = page->drawing().figure().grab().toImage();
    press(addSize, {[&](QWidget& dialog) {
              fill(dialog, SizeDialog::firstValueField, "215");
              fill(dialog, SizeDialog::firstValueField + 1, "225");
              auto* own = dialog.findChild<QWidget*>(QString::number(SizeDialog::ownName));
              QTest::mouseClick(own, Qt::LeftButton, {}, QPoint(8, own->height() / 2));
              fill(dialog, SizeDialog::nameField, "HEA 225");
              saveGrab(dialog, "own-name");
              StartersTest::press(dialog, IDOK);
          }});
    EXPECT_EQ(page->section(), "HEA-HEA 225");
    EXPECT_EQ(page->drawing().reason(), "");
    EXPECT_NE(page->drawing().figure().grab().toImage(), before);
    EXPECT_TRUE(gSectionTables.find("hea 225")) << "by the name that was typed";
    saveGrab(*window, "own-name-drawn");
}

TEST_F(SectionEditing, WhatWasTypedIsKeptUntilTheTableCanBeWritten) {
    const std::filesystem::path folder = paths::toMachine(gSettings.libDir() + "prof");
    const auto away = folder.parent_path() / "away";
    const auto type = [&](QWidget& dialog) {
        fill(dialog, SizeDialog::firstValueField + 1, "225");
        std::filesystem::rename(folder, away);
        std::ofstream(folder) << "in the way";
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
    const auto clearTheWay = [&] {
        std::filesystem::remove(folder);
        std::filesystem::rename(away, folder);
    };
    press(addSize, {type, answers("Cancel", "Not a directory")});
    clearTheWay();
    EXPECT_FALSE(sizes().contains("225"));
    press(addSize, {type, answers("Retry", "Not a directory"), [&](QWidget& question) {
                        clearTheWay();
                        answers("Retry", "Not a directory")(question);
                    }});
    EXPECT_TRUE(sizes().contains("225"));
}

TEST_F(SectionEditing, ASizeJoinsThoseThatAnotherProgramAddedMeanwhile) {
    const auto add = [&](const char* own, const char* others) {
        return [&, own, others](QWidget& dialog) {
            auto* ownName = dialog.findChild<QWidget*>(QString::number(SizeDialog::ownName));
            QTest::mouseClick(ownName, Qt::LeftButton, {}, QPoint(8, ownName->height() / 2));
            fill(dialog, SizeDialog::nameField, own);
            addElsewhere(others);
            StartersTest::press(dialog, IDOK);
        };
    };
    EXPECT_TRUE(page->select("HEA-220"));
    press(addSize, {add("225", "226")});
    EXPECT_THAT(file(), testing::AllOf(HasSubstr("\n225\t"), HasSubstr("\n226\t")));
    press(addSize, {add("227", "227"), answers("Cancel", "HEA")});
    const std::string text = file();
    EXPECT_EQ(text.find("\n227\t"), text.rfind("\n227\t")) << "only the other's";
}

TEST_F(SectionEditing, PagesShowWhatAnotherProgramWrote) {
    RunPage* run = window->openStandard(gSettings.libDir() + "Connection Standards\\FinPlate.tws");
    auto* sections = qobject_cast<QComboBox*>(run->editor("BeamSection"));
    ASSERT_TRUE(sections);
    addElsewhere("226");
    constexpr int patience = 60'000;  // milliseconds; a moment but for slow builds
    EXPECT_TRUE(QTest::qWaitFor([&] { return sizes().contains("226"); }, patience));
    EXPECT_GE(sections->findText("HEA-226"), 0) << "and runs are made with it";

    // A sheet and a macro outside of the library: when the user comes back.
    const auto comeBack = [&] {
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(window.get(), &activated);
    };
    const TemporaryFolder folder;
    const std::string path = folder.inside("own.sss");
    const auto write = [&](const char* text) {
        control::Grid grid;
        grid.setCols(1);
        grid.setRows(1);
        grid.setData(1, 1, text);
        ASSERT_TRUE(grid.save(path));
    };
    write("old");
    SheetPage* sheet = window->openSheet(path);
    ASSERT_TRUE(sheet);
    const auto shown = [&] { return sheet->grid().text(1, 1, control::Reading::data); };
    comeBack();
    EXPECT_EQ(sheet->message(), "");
    write("new");
    comeBack();
    EXPECT_EQ(shown(), "new");
    EXPECT_THAT(sheet->message().toStdString(), HasSubstr("loaded again"));
    EXPECT_FALSE(sheet->isChanged());
    ASSERT_TRUE(sheet->spread().userEnters(1, 1, "mine"));
    write("newer");
    comeBack();
    EXPECT_EQ(shown(), "mine");
    EXPECT_THAT(sheet->message().toStdString(), HasSubstr("saving asks"));
    folder.write("own.sss", "damaged");
    sheet->editor().undo();
    comeBack();
    EXPECT_THAT(sheet->message().toStdString(), HasSubstr("cannot be loaded"));

    const std::string original = VORMANT_SOURCE_DIR "/library/Macros/EndPlate.macro";
    const auto writeMacro = [&](const char* height) {
        std::ifstream in(original, std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(in), {}};
        const std::string value = "module.Plate.var.Height\t";
        text.replace(text.find(value) + value.size(), 3, height);
        std::filesystem::remove(folder.path() / "own.macro");
        folder.write("own.macro", text);
    };
    writeMacro("200");
    auto* macro = dynamic_cast<MacroPage*>(window->openMacro(folder.inside("own.macro")));
    ASSERT_TRUE(macro);
    writeMacro("210");
    comeBack();
    EXPECT_EQ(macro->value("Plate.Height"), "210");
    EXPECT_THAT(macro->message().toStdString(), HasSubstr("loaded again"));
    macro->noteChange();
    writeMacro("220");
    comeBack();
    EXPECT_EQ(macro->value("Plate.Height"), "210") << "as it will be saved";
    EXPECT_THAT(macro->message().toStdString(), HasSubstr("saving asks"));
}

TEST_F(SectionEditing, CancelAddsNothing) {
    const std::string before = file();
    press(addSize, {[&](QWidget& dialog) {
              fill(dialog, SizeDialog::firstValueField + 1, "225");
              escape(dialog);
          }});
    EXPECT_FALSE(sizes().contains("225"));
    EXPECT_EQ(file(), before);
}

TEST_F(SectionEditing, EditsTheTableOfThePageInTheLibrary) {
    EXPECT_TRUE(page->select("HEA-240"));
    press(editLibrary, {[&](QWidget& dialog) {
              auto& library = dynamic_cast<LibraryDialog&>(*dialogOf(dialog));
              TableSheet& sheet = library.tablesPage()->sheet();
              EXPECT_EQ(sheet.grid().text(1, sheet.currentRow(), control::Reading::data), "240");
              auto* grid = dynamic_cast<GridView*>(system().widgetOf(sheet));
              ASSERT_TRUE(grid);
              grid->setFocus();
              ASSERT_TRUE(grid->hasFocus());
              const auto key = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
                  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
              };
              QTest::keyClicks(QApplication::focusWidget(), "245");
              key(Qt::Key_Return);
              key(Qt::Key_Insert, Qt::ControlModifier);
              key(Qt::Key_Z, Qt::ControlModifier);
              saveGrab(dialog, "edit-library");
              key(Qt::Key_S, Qt::ControlModifier);
              EXPECT_FALSE(sheet.isChanged());
              StartersTest::press(dialog, IDOK);
          }});
    EXPECT_TRUE(sizes().contains("245"));
    EXPECT_FALSE(sizes().contains("240"));
    EXPECT_THAT(file(), HasSubstr("\n245\t1\t"));
}

TEST_F(SectionEditing, FindsInTheSheetWhileTheLibraryIsOpen) {
    press(editLibrary, {[&](QWidget& dialog) {
              auto& library = dynamic_cast<LibraryDialog&>(*dialogOf(dialog));
              TableSheet& sheet = library.tablesPage()->sheet();
              StartersTest::press(dialog, TablesPage::findButton);
              QTest::qWait(50);
              ASSERT_TRUE(sheet.findDialog());
              QWidget& find = *system().widgetOf(*sheet.findDialog());
              EXPECT_TRUE(find.isActiveWindow());
              QTest::keyClicks(QApplication::focusWidget(), "HE 450 A");
              QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
              EXPECT_EQ(sheet.grid().text(1, sheet.currentRow(), control::Reading::data), "450");
              escape(find);
              escape(dialog);
          }});
}

TEST_F(SectionEditing, TheMenuWorksOnTheSizeThatIsSelected) {
    EXPECT_TRUE(page->select("HEA-300"));
    const Outcome outcome = run(24061, [&](QWidget& dialog) {
        EXPECT_EQ(
            dialog.findChild<QLineEdit*>(QString::number(SizeDialog::firstValueField))->text(),
            "290");
        fill(dialog, SizeDialog::firstValueField, "292");
        auto* own = dialog.findChild<QWidget*>(QString::number(SizeDialog::ownName));
        QTest::mouseClick(own, Qt::LeftButton, {}, QPoint(8, own->height() / 2));
        fill(dialog, SizeDialog::nameField, "305");
        StartersTest::press(dialog, IDOK);
    });
    EXPECT_EQ(outcome, Outcome::changed);
    EXPECT_TRUE(gSectionTables.find("HEA-305"));
    EXPECT_TRUE(sizes().contains("305"));
}

}  // namespace
