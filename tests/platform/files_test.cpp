#include "platform/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

#include "platform/paths.h"
#include "platform/scratch.h"
#include "support/failing_steps.h"
#include "support/temporary_folder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(WriteWhole, AnyFailingStepLeavesTheOldFileWhole) {
    using Steps = FailingSteps;
    const struct {
        Steps::Step step;
        int error;
        const char* advice;
    } cases[] = {
        {Steps::opening, EACCES, "permissions"},   {Steps::writing, ENOSPC, "make room"},
        {Steps::secondWrite, ENOSPC, "make room"}, {Steps::flushing, EIO, "check the disk"},
        {Steps::closing, EDQUOT, "make room"},     {Steps::renaming, EROFS, "written to"},
    };
    const TemporaryFolder folder;
    const std::string path = folder.write("old.txt", "the old content");
    for (const auto& c : cases) {
        const FailingSteps steps(c.step, c.error);
        std::string error;
        EXPECT_FALSE(files::writeWhole(path, "something new", error));
        EXPECT_THAT(error, HasSubstr("cannot write " + path)) << c.step;
        EXPECT_THAT(error, HasSubstr(c.advice)) << c.step;
        EXPECT_EQ(folder.read("old.txt"), "the old content") << c.step;
        EXPECT_EQ(folder.fileCount(), 1) << "left over after step " << c.step;
    }
    const FailingSteps steps(Steps::none, 0);  // three bytes at a time
    std::string error;
    EXPECT_TRUE(files::writeWhole(path, "something new", error)) << error;
    EXPECT_EQ(folder.read("old.txt"), "something new");
}

TEST(WriteWhole, KeepsPermissionsAndFollowsLinks) {
    const TemporaryFolder folder;
    folder.write("real.txt", "old");
    ::chmod((folder.path() / "real.txt").c_str(), 0640);
    std::filesystem::create_symlink("real.txt", folder.path() / "link.txt");
    std::string error;
    ASSERT_TRUE(files::writeWhole(folder.inside("link.txt"), "new", error)) << error;
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link.txt"));
    EXPECT_EQ(folder.read("real.txt"), "new");
    struct stat status {};
    ::stat((folder.path() / "real.txt").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777u, 0640u);
}

TEST(WriteWhole, RefusesWhatIsNoFile) {
    const TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(files::writeWhole(folder.inside(), "x", error));
    EXPECT_THAT(error, HasSubstr("name a file, not a folder"));
    EXPECT_FALSE(files::writeWhole(folder.inside("missing\\file.txt"), "x", error));
    EXPECT_THAT(error, HasSubstr("check the name and its folder"));
    EXPECT_FALSE(files::writeWhole("", "x", error));
    // A file would take the place of these.
    ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files::writeWhole(folder.inside("pipe"), "x", error));
    EXPECT_THAT(error, HasSubstr("not an ordinary file"));
    EXPECT_TRUE(std::filesystem::is_fifo(folder.path() / "pipe"));
    std::filesystem::create_symlink("nowhere", folder.path() / "link");
    EXPECT_FALSE(files::writeWhole(folder.inside("link"), "x", error));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link"));
}

TEST(ScratchFolder, GoesWithWhatIsInIt) {
    const TemporaryFolder temporary;
    ::setenv("TMPDIR", temporary.path().c_str(), 1);
    std::string error;
    {
        auto folder = files::ScratchFolder::make(error);
        ASSERT_TRUE(folder) << error;
        const files::ScratchFolder moved = std::move(*folder);
        folder.reset();
        const std::string path = moved.inside("a.bmp");
        EXPECT_TRUE(files::writeScratch(path, "a longer first content", error)) << error;
        EXPECT_TRUE(files::writeScratch(path, "short", error)) << error;
        EXPECT_EQ(files::readWhole(path, error), "short");
        EXPECT_FALSE(files::writeScratch(moved.inside("none\\a.bmp"), "x", error));
        EXPECT_THAT(error, testing::HasSubstr("none\\a.bmp"));
        auto other = files::ScratchFolder::make(error);
        ASSERT_TRUE(other) << error;
        EXPECT_NE(other->inside(""), moved.inside(""));
        EXPECT_EQ(temporary.fileCount(), 2);
    }
    EXPECT_EQ(temporary.fileCount(), 0);
    ::setenv("TMPDIR", temporary.write("file", "").c_str(), 1);
    EXPECT_FALSE(files::ScratchFolder::make(error));
    EXPECT_THAT(error, testing::HasSubstr("TMPDIR"));
    ::unsetenv("TMPDIR");
}

