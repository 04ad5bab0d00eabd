// Adding one size to a section table.
#include "sections/dialogs/size_dialog.h"

#include <gmock/gmock.h>

#include "core_api/settings.h"
#include "drawing/section_outline.h"
#include "frame/starters.h"
#include "platform/window/bitmap.h"
#include "sections/section_area.h"
#include "sections/section_check.h"
#include "support/printed.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"
#include "test_folders.h"

namespace {

using testing::HasSubstr;
using Dlg = SizeDialog;

/// Rows of a system name, a user name and values.
Vor_ProfValuesTable tableOf(const std::vector<std::vector<std::string>>& rows) {
    Vor_ProfValuesTable table;
    table.tableName = "T";
    table.drawnAs = "1";
    table.columnNames = {"SysName", "I/O", "English", "Dutch", "German", "French"};
    for (size_t i = 2; i < rows[0].size(); ++i) table.columnNames.append("Height");
    for (const auto& row : rows) {
        Vor_StringArray cells{row[0], "1", row[1], row[1], row[1], row[1]};
        for (size_t i = 2; i < row.size(); ++i) cells.append(row[i]);
        table.rows.append(cells);
    }
    return table;
}

Vor_ProfValuesTable wideFlanges() {
    return tableOf({{"100", "HEA 100", "96", "100", "5"},
                    {"220", "HEA 220", "210", "220", "7"},
                    {"240", "HEA 240", "230", "240", "7.5"}});
}

std::string namesOf(const Vor_ProfValuesTable& table) {
    std::string names;
    for (const Vor_StringArray& row : table.rows) names += row[0].str() + " ";
    return names;
}

TEST(SizeNaming, FindsTheValuesThatNamesAreMadeOf) {
    struct Row {
        const char* what;
        std::vector<std::vector<std::string>> rows;
        int from;
        Vor_Array<int> values;
        const char* prefix;
    };
    const Row rows[] = {
        {"one number", {{"220", "HEA 220", "210", "220", "7"}}, 0, {1}, "HEA "},
        {"parts in order", {{"50x30x3.2", "RHS 50", "50", "30", "3.20"}}, 0, {0, 1, 2}, "RHS "},
        {"each value once", {{"50x50x4", "L 50", "50", "50.0", "4"}}, 0, {0, 1, 2}, "L "},
        {"a value too few", {{"50x50x4", "L", "50", "4"}}, 0, {}, "none"},
        {"not numbers", {{"Mx2", "A", "2", "M"}}, 0, {1, 0}, "A"},
        {"texts by their text", {{"M", "A", "m"}}, 0, {}, "none"},
        {"the next row that fits",
         {{"100", "A 100", "100"}, {"big", "B", "5"}, {"300", "C 300", "300"}},
         1,
         {0},
         "C "},
        {"rows above do not count", {{"100", "A", "100"}, {"big", "B", "5"}}, 1, {}, "none"},
        {"from no row", {{"100", "A", "100"}}, 7, {}, "none"},
    };
    for (const Row& row : rows) {
        const SizeNaming naming = findSizeNaming(tableOf(row.rows), row.from);
        EXPECT_EQ(naming.values, row.values) << row.what;
        const Vor_String last = naming.prefixes.isIndex(3) ? naming.prefixes[3] : "none";
        EXPECT_EQ(last, row.prefix) << row.what;
    }
    EXPECT_EQ((SizeNaming{{1, 4, 0}, {}}.nameOf({"a", "b"})), "bxa");
}

TEST(AddSize, PutsTheNewSizeWhereItsNameBelongs) {
    struct Row {
        std::vector<std::string> names;
        const char* added;
        const char* expected;
    };
    const Row rows[] = {
        {{"80", "100", "220"}, "90", "80 90 100 220 "},
        {{"80", "100", "220"}, "1000", "80 100 220 1000 "},
        {{"80", "100", "220"}, "9", "9 80 100 220 "},
        {{"20x20x3", "30x20x3", "30x30x3", "40x20x4"},
         "30x20x4",
         "20x20x3 30x20x3 30x20x4 30x30x3 40x20x4 "},
        // Those of equal sides stand among themselves.
        {{"60x40x5", "20x20x3", "50x30x5", "40x40x4"},
         "30x30x3",
         "60x40x5 20x20x3 30x30x3 50x30x5 40x40x4 "},
        {{"60x40x5", "20x20x3", "50x30x5", "40x40x4"},
         "50x50x3",
         "60x40x5 20x20x3 50x30x5 40x40x4 50x50x3 "},
        {{"60x40x5", "20x20x3", "50x30x5", "40x40x4"},
         "10x10x3",
         "60x40x5 20x20x3 10x10x3 50x30x5 40x40x4 "},
        {{"60x40x5", "50x30x5"}, "10x10x3", "60x40x5 10x10x3 50x30x5 "},
    };
    for (const Row& row : rows) {
        std::vector<std::vector<std::string>> sizes;
        for (const std::string& name : row.names) sizes.push_back({name, "", "1"});
        Vor_ProfValuesTable table = tableOf(sizes);
        EXPECT_GE(addSize(table, {0, row.added, {}, {"2"}}), 0);
        EXPECT_EQ(namesOf(table), row.expected) << row.added;
    }
}

TEST(AddSize, CopiesThePatternAndCountsActiveSizes) {
    Vor_ProfValuesTable table = wideFlanges();
    table.rows[0][1] = "0";
    table.rows[1][1] = "0";
    EXPECT_EQ(addSize(table, {1, "225", {"a", "b", "c", "d"}, {"215", "225"}}), 0);
    EXPECT_EQ(table.rows[2], (Vor_StringArray{"225", "1", "a", "b", "c", "d", "215", "225", "7"}));
    const Vor_ProfValuesTable before = table;
    table.rows[0] = {"100"};
    EXPECT_EQ(addSize(table, {0, "110", {}, {}}), -1) << "one cell";
    table.rows[0] = {"100", "1", "", "", "", "", "96"};
    EXPECT_EQ(addSize(table, {0, "110", {}, {}}), -1) << "values are missing";
    EXPECT_EQ(addSize(table, {9, "110", {}, {}}), -1) << "no such row";
    EXPECT_EQ(table.rows.length(), before.rows.length());
}

// --- the dialog ---------------------------------------------------------------------------------

class SizeDialogTest : public testing::Test {
  protected:
    ~SizeDialogTest() override { gSettings = Vor_Settings(); }

