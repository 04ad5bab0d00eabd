// The core module's own dialogs: choosing files, reading a report.
#include "core_api/dialogs/file_dialogs.h"
#include "core_api/dialogs/info_dialog.h"
#include "platform/window/dialog.h"
#include "support/own_settings.h"
#include "support/test_user.h"

namespace {

/// Notes the question, and gives the answer it was told to.
class Chooser : public TestUser {
  public:
    std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd*) override {
        asked = question;
        return answer;
    }
    FileQuestion asked;
    std::vector<std::string> answer;
};

TEST(FileDialogs, ProposeAPathAndReplaceItOnlyWhenChosen) {
    Chooser user;
    Vor_String path = "c:\\lib\\old.txt";
    EXPECT_FALSE(DlgOpenSave(nullptr, true, "Open", "Templates", "txt", path));
    EXPECT_EQ(path, "c:\\lib\\old.txt");
    EXPECT_EQ(user.asked.kind, FileQuestion::Kind::open);
    EXPECT_EQ(user.asked.folder, "c:\\lib\\");
    EXPECT_EQ(user.asked.preset, "old.txt");
    EXPECT_EQ(user.asked.filterName, "Templates");
    user.answer = {"c:\\lib\\new.txt"};
    EXPECT_TRUE(DlgOpenSave(nullptr, false, "Save", "Templates", "txt", path));
    EXPECT_EQ(path, "c:\\lib\\new.txt");
    EXPECT_EQ(user.asked.kind, FileQuestion::Kind::save);
}

TEST(FileDialogs, GiveSeveralFilesAndFolders) {
    Chooser user;
    Vor_StringArray paths{"old"};
    EXPECT_FALSE(DlgOpenMulti(nullptr, "Select", "Drawing", "dwg", "c:\\m\\", paths));
    EXPECT_EQ(paths, Vor_StringArray{"old"});
    user.answer = {"c:\\m\\a.dwg", "c:\\m\\bolted\\"};
    EXPECT_TRUE(DlgOpenMulti(nullptr, "Select", "Drawing", "dwg", "c:\\m\\", paths));
    EXPECT_EQ(paths, (Vor_StringArray{"c:\\m\\a.dwg", "c:\\m\\bolted\\"}));
    EXPECT_EQ(user.asked.kind, FileQuestion::Kind::openSeveral);
    EXPECT_EQ(user.asked.folder, "c:\\m\\");
}

TEST(InfoDialog, ShowsItsLinesUntilItIsClosed) {
    const OwnSettings settings;
    TestUser user;
    DlgInfoData report;
    report.title = "Files loaded";
    report.heading = "Heading";
    report.lines = {"one", "", "two"};
    user.whenOpens(infoDialogNumber)
        .does([](CDialog& dialog) {
            EXPECT_EQ(dialog.text(), "Files loaded");
            EXPECT_EQ(dialog.item(infoHeading)->text(), "Heading");
            EXPECT_EQ(dialog.item(infoLines)->text(), "one\n\ntwo");
            EXPECT_FALSE(dialog.type(infoLines, "changed"));
        })
        .presses(IDCANCEL);
    ExportStartDlgInfo(report);
}

}  // namespace