TEST(ReadWhole, RefusesWithAReason) {
    const TemporaryFolder folder;
    const std::string path = folder.write("big.txt", std::string(5000, 'x'));
    std::string error;
    EXPECT_EQ(files::readWhole(path, error, 5000)->size(), 5000u);
    EXPECT_FALSE(files::readWhole(path, error, 4999));
    EXPECT_THAT(error, HasSubstr("larger than 4999 bytes"));
    EXPECT_FALSE(files::readWhole(folder.inside("none.txt"), error));
    EXPECT_THAT(error, HasSubstr("cannot read " + folder.inside("none.txt")));
    EXPECT_FALSE(files::readWhole(folder.inside(), error));
    EXPECT_THAT(error, HasSubstr("name a file, not a folder"));
    ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files::readWhole(folder.inside("pipe"), error));
    EXPECT_THAT(error, HasSubstr("not an ordinary file"));
    EXPECT_FALSE(files::readWhole(std::string_view("a\0b", 3), error));
}

/// Makes a folder the library while it lives.
class Library {
  public:
    explicit Library(std::string folder) {
        current() = std::move(folder);
        paths::setLibrary([] { return std::string_view(current()); });
    }
    ~Library() { paths::setLibrary(nullptr); }

  private:
    static std::string& current() {
        static std::string folder;
        return folder;
    }
};

