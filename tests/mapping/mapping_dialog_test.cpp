// Attaching spreadsheets to a macro and mapping their variables, as a user does it.
#include <errno.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include "core_api/macros/macro_file.h"
#include "macros/sample_macro.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/mapping_dialog.h"
#include "mapping_dialog/start_mapping_dialog.h"
#include "platform/files.h"
#include "support/printed.h"
#include "support/standard_file.h"
#include "support/test_user.h"
#include "test_folders.h"

namespace {

using testing::HasSubstr;
using Dlg = TwMappingDlg;
using Step = std::function<void(CDialog&)>;

/// "Variable=Group.Kind Object", as the mapping file has them, for one line of it.
std::string lineOf(const std::string& key, const std::vector<std::array<const char*, 3>>& items) {
    std::string line = key + "=";
    for (const auto& [variable, group, object] : items) {
        if (line.back() != '=') line += '\xBF';
        line += std::string(variable) + "\x83" + group + "\x95" + object;
    }
    return line + "\n";
}
const std::string header = "Mapping version 1.0\n";

std::string textOf(Vor_Spread& grid, int col, int row) {
    Vor_String text;
    grid.getCellText(col, row, text, Vor_Spread::Reading::data);
    return text.str();
}
std::string textsOf(Vor_Spread& grid) {
    std::string texts;
    for (int row = 1; row <= grid.nrRows(); ++row) {
        for (int col = 1; col <= grid.nrCols(); ++col)
            texts += (col > 1 ? "|" : "") + textOf(grid, col, row);
        texts += "\n";
    }
    return texts;
}

Step inSheets(int col, int row, const char* text) {
    return [=](CDialog& dialog) {
        EXPECT_TRUE(static_cast<Dlg&>(dialog).sheetsGrid().userEnters(col, row, text)) << text;
    };
}
Step selectsRow(int row) {
    return [=](CDialog& dialog) {
        EXPECT_TRUE(static_cast<Dlg&>(dialog).sheetsGrid().userMoves(1, row)) << row;
    };
}
Step maps(int row, const char* text) {
    return [=](CDialog& dialog) {
        EXPECT_TRUE(static_cast<Dlg&>(dialog).objectsGrid().userEnters(3, row, text)) << text;
    };
}
Step showsSheets(std::string expected) {
    return [=](CDialog& dialog) {
        EXPECT_EQ(textsOf(static_cast<Dlg&>(dialog).sheetsGrid()), expected);
    };
}
Step showsObjects(std::string expected) {
    return [=](CDialog& dialog) {
        EXPECT_EQ(textsOf(static_cast<Dlg&>(dialog).objectsGrid()), expected);
    };
}

/// Files in folders with this in their path cannot be written.
class ReadOnly : public files::WriteSteps {
  public:
    explicit ReadOnly(std::string part) : m_part(std::move(part)) {
        files::installWriteSteps(this);
    }
    ~ReadOnly() override { files::installWriteSteps(nullptr); }
    int open(const std::string& path, std::optional<unsigned> permissions, int& file) override {
        if (path.find(m_part) != std::string::npos) return EACCES;
        return WriteSteps::open(path, permissions, file);
    }

  private:
    std::string m_part;
};

class MappingDialog : public testing::Test {
  protected:
    MappingDialog() {
        ::setenv("XDG_CONFIG_HOME", config.path().c_str(), 1);
        library.writeStandard("Plate", standardOf({"Double Gap", "String Count", "Int Start"},
                                                  {"Double Width"}, {"Double Half"}, {}));
        library.writeStandard("Other/Bolt", standardOf({"Double Gap"}, {"Double Long"}, {}, {}));
        all.initAllVarsFromMacro(&macro, nullptr);
        data.setModuleGroups({"Plates", "Bolts"});
        writePlateMap(stored);
    }
    ~MappingDialog() override { ::unsetenv("XDG_CONFIG_HOME"); }

    void writePlateMap(const std::string& lines) {
        library.write("Connection Standards/Plate.map", header + lines);
    }
    std::string plateMap() const { return library.read("Connection Standards/Plate.map"); }
    /// Runs the dialog as the user was told to; whether it was closed with OK.
    bool run() {
        changed = false;
        return startMappingDialog(data, all, changed);
    }

