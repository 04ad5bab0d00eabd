// Every dialog of the module looks well on the desktop, in every language.
#include <gmock/gmock.h>
#include <stdlib.h>

#include <QTest>
#include <memory>

#include "core_api/settings.h"
#include "frame/select_image_dialog.h"
#include "frame/starter_dialogs.h"
#include "frame/string_array_dialog.h"
#include "mapping_dialog/mapping_dialog.h"
#include "platform/paths.h"
#include "sections/dialogs/library_dialog.h"
#include "sections/dialogs/size_dialog.h"
#include "spread/formulas/formulas_dialog.h"
#include "support/temporary_folder.h"
#include "test_folders.h"
#include "workbench/dialog_problems.h"
#include "workbench/grid/show_grids.h"
#include "workbench/window/qt_window_system.h"

namespace {

const TwSSMapping noObjects;

/// The section library on one of its pages.
class LibraryOn : public LibraryDialog {
  public:
    explicit LibraryOn(Page page) : m_page(page) {
        gSettings.setLibDir(*paths::toInside(VORMANT_SOURCE_DIR "/library"));
        data().catalogue.groups.appendNewGrp();
        data().catalogue.types.append({});
        data().catalogue.types[0].group = 1;
        setSection("L-50x50x5");
    }

  protected:
    void onInit() override {
        LibraryDialog::onInit();
        pick(pageTabs, m_page);
    }

  private:
    Page m_page;
};

/// With a table that cannot be read.
class DamagedLibrary : public LibraryDialog {
  public:
    DamagedLibrary() {
        m_library.write("prof/A series of wide flange sections.pr", "1\nSysName\tI/O\n200\t\\x\n");
        gSettings.setLibDir(m_library.inside());
    }

  private:
    TemporaryFolder m_library;
};

/// A table with more values than the form has fields, its names not made of values alone.
class ManyValues : public SizeDialog {
  public:
    ManyValues() {
        gSettings.setLibDir(*paths::toInside(VORMANT_SOURCE_DIR "/library"));
        EXPECT_TRUE(data().table.readFromFile("HEA"));
    }
};

template <class Dialog, class... Arguments>
std::unique_ptr<CDialog> make(Arguments... arguments) {
    return std::make_unique<Dialog>(arguments...);
}

/// A section with parts, bars in stock and bars to buy.
std::unique_ptr<CDialog> stockDialog(bool savesAll) {
    auto dialog = std::make_unique<CSP2Dialog>();
    DlgCSP2Data& data = dialog->data();
    data.savesAll = savesAll;
    data.itemIds = {1, 2};
    data.itemNames = {"IPE 200", "HEA 200"};
    data.tables[0] = {
        {"Mark", "Length", "Number"}, {1, 1}, {{"B1", "5400", "6"}, {"B2", "880", "3"}}};
    data.tables[1] = {{"Length", "Number"}, {1, 1}, {{"12100", "2"}, {"6050", "5"}}};
    data.tables[2] = {{"Length", "Price"}, {1}, {{"15100", "29.40"}}};
    return dialog;
}

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
    {"cutstock", [] { return stockDialog(false); }},
    {"cutstock_saving", [] { return stockDialog(true); }},
    {"levels",
     [] {
         auto dialog = std::make_unique<LevelsDialog>();
         dialog->data().levels = {{"0.0 m", 0, true}, {"3.5 m", 3500, true}};
         return std::unique_ptr<CDialog>(std::move(dialog));
     }},
    {"bracing", [] { return std::unique_ptr<CDialog>(new BracingDialog); }},
    {"table",
     [] {
         const StringTable table{{"Name", "Size"}, {}, false, "DLG_TABLE", ""};
         return std::unique_ptr<CDialog>(new StringArrayDialog(table));
     }},
    {"library-tables", [] { return make<LibraryOn>(LibraryDialog::tables); }},
    {"library-groups", [] { return make<LibraryOn>(LibraryDialog::groups); }},
    {"library-types", [] { return make<LibraryOn>(LibraryDialog::types); }},
    {"library-damaged", [] { return make<DamagedLibrary>(); }},
    {"size", [] { return make<ManyValues>(); }},
    {"image", [] { return std::unique_ptr<CDialog>(new SelectImageDialog); }},
};

class ModuleDialogs : public testing::TestWithParam<Row> {
  protected:
    ModuleDialogs() {
        ::setenv("XDG_CONFIG_HOME", config.path().c_str(), 1);
        showGrids(system);
    }
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
        EXPECT_THAT(windowProblems(*widget), testing::IsEmpty()) << "language " << language;
        saveGrab(*widget, GetParam().name + std::to_string(language));
    }
}

INSTANTIATE_TEST_SUITE_P(All, ModuleDialogs, testing::ValuesIn(rows), [](const auto& row) {
    std::string name = row.param.name;
    std::erase(name, '-');
    return name;
});

}  // namespace
