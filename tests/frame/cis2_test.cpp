// The CIS/2 dialog keeps what sections are called in that format in a file of the library.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "frame/editor/named_values_dialog.h"
#include "frame/frame_host.h"
#include "frame/starters.h"
#include "support/temporary_folder.h"

namespace {

constexpr int dialogNumber = 8730;
constexpr const char* fileName = "CIS2ProfNames.dat";
constexpr const char* header = "Section name\tCIS/2 name\n";

class Cis2 : public FrameTest {
  protected:
    Cis2() {
        gSettings.setLibDir(library.inside());
        data.sectionName = "IPE-200";
    }
    ~Cis2() override { gSettings = Vor_Settings(); }

    /// Types into the row of this name.
    bool run(const char* row, const char* text, int button) {
        user.whenOpens(dialogNumber)
            .does([=](CDialog& dialog) {
                auto* grid = dynamic_cast<Vor_Spread*>(dialog.item(namedValuesGrid));
                int col = 0, found = 0;
                ASSERT_TRUE(grid->findNext(row, false, 1, 1, col, found)) << row;
                EXPECT_TRUE(grid->userEnters(namedValuesValueColumn, found, text));
            })
            .presses(button);
        return StartDlgCis2Info(data);
    }

    TemporaryFolder library;
    TwDlgCis2Data data;
};

TEST_F(Cis2, NamesAreWrittenOnOkAlone) {
    EXPECT_FALSE(run("IPE-200: CIS/2 name", "lost", IDCANCEL));
    EXPECT_EQ(library.fileCount(), 0);
    EXPECT_TRUE(run("Phase", "2", IDOK));
    EXPECT_EQ(library.fileCount(), 0);
    EXPECT_TRUE(run("IPE-200: CIS/2 name", "I200", IDOK));
    EXPECT_EQ(library.read(fileName), std::string(header) + "IPE-200\tI200\n");
    data.sectionName = "L-50x50x5";
    EXPECT_TRUE(run("L-50x50x5: CIS/2 name", "L50", IDOK));
    EXPECT_TRUE(run("IPE-200: CIS/2 name", "", IDOK));
    EXPECT_EQ(library.read(fileName), std::string(header) + "L-50x50x5\tL50\n");
}

TEST_F(Cis2, NamesOfOtherSectionsComeAndGo) {
    library.write(fileName, std::string(header) + "HEA-100\tH100\nIPE-200\tI200\n");
    user.whenOpens(dialogNumber)
        .does([&](CDialog& dialog) {
            auto& grid = dynamic_cast<Vor_Spread&>(*dialog.item(namedValuesGrid));
            const auto goTo = [&](const char* name) {
                int col = 0, row = 0;
                EXPECT_TRUE(grid.findNext(name, false, 1, 1, col, row)) << name;
                grid.userMoves(namedValuesValueColumn, row);
                return row;
            };
            goTo("IPE-200: CIS/2 name");
            dialog.press(namedValuesInsert);
            const int added = goTo("3: Section name");
            EXPECT_TRUE(grid.userEnters(namedValuesValueColumn, added, "hea-100"));
            EXPECT_EQ(user.messages().size(), 1u) << "it has a name already";
            EXPECT_TRUE(grid.userEnters(namedValuesValueColumn, added, "IPE-240"));
            goTo("HEA-100: Section name");
            dialog.press(namedValuesDelete);
        })
        .presses(IDOK);
    EXPECT_TRUE(StartDlgCis2Info(data));
    EXPECT_EQ(library.read(fileName), std::string(header) + "IPE-200\tI200\nIPE-240\tI200\n");
}

TEST_F(Cis2, ADamagedFileIsToldOfAndKept) {
    constexpr const char* damaged = "a\tb\nIPE-200\t\\x\n";
    library.write(fileName, damaged);
    user.whenMessageWithCaption("CIS/2 names of sections").presses(IDOK);
    EXPECT_TRUE(run("Phase", "2", IDOK));
    EXPECT_FALSE(data.areSectionNamesKnown) << "so none can be added, which would be lost";
    EXPECT_EQ(data.phase, 2);
    EXPECT_EQ(library.read(fileName), damaged);
}

}  // namespace