    TemporaryFolder config;
    TemporaryLibrary library;
    Vor_DbMacro macro = sampleMacro();
    TwSSMapping all;
    TabMappingData data;
    bool changed = false;
    TestUser user;
    const std::string stored = lineOf(
        "first", {{"Gap", "Plates", "Distance D1"}, {"Count", "Bolts", "PatternNrBolts1 Grid"}});
};

const std::string plateAsStored =
    "Input||\nDecim|Gap|Plates.D1\nTekst|Count|Bolts.Grid.PatternNrBolts1\nGetal|Start|\n"
    "Output||\nDecim|Width|\n";

TEST_F(MappingDialog, ShowsWhatIsAttachedAndWritesNothingWithoutAChange) {
    data.insertRow(0, "Plate", "first");
    data.insertRow(1, "Other\\Bolt", "Module.Bolts");
    data.insertRow(2, "Other\\Bolt", "Module.Gone");
    const TabMappingData before = data;
    user.whenOpens(Dlg::resourceNumber)
        .does(showsSheets("Plate|<Entire macro>\nOther\\Bolt|Bolts\nOther\\Bolt|Gone\n"))
        .does(showsObjects(plateAsStored))
        .does([](CDialog& dialog) {
            auto& grid = static_cast<Dlg&>(dialog).objectsGrid();
            std::string titles;
            for (int col = 1; col <= 3; ++col)
                titles += textOf(grid, col, Vor_Spread::headerIndex) + "|";
            EXPECT_EQ(titles, "Type|Std Name|Macro object|");
            EXPECT_FALSE(grid.userEnters(3, 1, "Plates.D1"));
            EXPECT_FALSE(grid.userEnters(2, 2, "Other"));
            EXPECT_FALSE(grid.userEnters(3, 2, "Plates.Nothing"));
            EXPECT_FALSE(grid.userEnters(3, 2, "Bolts.Grid.PatternNrBolts1"));  // a text
            EXPECT_EQ(dialog.text(), "Add and edit standards-spreadsheets");
        })
        .does(selectsRow(2))
        .does(showsObjects(""))
        .does(selectsRow(1))
        .does(showsObjects(plateAsStored))
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_FALSE(changed);
    EXPECT_EQ(data, before);
    EXPECT_EQ(plateMap(), header + stored);
}

TEST_F(MappingDialog, AChangedMappingGetsAKeyOfItsOwnAndOthersKeepTheirs) {
    struct Case {
        int row;
        const char* object;
        std::string expected;  // behind the new key
    };
    const Case cases[] = {
        {2, "Plates.D2",
         lineOf("",
                {{"Gap", "Plates", "Distance D2"}, {"Count", "Bolts", "PatternNrBolts1 Grid"}})},
        {6, "gen_Gap.GenVar",
         lineOf("", {{"Gap", "Plates", "Distance D1"},
                     {"Count", "Bolts", "PatternNrBolts1 Grid"},
                     {"Width", "", "GenVar gen_Gap"}})},
        {4, "Bolts.Row.PatternReverseStart1",
         lineOf("", {{"Gap", "Plates", "Distance D1"},
                     {"Count", "Bolts", "PatternNrBolts1 Grid"},
                     {"Start", "Bolts", "PatternReverseStart1 Row"}})},
        // Taking an object away is a change too.
        {2, "", lineOf("", {{"Count", "Bolts", "PatternNrBolts1 Grid"}})},
    };
    for (const Case& row : cases) {
        writePlateMap(stored);
        data = TabMappingData();
        data.insertRow(0, "Plate", "first");
        user.whenOpens(Dlg::resourceNumber).does(maps(row.row, row.object)).presses(IDOK);
        ASSERT_TRUE(run());
        EXPECT_TRUE(changed);
        const std::string key = data.mappingKeys()[0].str();
        EXPECT_EQ(key.size(), 24u);
        EXPECT_EQ(plateMap(), header + stored + key + row.expected) << row.object;
        EXPECT_EQ(data.standardsNames()[0], "Plate");
    }
}

TEST_F(MappingDialog, CancelLeavesEverythingAsItWas) {
    data.insertRow(0, "Plate", "first");
    const TabMappingData before = data;
    user.whenOpens(Dlg::resourceNumber)
        .does(maps(2, "Plates.D2"))
        .presses(Dlg::addButton)
        .does(inSheets(1, 2, "Other\\Bolt"))
        .does(maps(2, "Plates.D1"))
        .does(selectsRow(1))
        .presses(Dlg::removeButton)
        .presses(IDCANCEL);
    EXPECT_FALSE(run());
    EXPECT_FALSE(changed);
    EXPECT_EQ(data, before);
    EXPECT_EQ(plateMap(), header + stored);
    EXPECT_FALSE(std::filesystem::exists(library.path() / "Connection Standards/Other/Bolt.map"));
}

TEST_F(MappingDialog, RowsAreAddedMovedRemovedAndTurnedToGroupsAndBack) {
    data.insertRow(0, "Plate", "first");
    user.whenOpens(Dlg::resourceNumber)
        .presses(Dlg::addButton)
        .does(showsSheets("Plate|<Entire macro>\n|<Entire macro>\n"))
        .does(showsObjects(""))
        .does(inSheets(1, 2, "Other\\Bolt"))
        // Nothing is stored for it: it is proposed what the row before had.
        .does(showsObjects("Input||\nDecim|Gap|Plates.D1\nOutput||\nDecim|Long|\n"))
        .does(inSheets(2, 2, "Bolts"))
        .does(showsObjects(""))
        .presses(Dlg::moveUpButton)
        .presses(Dlg::moveUpButton)
        .does(showsSheets("Other\\Bolt|Bolts\nPlate|<Entire macro>\n"))
        .does(selectsRow(2))
        .does(inSheets(2, 2, "Plates"))
        .does(inSheets(2, 2, "<Entire macro>"))
        .does(showsObjects(plateAsStored))
        .presses(Dlg::moveDownButton)
        .presses(Dlg::addButton)
        .presses(Dlg::removeButton)
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_TRUE(changed);
    EXPECT_EQ(data.standardsNames(), (Vor_StringArray{"Other\\Bolt", "Plate"}));
    EXPECT_EQ(data.mappingKeys(), (Vor_StringArray{"Module.Bolts", "first"}));
    EXPECT_EQ(data.moduleGroups(), (Vor_StringArray{"Plates", "Bolts"}));
    EXPECT_EQ(plateMap(), header + stored);

    // From a stored group to the entire macro: there was no key.
    user.whenOpens(Dlg::resourceNumber)
        .does(inSheets(2, 1, "<Entire macro>"))
        .does(maps(4, "Plates.Dist.x"))
        .does(maps(4, ""))
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_EQ(data.mappingKeys(), (Vor_StringArray{"", "first"}));
    // Everything goes.
    user.whenOpens(Dlg::resourceNumber)
        .presses(Dlg::removeButton)
        .presses(Dlg::removeButton)
        .does([](CDialog& dialog) {
            EXPECT_FALSE(dialog.item(Dlg::removeButton)->isEnabled());
            EXPECT_EQ(textsOf(static_cast<Dlg&>(dialog).objectsGrid()), "");
        })
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_EQ(data.length(), 0);
}

TEST_F(MappingDialog, AnObjectThatIsGoneIsShownAndKeptUntilItIsChanged) {
    const std::string gone = lineOf(
        "first", {{"Gap", "Plates", "Distance Gone"}, {"Count", "Bolts", "PatternNrBolts1 Grid"}});
    writePlateMap(gone);
    data.insertRow(0, "Plate", "first");
    user.whenOpens(Dlg::resourceNumber).presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(plateMap(), header + gone);

    user.whenOpens(Dlg::resourceNumber)
        .does([](CDialog& dialog) {
            EXPECT_EQ(textOf(static_cast<Dlg&>(dialog).objectsGrid(), 3, 2),
                      "Plates.Gone (missing)");
        })
        .does(maps(6, "Plates.D2"))
        .does(maps(2, "Plates.Gone (missing)"))
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_THAT(plateMap(), HasSubstr(lineOf(data.mappingKeys()[0].str(),
                                             {{"Gap", "Plates", "Distance Gone"},
                                              {"Count", "Bolts", "PatternNrBolts1 Grid"},
                                              {"Width", "Plates", "Distance D2"}})));
    user.whenOpens(Dlg::resourceNumber).does(maps(2, "Plates.D1")).presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_THAT(plateMap(),
                HasSubstr(data.mappingKeys()[0].str() + "=Gap\x83Plates\x95" + "Distance D1\xBF"));
}

TEST_F(MappingDialog, ASpreadsheetThatCannotBeReadIsToldOnceAndKept) {
    library.writeStandard("NoMarkers", documentOf({{"Nothing"}}));
    data.insertRow(0, "Plate", "first");
    data.insertRow(1, "Gone", "k");
    data.insertRow(2, "NoMarkers", "");
    const TabMappingData before = data;
    user.whenMessage("Gone.tws").presses(IDOK);
    user.whenMessage("NoMarkers.tws").presses(IDOK);
    user.whenOpens(Dlg::resourceNumber)
        .does(selectsRow(2))
        .does(showsObjects(plateAsStored))
        .does(selectsRow(3))
        .does(selectsRow(2))
        .does(selectsRow(1))
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(user.messages().size(), 2u);
    EXPECT_EQ(data, before);
}

TEST_F(MappingDialog, ARowNeedsASpreadsheet) {
    user.whenMessage("Row: 1").presses(IDOK);
    user.whenOpens(Dlg::resourceNumber)
        .presses(Dlg::addButton)
        .presses(IDOK)
        .does(inSheets(1, 1, "Plate"))
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(data.standardsNames(), (Vor_StringArray{"Plate"}));
}

TEST_F(MappingDialog, WhenOneMappingCannotBeWrittenNoneIsAndNothingIsLost) {
    data.insertRow(0, "Plate", "first");
    data.insertRow(1, "Other\\Bolt", "k");
    library.write("Connection Standards/Other/Bolt.map", header + "k=\n");
    auto readOnly = std::make_unique<ReadOnly>("/Other/");
    user.whenMessage("no file was changed").presses(IDOK);
    user.whenOpens(Dlg::resourceNumber)
        .does(maps(2, "Plates.D2"))
        .does(selectsRow(2))
        .does(maps(4, "gen_Gap.GenVar"))
        .presses(IDOK)
        .does([&](CDialog& dialog) {
            EXPECT_FALSE(dialog.isEnded());
            EXPECT_EQ(plateMap(), header + stored);
            readOnly.reset();
        })
        .presses(IDOK);
    ASSERT_TRUE(run());
    ASSERT_EQ(user.messages().size(), 1u);
    EXPECT_THAT(user.messages()[0].text, HasSubstr("Bolt.map"));
    EXPECT_THAT(plateMap(), HasSubstr(data.mappingKeys()[0].str() + "=Gap"));
    EXPECT_THAT(library.read("Connection Standards/Other/Bolt.map"),
                HasSubstr(data.mappingKeys()[1].str() + "="));
}

TEST_F(MappingDialog, AMappingFileThatCannotBeReadIsToldAndStays) {
    const std::string big(40 << 20, 'x');  // beyond what text files may be
    library.write("Connection Standards/Plate.map", big);
    data.insertRow(0, "Plate", "first");
    user.whenMessage("cannot be read").presses(IDOK);
    user.whenMessage("not saved").presses(IDOK);
    user.whenOpens(Dlg::resourceNumber)
        .does(maps(2, "Plates.D2"))
        .presses(IDOK)
        .does(maps(2, ""))
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_FALSE(changed);
    EXPECT_EQ(plateMap().size(), big.size());
}

TEST_F(MappingDialog, ObjectsThatARunWouldNotFindAreToldOfAndNamesThatNoFileHoldsStayUnmapped) {
    library.writeStandard("Names",
                          standardOf({"Int Start", "Double a:b"}, {"Double Start"}, {}, {}));
    data.insertRow(0, "Names", "");
    user.whenMessage("Start").presses(IDOK);
    user.whenOpens(Dlg::resourceNumber)
        .does(showsObjects("Input||\nGetal|Start|\nDecim|a:b|cannot be mapped under this name\n"
                           "Output||\n"))
        .does(maps(2, "Plates.D1"))
        .presses(IDOK);
    ASSERT_TRUE(run());
    user.whenOpens(Dlg::resourceNumber)
        .does([](CDialog& dialog) {
            auto& grid = static_cast<Dlg&>(dialog).objectsGrid();
            EXPECT_EQ(textOf(grid, 3, 2), "Plates.D1");
            EXPECT_FALSE(grid.userEnters(3, 3, "Plates.D1"));
        })
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_FALSE(changed);
}

TEST_F(MappingDialog, WithNobodyThereItChangesNothing) {
    const Printed host;
    data.insertRow(0, "Plate", "first");
    WindowSystem* before = WindowSystem::install(nullptr);
    EXPECT_FALSE(run());
    WindowSystem::install(before);
}

TEST(MappingDialogLibrary, TheMacrosOfTheLibraryAreMappedWhole) {
    TemporaryFolder config;
    ::setenv("XDG_CONFIG_HOME", config.path().c_str(), 1);
    const Vor_Settings before = gSettings;
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library");
    for (const char* name : {"EndPlate", "FinPlate", "BasePlate"}) {
        Vor_DbMacro macro;
        Vor_String message;
        ASSERT_EQ(loadMacro(gSettings.libDir() + "Macros\\" + name + ".macro", macro, message),
                  Acad::eOk);
        TestUser user;
        user.whenOpens(Dlg::resourceNumber)
            .does([](CDialog& dialog) {
                auto& grid = static_cast<Dlg&>(dialog).objectsGrid();
                EXPECT_GT(grid.nrRows(), 10);
                EXPECT_THAT(textsOf(grid), testing::Not(HasSubstr("(missing)")));
                EXPECT_THAT(textsOf(grid), HasSubstr("|Prof0.PrPlName"));
            })
            .presses(IDOK);
        bool changed = true;
        EXPECT_TRUE(startMappingDialog(macro, changed)) << name;
        EXPECT_FALSE(changed) << name;
    }
    Vor_DbMacro none;
    bool changed = false;
    EXPECT_FALSE(startMappingDialog(none, changed));
    gSettings = before;
    ::unsetenv("XDG_CONFIG_HOME");
}

TEST(ObjectList, NamesEveryObjectOnceByGroupNameAndKind) {
    struct Case {
        TwObjectMap object;
        const char* label;
    };
    const Case cases[] = {
        {TwObjectMap("Plate", TwMapType::distance, "D1"), "Plate.D1"},
        {TwObjectMap("", TwMapType::memberSectionSize, "Prof0;3"), "Prof0;3"},
        {TwObjectMap("", TwMapType::genVar, "gen_Gap"), "gen_Gap.GenVar"},
        {TwObjectMap("Bolts", TwMapType::boltsDiameter, ""), "Bolts.BoltsDiameter"},
        {TwObjectMap("Plate", TwMapType::cutOffset, "Cope"), "Plate.Cope.CutOffset"},
        // A distance may be called like a cut's offset.
        {TwObjectMap("Plate", TwMapType::distance, "Cope.CutOffset"), "Plate.Cope.CutOffset (2)"},
        {TwObjectMap("plate", TwMapType::distance, "d1"), nullptr},  // there already
        {TwObjectMap("", TwMapType::prPlName, "Prof0"), nullptr},    // a text
    };
    TwSSMapping all;
    Vor_StringArray labels;
    for (const Case& row : cases) {
        all.mappedObjectsWrite().append(row.object);
        if (row.label) labels.append(row.label);
    }
    const ObjectList list(all, TwValueType::Int);
    EXPECT_EQ(list.labels(), labels);
    for (const Case& row : cases) {
        if (!row.label) continue;
        EXPECT_EQ(list.labelOf(row.object), row.label);
        ASSERT_NE(list.find(row.label), nullptr);
        EXPECT_EQ(list.find(row.label)->isCompatible(row.object), Acad::eOk) << row.label;
    }
    EXPECT_EQ(list.find("Plate.D2"), nullptr);
    EXPECT_FALSE(list.labelOf(cases[7].object));
}

}  // namespace
