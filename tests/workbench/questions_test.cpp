// What waits for an answer on the desktop: modal dialogs, message boxes, file choosers; and what
// goes on meanwhile.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <memory>

#include "spread/vor_spread.h"
#include "support/temporary_folder.h"
#include "workbench/desktop_fixture.h"
#include "workbench/dialog_problems.h"
#include "workbench/sample_dialog.h"

namespace {

using sample::Dialog;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST_F(Desktop, ModalDialogsEndByEnterEscapeAndTimers) {
    Dialog dialog;
    meanwhile([&] {
        EXPECT_EQ(QApplication::activeModalWidget(), system.widgetOf(dialog));
        key(Qt::Key_Return);
    });
    EXPECT_EQ(dialog.doModal(), IDOK);
    EXPECT_FALSE(system.widgetOf(dialog));

    meanwhile([&] { key(Qt::Key_Escape); });
    EXPECT_EQ(dialog.doModal(), IDCANCEL);

    int ticks = 0;
    const int timer = system.startTimer(10, [&](int number) {
        if (++ticks == 3) {
            dialog.press(IDOK);
            system.killTimer(number);
        }
    });
    EXPECT_EQ(dialog.doModal(), IDOK);
    EXPECT_EQ(ticks, 3);
    EXPECT_FALSE(system.killTimer(timer));
}

TEST_F(Desktop, ModalDialogsLieInEachOther) {
    Dialog outer;
    Dialog inner(&outer);
    outer.whenMore = [&] {
        meanwhile([&] {
            EXPECT_EQ(QApplication::activeModalWidget(), system.widgetOf(inner));
            const QRect over = widget<QWidget>(outer).geometry();
            EXPECT_LE(
                (widget<QWidget>(inner).geometry().center() - over.center()).manhattanLength(), 2);
            key(Qt::Key_Escape);
        });
        EXPECT_EQ(inner.doModal(), IDCANCEL);
        EXPECT_FALSE(outer.isEnded());
        outer.press(IDOK);
    };
    meanwhile([&] { click(widget<QWidget>(outer, sample::moreButton)); });
    EXPECT_EQ(outer.doModal(), IDOK);
}

// The outer dialog goes while its own button still waits for the inner one.
TEST_F(Desktop, ADialogMayEndAndGoWhileItsButtonIsPressed) {
    auto outer = std::make_unique<Dialog>();
    Dialog inner;
    outer->whenMore = [&] {
        meanwhile([&] {
            outer.reset();
            inner.press(IDOK);
        });
        inner.doModal();
    };
    outer->create();
    outer->show(true);
    propagate();
    click(widget<QWidget>(*outer, sample::moreButton));
    propagate();
    EXPECT_FALSE(outer);
}

TEST_F(Desktop, EndingTheProgramEndsModalDialogs) {
    Dialog dialog;
    meanwhile([&] { QCoreApplication::exit(); });
    QTimer::singleShot(0, qApp, [&] { EXPECT_EQ(dialog.doModal(), IDCANCEL); });
    QApplication::exec();
    EXPECT_FALSE(dialog.isCreated());
}

TEST_F(Desktop, MessageBoxesAnswerWithTheirButtons) {
    struct Case {
        MessageButtons buttons;
        Qt::Key key;
        int answer;
    };
    for (const Case& each : {Case{MessageButtons::ok, Qt::Key_Escape, IDOK},
                             {MessageButtons::okCancel, Qt::Key_Return, IDOK},
                             {MessageButtons::okCancel, Qt::Key_Escape, IDCANCEL},
                             {MessageButtons::yesNoCancel, Qt::Key_Return, IDYES},
                             {MessageButtons::yesNoCancel, Qt::Key_Escape, IDCANCEL},
                             {MessageButtons::yesNo, Qt::Key_Escape, IDNO},
                             {MessageButtons::retryCancel, Qt::Key_Return, IDRETRY}}) {
        meanwhile([&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text(), "Save <table>?");
            EXPECT_EQ(box->icon(), QMessageBox::Question);
            saveGrab(*box, "message");
            QTest::keyClick(box, each.key);
        });
        EXPECT_EQ(
            system.messageBox({"Sample", "Save <table>?", MessageIcon::question, each.buttons}),
            each.answer)
            << static_cast<int>(each.buttons) << ' ' << each.key;
    }
}

