// Writing back a file that somebody else may have changed.
#include <gtest/gtest.h>

#include "core_api/dialogs/open_file.h"
#include "support/temporary_folder.h"
#include "support/test_user.h"

namespace {

using Saved = OpenFile::Saved;

class OpenFiles : public testing::Test {
  protected:
    OpenFiles() { file.opening(folder.write("a.txt", "read")); }
    Saved save(const std::string& content, const char* name = "a.txt") {
        const std::string path = folder.inside(name);
        return file.save(
            path, [&](std::string& why) { return files::writeWhole(path, content, why); }, error);
    }
    TemporaryFolder folder;
    TestUser user;
    OpenFile file;
    std::string error;
};

TEST_F(OpenFiles, AskBeforeTheyReplaceWhatSomebodyElseWrote) {
    EXPECT_EQ(save("one"), Saved::yes);
    EXPECT_EQ(save("two"), Saved::yes);
    folder.write("a.txt", "other");
    user.whenMessage("changed by another program").presses(IDCANCEL);
    EXPECT_EQ(save("three"), Saved::no);
    EXPECT_EQ(error, "");
    user.whenMessage("changed by another program").presses(IDNO);
    EXPECT_EQ(save("three"), Saved::reload);
    EXPECT_EQ(folder.read("a.txt"), "other");
    user.whenMessage("changed by another program").presses(IDYES);
    EXPECT_EQ(save("three"), Saved::yes);
    EXPECT_EQ(folder.read("a.txt"), "three");
    EXPECT_EQ(save("four"), Saved::yes);

    // Once more while the question is open.
    folder.write("a.txt", "other");
    const MessageListenerScope listener([&, tells = 0](const MessageBox&) mutable {
        if (tells++ == 0) folder.write("a.txt", "another one");
        return false;
    });
    user.whenMessage("changed by another program").presses(IDYES);
    user.whenMessage("changed by another program").presses(IDCANCEL);
    EXPECT_EQ(save("five"), Saved::no);
    EXPECT_EQ(folder.read("a.txt"), "another one");
}

TEST_F(OpenFiles, GoToAnotherPathRemovedFilesAndNewOnes) {
    folder.write("b.txt", "chosen to be replaced");
    EXPECT_EQ(save("one", "b.txt"), Saved::yes);
    EXPECT_EQ(file.path(), folder.inside("b.txt"));
    std::filesystem::remove(folder.path() / "b.txt");
    EXPECT_EQ(save("two", "b.txt"), Saved::yes);
    EXPECT_EQ(save("x", "no\\such.txt"), Saved::no);
    EXPECT_NE(error, "");
    EXPECT_EQ(file.path(), folder.inside("b.txt"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "no"));
    file.startNew(folder.write("c.txt", "somebody's"));
    user.whenMessage("changed by another program").presses(IDCANCEL);
    EXPECT_EQ(save("three", "c.txt"), Saved::no);
}

}  // namespace
