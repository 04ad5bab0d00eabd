// Every dialog of the module looks well on the desktop, in every language.
#include <gmock/gmock.h>
#include <stdlib.h>

#include <QTest>
#include <memory>

#include "core_api/settings.h"
#include "dialog_problems.h"
#include "frame/select_image_dialog.h"
#include "frame/starter_dialogs.h"
#include "frame/string_array_dialog.h"
#include "mapping/dialog/mapping_dialog.h"
#include "spread/formulas/formulas_dialog.h"
#include "support/temporary_folder.h"
#include "window/qt_window_system.h"

namespace {

const TwSSMapping noObjects;

struct Row {
    const char* name;
    std::unique_ptr<CDialog> (*make)();
};
const Row rows[] = {
    {"formulas", [] { return std::unique_ptr<CDialog>(new TwFormulasDlg(nullptr)); }},
    {"mapping",
     [] {
         return std::unique_ptr<CDialog>(new TwMappingDlg(nullptr, TabMappingData(), noObjects));
     }},
    {"bracing", [] { return std::unique_ptr<CDialog>(new BracingDialog); }},
    {"table",
     [] {
         const StringTable table{{"Name", "Size"}, {}, false, "DLG_TABLE", ""};
         return std::unique_ptr<CDialog>(new StringArrayDialog(table));
     }},
    {"image", [] { return std::unique_ptr<CDialog>(new SelectImageDialog); }},
};

class ModuleDialogs : public testing::TestWithParam<Row> {
  protected:
    ModuleDialogs() { ::setenv("XDG_CONFIG_HOME", config.path().c_str(), 1); }
    ~ModuleDialogs() override {
        gSettings = before;
        ::unsetenv("XDG_CONFIG_HOME");
    }

    TemporaryFolder config;
    Vor_Settings before = gSettings;
    QtWindowSystem system;
};

TEST_P(ModuleDialogs, LookWellInEveryLanguage) {
    for (int language = 0; language < languageCount; ++language) {
        gSettings.current().language = static_cast<Language>(language);
        const auto dialog = GetParam().make();
        ASSERT_TRUE(dialog->create());
        dialog->show(true);
        QTest::qWait(20);
        QWidget* widget = system.widgetOf(*dialog);
        ASSERT_TRUE(widget);
        EXPECT_THAT(dialogProblems(*widget), testing::IsEmpty()) << "language " << language;
        saveGrab(*widget, GetParam().name + std::to_string(language));
    }
}

INSTANTIATE_TEST_SUITE_P(All, ModuleDialogs, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