TEST_F(Desktop, AForgottenScreenBringsItsDialogsBack) {
    Dialog dialog;
    dialog.create();
    dialog.move({-5000, 9000, -4000, 9600});
    dialog.show(true);
    propagate();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().intersects(
        widget<QWidget>(dialog).geometry()));
    EXPECT_EQ(dialog.rect().left, widget<QWidget>(dialog).geometry().x());
}

// --- grids --------------------------------------------------------------------------------------

/// Counts how often it is told to look.
class CountedGrid : public QWidget {
  public:
    using QWidget::QWidget;
    int syncs = 0;
};

TEST_F(Desktop, GridsLookAfterEveryActionAndAreNotAskedOnceTheyAreGone) {
    system.showGridsWith([](TSpread&, QWidget* parent) { return new CountedGrid(parent); },
                         [](QWidget& grid) { ++static_cast<CountedGrid&>(grid).syncs; });
    Dialog dialog;
    dialog.create();
    Vor_Spread spread;
    ASSERT_TRUE(spread.attach(&dialog, sample::place, true));
    dialog.show(true);
    propagate();
    auto& grid = *dynamic_cast<CountedGrid*>(system.widgetOf(spread));
    EXPECT_EQ(grid.geometry().topLeft(), QPoint(spread.rect().left, spread.rect().top));

    grid.syncs = 0;
    click(widget<QWidget>(dialog, sample::check), {6, 8});
    EXPECT_GE(grid.syncs, 1);
    grid.syncs = 0;
    const int timer = system.startTimer(1, [](int) {});
    propagate();
    EXPECT_GE(grid.syncs, 1);
    system.killTimer(timer);
    propagate();
    grid.syncs = 0;
    spread.invalidate();
    spread.invalidate();
    propagate();
    EXPECT_EQ(grid.syncs, 1) << "changes of the program are shown together";
    spread.destroy();
    propagate();
    EXPECT_FALSE(system.widgetOf(spread));
}

// --- files and the clipboard --------------------------------------------------------------------

class FileChooser : public Desktop {
  protected:
    /// Types a name and confirms, answers what is asked then by these keys, and at last gives up.
    static void types(const QString& name, std::vector<Qt::Key> answers = {}) {
        meanwhile([=] {
            auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(chooser);
            saveGrab(*chooser, "files");
            chooser->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            if (!answers.empty()) answersNext(answers);
            static_cast<QDialog*>(chooser)->accept();  // hidden by the chooser's own
        });
    }
    static void answersNext(std::vector<Qt::Key> answers) {
        meanwhile([answers]() mutable {
            QWidget* asked = QApplication::activeModalWidget();
            ASSERT_TRUE(asked);
            const Qt::Key key = answers.front();
            answers.erase(answers.begin());
            if (!answers.empty()) answersNext(answers);
            QTest::keyClick(asked, key);
        });
    }
    std::vector<std::string> chosen(FileQuestion::Kind kind) {
        return system.chooseFiles({kind, "Sample", "Templates", "txt", folder.inside(), {}},
                                  nullptr);
    }
    TemporaryFolder folder;
};

TEST_F(FileChooser, AddsTheExtensionAndAsksBeforeItReplaces) {
    types("HEB 200.5");
    EXPECT_THAT(chosen(FileQuestion::Kind::save), ElementsAre(folder.inside("HEB 200.5.txt")));

    folder.write("HEB 200.5.txt", "");
    types("HEB 200.5", {Qt::Key_Return});
    EXPECT_THAT(chosen(FileQuestion::Kind::save), ElementsAre(folder.inside("HEB 200.5.txt")));
    types("HEB 200.5", {Qt::Key_Escape, Qt::Key_Escape});
    EXPECT_THAT(chosen(FileQuestion::Kind::save), IsEmpty()) << "not replaced, then given up";
    types("heb 200.5");
    EXPECT_THAT(chosen(FileQuestion::Kind::save), ElementsAre(folder.inside("heb 200.5.txt")))
        << "another file: nothing is replaced";
    types("HEB 200.5");
    EXPECT_THAT(chosen(FileQuestion::Kind::open), ElementsAre(folder.inside("HEB 200.5.txt")));
}

TEST_F(FileChooser, RefusesNamesThatCannotBeKept) {
    types(QString::fromUtf8("\xE6\x9D\xB1"), {Qt::Key_Return, Qt::Key_Escape});
    EXPECT_THAT(chosen(FileQuestion::Kind::save), IsEmpty());
}

