// The program with a library in which every starter has something to work on, and a user who looks
// at each window that opens before doing something with it.
#pragma once

#include <gmock/gmock.h>
#include <stdlib.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <set>

#include "core_api/macros/macro_file.h"
#include "frame/editor/named_values_dialog.h"
#include "macros/sample_macro.h"
#include "platform/window/bitmap.h"
#include "support/temporary_folder.h"
#include "test_folders.h"
#include "workbench/macro/macro_page.h"
#include "workbench/module/starters_menu.h"
#include "workbench/sections/table_page.h"
#include "workbench/shell/main_window.h"

struct StarterTitles {
    static constexpr int macro = 24030, macroModeless = 24031, takeMacroData = 24032,
                         endMacroModeless = 24033, destroyAllMacros = 24034,
                         constraintsModal = 24035, constraints = 24036, endConstraints = 24037,
                         macroCuts = 24038, profilesOfObjects = 24040, rowsOfTexts = 24050,
                         readSheetFile = 24051, evaluate = 24053, dstvPoints = 24066,
                         saveCuttingStock = 24067, constructionGrid = 24070, levels = 24071,
                         bracing = 24073, runStandard = 24081, selfTest = 24082;
};

/// The settings as they were, and the user's own left alone, once the test is over.
struct OwnRegistry {
    OwnRegistry() { ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1); }
    ~OwnRegistry() {
        gSettings = before;
        ::unsetenv("XDG_CONFIG_HOME");
    }
    TemporaryFolder folder;
    Vor_Settings before = gSettings;
};

class StartersTest : public testing::Test, public StarterTitles {
  protected:
    using Visit = std::function<void(QWidget& window)>;

    void openProgram(Language language = Language::english) {
        WorkbenchSettings settings;
        settings.language = language;
        window = std::make_unique<MainWindow>(settings);
        window->show();
        fillLibrary();
        ASSERT_TRUE(window->openLibrary(m_library.path().string()));
    }
    QWidget* openMacro(const char* name) {
        return window->openMacro(m_library.inside(std::string("Macros\\") + name + ".macro"));
    }
    ModuleData& data() { return window->moduleData(); }
    const Vor_Macro& macro() { return *data().macro()->macro().macroRead(); }

    static const Starter& starter(int title) {
        for (const Starter& each : starters())
            if (each.title == title) return each;
        throw std::runtime_error("no such starter");
    }
    /// Every window that opens meanwhile is visited once.
    void whileVisiting(const std::function<void()>& action, const Visit& visit) {
        std::vector<QPointer<QWidget>> seen;
        for (QWidget* each : shownWindows()) seen.emplace_back(each);
        const auto isSeen = [&](QWidget* each) {
            return std::count(seen.begin(), seen.end(), each) > 0;
        };
        QTimer format;
        format.callOnTimeout([&] {
            for (QWidget* each : shownWindows()) {
                if (isSeen(each)) continue;
                if (QApplication::activeModalWidget() && QApplication::activeModalWidget() != each)
                    continue;
                seen.emplace_back(each);
                visit(*each);
                return;
            }
        });
        format.start(10);
        action();
        QTest::qWait(40);
        // On a busy machine a window that stays open may be shown later.
        EXPECT_TRUE(QTest::qWaitFor([&] { return std::ranges::all_of(shownWindows(), isSeen); }));
    }
    /// Works with the windows that ask meanwhile, in this order; all of them have to come.
    static void visitInTurn(const std::function<void()>& action, const std::vector<Visit>& visits) {
        size_t next = 0;
        std::set<QWidget*> seen;
        QTimer format;
        format.callOnTimeout([&] {
            QWidget* asked = QApplication::activeModalWidget();
            if (!asked || !asked->isActiveWindow() || !seen.insert(asked).second) return;
            if (next == visits.size()) ADD_FAILURE() << "an unexpected window";
            const Visit visit = next < visits.size() ? visits[next++] : Visit(escape);
            // What opens during a visit has its own. A window left open is an unexpected one then.
            QTimer::singleShot(0, asked, [visit, asked, &seen] {
                visit(*asked);
                seen.erase(asked);
            });
        });
        format.start(10);
        action();
        EXPECT_EQ(next, visits.size());
    }
    static Visit answers(const char* button, const char* said) {
        return [=](QWidget& shown) {
            auto* box = qobject_cast<QMessageBox*>(&shown);
            ASSERT_TRUE(box) << said;
            EXPECT_THAT(box->text().toStdString(), testing::HasSubstr(said));
            for (QAbstractButton* each : box->buttons())
                if (each->text().remove('&') == button) return each->click();
            FAIL() << button;
        };
    }
    Outcome run(int title, const Visit& visit) {
        Outcome outcome = Outcome::failed;
        whileVisiting([&] { outcome = start(starter(title), data()); }, visit);
        return outcome;
    }
    /// The windows of the module that are on the screen, and questions.
    std::vector<QWidget*> shownWindows() const {
        std::vector<QWidget*> shown;
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->isVisible() && each->windowFlags().testFlag(Qt::Dialog) &&
                each->windowType() == Qt::Dialog)
                shown.push_back(each);
        return shown;
    }
    static QtWindowSystem& system() {
        return dynamic_cast<QtWindowSystem&>(WindowSystem::current());
    }
    static CDialog* dialogOf(QWidget& window) {
        return dynamic_cast<CDialog*>(system().windowOf(&window));
    }
    static NamedValuesDialog& valuesOf(QWidget& window) {
        return dynamic_cast<NamedValuesDialog&>(*dialogOf(window));
    }
    static void press(QWidget& window, int id) {
        QTest::mouseClick(window.findChild<QWidget*>(QString::number(id)), Qt::LeftButton);
    }
    static void escape(QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }
    QString printed() { return window->commandPane().toPlainText(); }

    OwnRegistry m_registry;
    std::unique_ptr<MainWindow> window;

  private:
    void fillLibrary() {
        using std::filesystem::copy, std::filesystem::copy_options;
        copy(VORMANT_SOURCE_DIR "/library", m_library.path(), copy_options::recursive);
        Vor_String failure;
        std::string error;
        ASSERT_EQ(saveMacro(m_library.inside("Macros\\A sample.macro"), sampleMacro(), failure),
                  Acad::eOk)
            << failure.str();
        m_library.write("prof/Castellated beam.dwg", "");
        for (const char* name : {"Plate", "Angle"})
            ASSERT_TRUE(writeBitmap(CBitmap(64, 48, 0x4070A0),
                                    m_library.inside(std::string(name) + ".bmp"), error))
                << error;
    }

    TemporaryFolder m_library;
};