    bool run() { return StartDlgEditLibSimple("", table, row); }
    ScriptedUser::Answer& opens() { return user.whenOpens(Dlg::resourceNumber); }
    static std::string text(const CDialog& dialog, int id) { return dialog.item(id)->text(); }

    Printed host;
    HostScope installed{host};
    TestUser user;
    Vor_ProfValuesTable table = wideFlanges();
    int row = 1;
};

TEST_F(SizeDialogTest, ShowsThePatternAndNamesTheSizeByItsValues) {
    gSettings.current().language = Language::german;
    opens()
        .does([](CDialog& dialog) {
            EXPECT_EQ(dialog.text(),
                      "Neue Gr\xF6\xDF"
                      "e");
            EXPECT_EQ(text(dialog, Dlg::nameLabel), "Name:");
            EXPECT_EQ(text(dialog, Dlg::firstValueLabel + 1), "B. H\xF6he:");
            EXPECT_EQ(text(dialog, Dlg::firstValueField + 2), "7");
            EXPECT_FALSE(dialog.item(Dlg::firstValueField + 3)->isShown());
            EXPECT_FALSE(dialog.item(Dlg::firstValueLabel + 3)->isShown());
            EXPECT_EQ(text(dialog, Dlg::nameField), "HEA 220");
            EXPECT_FALSE(dialog.item(Dlg::nameField)->isEnabled());
            EXPECT_TRUE(dialog.itemAs<CButton>(Dlg::fromValues)->isChecked());
        })
        .types(Dlg::firstValueField, "215")
        .types(Dlg::firstValueField + 1, "225")
        .does([](CDialog& dialog) { EXPECT_EQ(text(dialog, Dlg::nameField), "HEA 225"); })
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(row, 2);
    EXPECT_EQ(table.rows[2], (Vor_StringArray{"225", "1", "HEA 225", "HEA 225", "HEA 225",
                                              "HEA 225", "215", "225", "7"}));
}

TEST_F(SizeDialogTest, TakesAnOwnName) {
    opens()
        .presses(Dlg::ownName)
        .does([](CDialog& dialog) { EXPECT_TRUE(dialog.item(Dlg::nameField)->isEnabled()); })
        .types(Dlg::nameField, "Special")
        .types(Dlg::firstValueField + 1, "221")
        .does([](CDialog& dialog) { EXPECT_EQ(text(dialog, Dlg::nameField), "Special"); })
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(row, 3);
    EXPECT_EQ(table.rows[3][0], "Special");
    EXPECT_EQ(table.rows[3][5], "Special");
    EXPECT_EQ(table.rows[3][7], "221");
}

TEST_F(SizeDialogTest, WithoutANamingOnlyAnOwnNameServes) {
    table.rows[1][0] = table.rows[2][0] = "odd";
    opens()
        .does([](CDialog& dialog) {
            EXPECT_FALSE(dialog.item(Dlg::fromValues)->isEnabled());
            EXPECT_TRUE(dialog.itemAs<CButton>(Dlg::ownName)->isChecked());
            EXPECT_TRUE(dialog.item(Dlg::nameField)->isEnabled());
        })
        .types(Dlg::nameField, "HEA 225")
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(namesOf(table), "100 HEA 225 odd odd ");
}

TEST_F(SizeDialogTest, CancelLeavesTableAndRow) {
    opens().types(Dlg::firstValueField + 1, "225").presses(IDCANCEL);
    const auto before = table.rows;
    EXPECT_FALSE(run());
    EXPECT_EQ(row, 1);
    EXPECT_EQ(table.rows, before);
}

TEST_F(SizeDialogTest, RefusesWhatIsNoSizeAndStaysOpen) {
    opens()
        .presses(IDOK)
        .types(Dlg::firstValueField + 1, "225")
        .types(Dlg::firstValueField, "21,5")
        .presses(IDOK)
        .types(Dlg::firstValueField, "21.5")
        .presses(Dlg::ownName)
        .types(Dlg::nameField, " ")
        .presses(IDOK)
        .presses(Dlg::fromValues)
        .presses(IDOK);
    EXPECT_TRUE(run());
    const char* const told[] = {"a size \"220\" in this table already", "\"21,5\" is no number",
                                "The size has no name"};
    ASSERT_EQ(user.messages().size(), std::size(told));
    for (size_t i = 0; i < std::size(told); ++i)
        EXPECT_THAT(user.messages()[i].text, HasSubstr(told[i]));
    EXPECT_EQ(table.rows[2][0], "225");
}

TEST_F(SizeDialogTest, APatternThatIsNotWholeGivesNoSize) {
    const Vor_StringArray patterns[] = {{"220"}, {"220", "1", "", "", "", "", "210", "220"}};
    for (const Vor_StringArray& pattern : patterns) {
        table.rows[1] = pattern;
        row = 1;
        opens().presses(IDOK);
        run();
        EXPECT_EQ(row, -1);
        EXPECT_EQ(namesOf(table), "100 220 240 ");
        EXPECT_THAT(user.messages().back().text, HasSubstr("is not complete"));
    }
}

TEST_F(SizeDialogTest, SaysWhatIsTakenOverWhenThereAreMoreValuesThanFields) {
    std::vector<std::string> wide{"5", "T 5"};
    for (int i = 0; i < 14; ++i) wide.push_back(std::to_string(i));
    table = tableOf({wide});
    row = 0;
    opens()
        .does([](CDialog& dialog) {
            EXPECT_TRUE(dialog.item(Dlg::firstValueField + 10)->isShown());
            EXPECT_EQ(text(dialog, Dlg::furtherLabel),
                      "Further values: 3. They are taken over from T-5.");
        })
        .types(Dlg::firstValueField + 5, "6")
        .presses(IDOK);
    EXPECT_TRUE(run());
    EXPECT_EQ(table.rows[1][0], "6");
    EXPECT_EQ(table.rows[1][19], "13");
}

TEST_F(SizeDialogTest, SaysWhatNamesFromValuesLose) {
    for (const auto& [name, hint] : std::initializer_list<std::pair<const char*, const char*>>{
             {"HEA 220", ""},
             {"HE 220 A",
              "Made from its values, HE 220 A would be called HE 220. An own name can keep its "
              "form."}}) {
        table = wideFlanges();
        table.setUserNames(1, name);
        opens()
            .does([hint = hint](CDialog& dialog) { EXPECT_EQ(text(dialog, Dlg::formLabel), hint); })
            .presses(IDCANCEL);
        run();
    }
}

// The sizes of the sample library are called HE 220 A after the standard; people ask for HEA 225.
TEST_F(SizeDialogTest, AddsASizeToTheSampleLibraryUnderEitherName) {
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library/");
    const struct {
        bool isOwn;
        const char* system;
        const char* user;
    } cases[] = {{false, "225", "HE 225"}, {true, "HEA 225", "HEA 225"}};
    for (const auto& c : cases) {
        ASSERT_TRUE(table.readFromFile("HEA"));
        ASSERT_TRUE(table.findSysName("220", row));
        auto& answer = opens();
        answer.types(Dlg::firstValueField, "215").types(Dlg::firstValueField + 1, "225");
        if (c.isOwn) answer.presses(Dlg::ownName).types(Dlg::nameField, c.user);
        answer.presses(IDOK);
        ASSERT_TRUE(run());
        int added = -1;
        ASSERT_TRUE(table.findSysName(c.system, added));
        EXPECT_EQ(added, row) << "all sizes of the table are in use";
        EXPECT_EQ(table.rows[added][2].str(), c.user);
        EXPECT_EQ(table.rows[added - 1][0], c.isOwn ? "1000" : "220") << "sorted by its name";
        EXPECT_EQ(checkSectionTable(table).size(), 0u) << "mass and moments go with the shape";
        const double values[] = {215, 225, 7, 11, 18};
        EXPECT_NEAR(sectionArea(table, added).value_or(0), *sectionArea(1, values), 1e-9);
        EXPECT_FALSE(drawing::sectionOutline(1, values).isEmpty());
    }
}

/// Name, pattern's row and cells of a value of the added size.
std::string valueOf(const Vor_ProfValuesTable& table, int row, const char* column) {
    return table.rows[row][table.getColumnIdx(column)].str();
}

TEST_F(SizeDialogTest, CalculatesWhatFollowsFromTheShapeUnlessItWasTyped) {
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library/");
    constexpr int height = Dlg::firstValueField, mass = height + 5, area = height + 6;
    const auto start = [&] {
        ASSERT_TRUE(table.readFromFile("HEA"));
        ASSERT_TRUE(table.findSysName("100", row));
    };
    start();
    opens()
        .does([](CDialog& dialog) {
            EXPECT_EQ(text(dialog, mass), "16.7");
            EXPECT_EQ(text(dialog, Dlg::firstValueLabel + 5), "F. Mass kg/m:");
        })
        .types(height, "210")
        .does([](CDialog& dialog) { EXPECT_EQ(text(dialog, mass), "21.14"); })
        .types(height, "2")  // on the way to 215
        .does([](CDialog& dialog) { EXPECT_EQ(text(dialog, mass), "") << "no section"; })
        .types(height, "215")
        .types(height + 1, "225")
        .does([](CDialog& dialog) {
            EXPECT_EQ(text(dialog, Dlg::firstValueLabel + 5), "F. Mass kg/m, calculated:");
            EXPECT_EQ(text(dialog, Dlg::furtherLabel),
                      "Further values: 4. They are calculated from the dimensions.");
        })
        .types(area, "48.5")
        .does([](CDialog& dialog) {
            EXPECT_EQ(text(dialog, Dlg::firstValueLabel + 6), "G. Area cm2:") << "typed";
        })
        .types(height + 2, "6")
        .does([](CDialog& dialog) { EXPECT_EQ(text(dialog, area), "48.5"); })
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_EQ(valueOf(table, row, "Area cm2"), "48.5");
    EXPECT_EQ(valueOf(table, row, "Mass kg/m"), "38.6");
    EXPECT_EQ(valueOf(table, row, "iz cm"), "5.559") << "beyond the fields of the form";

    start();
    opens()
        .types(height, "215")
        .types(mass, "17")
        .types(mass, "")  // calculated again
        .types(height, "96.0")
        .types(height + 1, "100.00")
        .presses(Dlg::ownName)
        .types(Dlg::nameField, "Copy")
        .presses(IDOK);
    ASSERT_TRUE(run());
    EXPECT_EQ(valueOf(table, row, "Mass kg/m"), "16.7") << "the shape is that of the pattern";
    EXPECT_EQ(valueOf(table, row, "Iz cm4"), "133.8");

    start();
    opens()
        .types(height, "10")  // lower than its flanges
        .presses(Dlg::ownName)
        .types(Dlg::nameField, "Flat")
        .presses(IDOK)
        .presses(IDCANCEL);
    EXPECT_FALSE(run());
    EXPECT_THAT(user.messages().back().text, HasSubstr("F. Mass kg/m cannot be calculated"));
}

TEST_F(SizeDialogTest, FiguresOfDrawnSectionsAreTypedAnew) {
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library/");
    ASSERT_TRUE(table.readFromFile("HEA"));
    ASSERT_TRUE(table.findSysName("100", row));
    table.drawnAs = "Beam.dwg";
    constexpr int height = Dlg::firstValueField, mass = height + 5;
    auto& answer = opens();
    answer.does([](CDialog& dialog) { EXPECT_EQ(text(dialog, mass), "16.7"); })
        .types(height, "215")
        .does([](CDialog& dialog) {
            EXPECT_EQ(text(dialog, mass), "") << "that of another size";
            EXPECT_EQ(text(dialog, Dlg::firstValueLabel + 5), "F. Mass kg/m:");
        })
        .presses(Dlg::ownName)
        .types(Dlg::nameField, "Beam")
        .presses(IDOK);  // refused
    for (int field = mass; field < mass + 6; ++field) answer.types(field, "7");
    answer.presses(IDOK);
    ASSERT_TRUE(run());
    ASSERT_EQ(user.messages().size(), 1u);
    EXPECT_THAT(user.messages()[0].text, HasSubstr("F. Mass kg/m cannot be calculated. Type"));
    EXPECT_EQ(valueOf(table, row, "Mass kg/m"), "7");
    EXPECT_EQ(valueOf(table, row, "iz cm"), "") << "beyond the fields of the form";
}

TEST_F(SizeDialogTest, ShowsThePictureOfTheType) {
    const TemporaryFolder addOn;
    gSettings.setVorDir(addOn.inside());
    addOn.write("icons/ProfSectionI-big.bmp", encodeBitmap(CBitmap(30, 20)));
    opens()
        .does([](CDialog& dialog) {
            EXPECT_EQ(dialog.itemAs<CStatic>(Dlg::sectionPictureItem)->bitmap().width(), 30);
        })
        .presses(IDCANCEL);
    run();
}

}  // namespace
