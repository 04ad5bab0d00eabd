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
    const std::string path = paths::toMachine(gSettings.libDir() + "prof\\HEA.pr");
    const auto other = [&](const char* name) {
        const std::string text = file();
        const size_t line = text.find("\n220\t") + 1;
        std::string size = text.substr(line, text.find('\n', line) + 1 - line);
        size.replace(0, 3, name);
        std::filesystem::remove(path);
        std::ofstream(path, std::ios::binary) << text << size;
    };
    const auto add = [&](const char* own, const char* others) {
        return [&, own, others](QWidget& dialog) {
            auto* ownName = dialog.findChild<QWidget*>(QString::number(SizeDialog::ownName));
            QTest::mouseClick(ownName, Qt::LeftButton, {}, QPoint(8, ownName->height() / 2));
            fill(dialog, SizeDialog::nameField, own);
            other(others);
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