TEST_F(FileChooser, FoldersEndInABackslash) {
    folder.write("sub/a.txt", "");
    types("sub");
    EXPECT_THAT(chosen(FileQuestion::Kind::folder), ElementsAre(folder.inside("sub\\")));
}

class SeveralChooser : public FileChooser {
  protected:
    SeveralChooser() {
        for (const char* name : {"a.txt", "b.txt", "bolted/c.txt", "welded/d.txt"})
            folder.write(name, "");
    }
    /// Works with the chooser: selects the names, then does the rest.
    std::vector<std::string> chosenWith(std::initializer_list<const char*> names,
                                        void (*then)(QFileDialog&),
                                        void (*before)(QFileDialog&) = nullptr) {
        meanwhile([names = std::vector<QString>(names.begin(), names.end()), then, before] {
            auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(chooser);
            auto* list = chooser->findChild<QListView*>("listView");
            QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 4);
            for (int row = 0; row < 4; ++row) {
                const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
                if (std::count(names.begin(), names.end(), index.data().toString()) > 0)
                    list->selectionModel()->select(
                        index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
            }
            EXPECT_THAT(windowProblems(*chooser), IsEmpty());
            saveGrab(*chooser, "files-and-folders");
            if (before) before(*chooser);
            then(*chooser);
        });
        return chosen(FileQuestion::Kind::openSeveral);
    }
    static void open(QFileDialog& chooser) { static_cast<QDialog&>(chooser).accept(); }
    static void take(QFileDialog& chooser) {
        auto* button = chooser.findChild<QPushButton*>("chooseFolder");
        EXPECT_TRUE(button->isEnabled());
        QTest::mouseClick(button, Qt::LeftButton);
    }
};

TEST_F(SeveralChooser, GivesFilesAndFoldersTogether) {
    EXPECT_THAT(chosenWith({"a.txt", "bolted"}, open),
                UnorderedElementsAre(folder.inside("a.txt"), folder.inside("bolted\\")));
    EXPECT_THAT(chosenWith({"bolted", "welded"}, take),
                UnorderedElementsAre(folder.inside("bolted\\"), folder.inside("welded\\")));
    EXPECT_THAT(chosenWith({"welded"}, take), ElementsAre(folder.inside("welded\\")));
    EXPECT_THAT(chosenWith({}, take), ElementsAre(folder.inside()));
    EXPECT_THAT(chosenWith({"a.txt", "b.txt"}, open),
                UnorderedElementsAre(folder.inside("a.txt"), folder.inside("b.txt")));
}

TEST_F(SeveralChooser, OpeningOneFolderEntersIt) {
    const auto enter = [](QFileDialog& chooser) {
        open(chooser);
        EXPECT_EQ(chooser.directory().dirName(), "bolted");
        EXPECT_TRUE(chooser.isVisible());
    };
    EXPECT_THAT(chosenWith(
                    {"bolted"},
                    [](QFileDialog& chooser) {
                        chooser.findChild<QLineEdit*>("fileNameEdit")->setText("c.txt");
                        open(chooser);
                    },
                    enter),
                ElementsAre(folder.inside("bolted\\c.txt")));
    EXPECT_THAT(chosenWith({"bolted"}, take, enter), ElementsAre(folder.inside("bolted\\")));
}

TEST_F(SeveralChooser, ItsButtonWaitsForAFolder) {
    const auto chosen = chosenWith({"a.txt"}, [](QFileDialog& chooser) {
        EXPECT_FALSE(chooser.findChild<QPushButton*>("chooseFolder")->isEnabled());
        QTest::keyClick(&chooser, Qt::Key_Escape);
    });
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(Desktop, TextsOfOtherProgramsAreTakenWholeOrNotAtAll) {
    system.setClipboardText("5 \x80\tx");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("5 \xE2\x82\xAC\tx"));
    EXPECT_EQ(system.clipboardText(), "5 \x80\tx");

    QGuiApplication::clipboard()->setText(QString::fromUtf8("a\xE6\x9D\xB1"));
    QString told;
    meanwhile([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        told = box->text();
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_EQ(system.clipboardText(), "");
    EXPECT_TRUE(told.contains("U+6771")) << told.toStdString();
}

}  // namespace