TEST(Paths, OnlyNamesOfTheLibraryForgiveCase) {
    const TemporaryFolder folder;
    folder.write("out/report.csv", "mine");
    folder.write("library/Data/Bolts.txt", "");
    folder.write("library/mine.csv", "");
    const Library library(folder.inside("library\\"));
    const auto chosen = paths::toInside((folder.path() / "library/Mine.csv").string());
    const struct {
        std::string inside;
        const char* machine;
    } cases[] = {
        {folder.inside("out\\Report.csv"), "out/Report.csv"},
        {folder.inside("OUT\\report.csv"), "OUT/report.csv"},
        {folder.inside("LIBRARY\\data\\bolts.txt"), "LIBRARY/data/bolts.txt"},
        {folder.inside("library\\data\\bolts.txt"), "library/Data/Bolts.txt"},
        {folder.inside("library\\data\\..\\..\\OUT\\report.csv"),
         "library/data/../../OUT/report.csv"},
        {*chosen, "library/Mine.csv"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(paths::toMachine(c.inside), folder.path().string() + "/" + c.machine);
    std::string error;
    EXPECT_TRUE(files::writeWhole(folder.inside("out\\Report.csv"), "theirs", error)) << error;
    EXPECT_EQ(folder.read("out/report.csv"), "mine");
    EXPECT_FALSE(files::exists(folder.inside("OUT\\report.csv")));
}

TEST(Paths, MatchIgnoresCaseOneComponentAtATime) {
    const TemporaryFolder folder;
    const Library library(folder.inside());
    folder.write("Connection Standards/Data/Bolts.txt", "");
    folder.write("connection standards/x.txt", "");  // a second match: byte order decides
    folder.write(
        "Stra\xC3\x9F"
        "e/\xC3\x84.txt",
        "");
    const std::string root = folder.path().string() + "/";
    const struct {
        const char* inside;
        const char* machine;
    } cases[] = {
        {"Connection Standards\\Data\\Bolts.txt", "Connection Standards/Data/Bolts.txt"},
        {"CONNECTION STANDARDS\\data\\BOLTS.TXT", "Connection Standards/Data/Bolts.txt"},
        {"connection standards\\X.TXT", "connection standards/x.txt"},
        {"CONNECTION standards\\Data\\new.txt", "Connection Standards/Data/new.txt"},
        {"stra\xDF"
         "e\\\xE4.TXT",
         "Stra\xC3\x9F"
         "e/\xC3\x84.txt"},
        {"nowhere\\data\\bolts.txt", "nowhere/data/bolts.txt"},
        {"CONNECTION STANDARDS\\data\\..\\DATA\\bolts.txt",
         "Connection Standards/Data/../Data/Bolts.txt"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(paths::toMachine(folder.inside(c.inside)), root + c.machine) << c.inside;
    }
    EXPECT_EQ(paths::toInside("/lib/\xC3\x84.txt"), "\\lib\\\xC4.txt");
    EXPECT_FALSE(paths::toInside("/lib/\xE4\xB8\xAD.txt"));
}

TEST(Paths, AFileThatWasMissedIsFoundWhenItComes) {
    const TemporaryFolder folder;
    const Library library(folder.inside());
    const auto age = [&] {
        std::filesystem::last_write_time(
            folder.path(), std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    };
    const auto machine = [&](const char* name) {
        return std::filesystem::path(paths::toMachine(folder.inside(name))).filename().string();
    };
    age();
    EXPECT_EQ(machine("bolts.txt"), "bolts.txt");
    EXPECT_EQ(machine("bolts.txt"), "bolts.txt");
    folder.write("BOLTS.txt", "");
    EXPECT_EQ(machine("bolts.txt"), "BOLTS.txt");
    age();
    EXPECT_EQ(machine("bolts.txt"), "BOLTS.txt");
    std::filesystem::rename(folder.path() / "BOLTS.txt", folder.path() / "Bolts.txt");
    EXPECT_EQ(machine("bolts.txt"), "Bolts.txt");
    std::filesystem::remove(folder.path() / "Bolts.txt");
    EXPECT_EQ(machine("bolts.txt"), "bolts.txt");
}

TEST(FindFiles, PatternsRecursionAndCircles) {
    const TemporaryFolder folder;
    for (const char* name : {"b.TWS", "A.tws", "a.map", "sub/c.tws", "sub/deep/d.tws"})
        folder.write(name, "");
    std::filesystem::create_directory_symlink("..", folder.path() / "sub" / "up");
    const std::string root = folder.inside();
    EXPECT_THAT(files::find(root, "*.tws", false), ElementsAre(root + "A.tws", root + "b.TWS"));
    EXPECT_THAT(files::find(root, "?.tws", true),
                ElementsAre(root + "A.tws", root + "b.TWS", root + "sub\\c.tws",
                            root + "sub\\deep\\d.tws"));
    EXPECT_TRUE(files::find(folder.inside("none"), "*", true).empty());
    EXPECT_TRUE(files::matchesPattern("abcbcd", "a*BCD"));
    EXPECT_FALSE(files::matchesPattern(std::string(5000, 'a'), "*a*a*a*a*a*a*a*a*b"));
}

TEST(Stamps, TellFilesFromFoldersAndChanges) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "1");
    const auto before = files::stampOf(path);
    ASSERT_TRUE(before);
    EXPECT_EQ(before->size, 1);
    std::string error;
    ASSERT_TRUE(files::writeWhole(path, "2", error));
    EXPECT_NE(files::stampOf(path), before);  // same size, perhaps the same tick of the clock
    EXPECT_FALSE(files::stampOf(folder.inside()));
    EXPECT_TRUE(files::createFolder(folder.inside("x\\y\\"), error)) << error;
    EXPECT_TRUE(files::isFolder(folder.inside("x\\y")));
    EXPECT_FALSE(files::createFolder(folder.inside("a.txt\\z"), error));
    EXPECT_THAT(error, HasSubstr("cannot create folder"));
}

}  // namespace
