#include "core_api/dialog_state.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include "platform/registry/registry.h"
#include "support/printed.h"
#include "support/temporary_folder.h"

namespace {

using registry::Root;
using testing::HasSubstr;

class Registry : public testing::Test {
  protected:
    Registry() { ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1); }
    ~Registry() override { ::unsetenv("XDG_CONFIG_HOME"); }

    TemporaryFolder folder;
    std::string error;
};

TEST_F(Registry, KeepsValuesInOneReadableFileARoot) {
    const std::string key = "Software\\Tarnwick\\Spreadsheet Editor v1.0";
    EXPECT_FALSE(registry::read(Root::machine, key, "Language"));
    ASSERT_TRUE(registry::write(Root::machine, key, "Language", "N\tL\n", error)) << error;
    ASSERT_TRUE(registry::write(Root::machine, key, "Default Settings", "", error));
    EXPECT_EQ(
        registry::read(Root::machine, "software\\tarnwick\\spreadsheet editor v1.0", "LANGUAGE"),
        "N\tL\n");
    EXPECT_FALSE(registry::read(Root::user, key, "Language"));
    EXPECT_EQ(folder.read("vormant/machine.registry"),
              "registry 1\n"
              "Software\\\\Tarnwick\\\\Spreadsheet Editor v1.0\tDefault Settings\t\n"
              "Software\\\\Tarnwick\\\\Spreadsheet Editor v1.0\tLanguage\tN\\tL\\n\n");
    ASSERT_TRUE(registry::remove(Root::machine, key, "language", error));
    EXPECT_FALSE(registry::read(Root::machine, key, "Language"));

    // Another program changes the file.
    folder.write("vormant/machine.registry", "registry 1\na\tb\tanother\n");
    EXPECT_EQ(registry::read(Root::machine, "A", "B"), "another");
}

TEST_F(Registry, DamagedFileIsToldOnceAndNeverReplaced) {
    const std::string damaged = "registry 1\nno tabs here\n";
    folder.write("vormant/user.registry", damaged);
    Printed host;
    const HostScope scope(host);
    EXPECT_FALSE(registry::read(Root::user, "a", "b"));
    EXPECT_FALSE(registry::read(Root::user, "a", "b"));
    EXPECT_EQ(host.text, folder.inside("vormant\\user.registry") +
                             ":2: this is no key, name and value separated by tabs; remove the "
                             "line\n");
    EXPECT_FALSE(registry::write(Root::user, "a", "b", "c", error));
    EXPECT_THAT(error, HasSubstr("user.registry:2:"));
    EXPECT_EQ(folder.read("vormant/user.registry"), damaged);
}

TEST_F(Registry, DialogsComeBackWhereTheyWere) {
    CWnd dialog;
    ASSERT_TRUE(dialog.create({"#32770", "", {10, 20, 310, 220}, 0, 0, true}, nullptr));
    EXPECT_FALSE(ChangeDlgSize(dialog, "DLG_FINDREPLACE"));
    WriteDlgSize(dialog, "DLG_FINDREPLACE");
    dialog.move({0, 0, 50, 50});
    EXPECT_TRUE(ChangeDlgSize(dialog, "dlg_findreplace"));
    EXPECT_EQ(dialog.rect(), (CRect{10, 20, 310, 220}));
    for (const char* bad : {"", "1 2 3", "10 20 5 30", "0 0 x 9", "0 0 1e9 1e9", "1 1 1 1"}) {
        registry::write(Root::user, "Software\\Vormant\\Dialogs\\BAD", "Place", bad, error);
        EXPECT_FALSE(ChangeDlgSize(dialog, "BAD")) << bad;
    }
    EXPECT_EQ(dialog.rect(), (CRect{10, 20, 310, 220}));
    bool large = true;
    EXPECT_FALSE(readDlgRegBool("DLG_SELECT_MACRO", "LARGE_DLG", large));
    EXPECT_TRUE(large);
    writeDlgRegBool("DLG_SELECT_MACRO", "LARGE_DLG", false);
    EXPECT_TRUE(readDlgRegBool("DLG_SELECT_MACRO", "LARGE_DLG", large));
    EXPECT_FALSE(large);
}

}  // namespace
