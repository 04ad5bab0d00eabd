// Programs that change the same files at the same time, and what dead ones leave behind.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "platform/exclusive_change.h"
#include "platform/files.h"
#include "platform/kept_file.h"
#include "support/failing_steps.h"
#include "support/temporary_folder.h"

namespace {

using testing::HasSubstr;

constexpr int changes = 60;  // of each of two processes

/// Runs `work` in two processes, which get 0 and 1; what it gives is their exit code.
int failuresOfTwo(const std::function<int(int)>& work) {
    pid_t both[2];
    for (int i = 0; i < 2; ++i)
        if ((both[i] = ::fork()) == 0) ::_exit(work(i));
    int failures = 0;
    for (const pid_t each : both) {
        int status = -1;
        ::waitpid(each, &status, 0);
        failures += status;
    }
    return failures;
}

TEST(TwoWriters, LoseNoChange) {
    const TemporaryFolder folder;
    const std::string path = folder.write("count.txt", "0");
    EXPECT_EQ(0, failuresOfTwo([&](int) {
                  int lost = 0;
                  std::string error;
                  for (int i = 0; i < changes; ++i) {
                      const auto change = files::ExclusiveChange::take(path, error);
                      const auto before = files::readWhole(path, error);
                      if (!change || !before) return 1;
                      const std::string next = std::to_string(std::atoi(before->c_str()) + 1);
                      if (!files::writeWhole(path, next, error)) ++lost;
                  }
                  return lost;
              }));
    EXPECT_EQ(folder.read("count.txt"), std::to_string(2 * changes));
}

TEST(TwoWriters, CreateEachFileOnce) {
    const TemporaryFolder folder;
    EXPECT_EQ(0, failuresOfTwo([&](int process) {
                  std::string error;
                  std::string mine;
                  for (int i = 0; i < changes; ++i) {
                      const std::string path = folder.inside(std::to_string(i));
                      const auto change = files::ExclusiveChange::take(path, error);
                      if (!change) return 1;
                      if (!change->stamp() && files::writeWhole(path, "x", error))
                          mine += std::to_string(i) + "\n";
                  }
                  return files::writeWhole(folder.inside("of " + std::to_string(process)), mine,
                                           error)
                             ? 0
                             : 1;
              }));
    const std::string all = folder.read("of 0") + folder.read("of 1");
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), changes);
    EXPECT_EQ(folder.fileCount(), changes + 2);
}

TEST(ExclusiveChange, SeesWhoTakesNoLocks) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    std::string error;
    {
        const auto change = files::ExclusiveChange::take(path, error);
        ASSERT_TRUE(change) << error;
        EXPECT_EQ(change->stamp(), files::stampOf(path));
        EXPECT_TRUE(files::writeWhole(path, "mine", error)) << error;
        EXPECT_TRUE(files::writeWhole(path, "mine again", error)) << error;
        EXPECT_EQ(change->stamp(), files::stampOf(path));
        folder.write("a.txt", "their own");
        EXPECT_FALSE(files::writeWhole(path, "lost", error));
        EXPECT_THAT(error, HasSubstr("another program has changed it meanwhile"));
        EXPECT_FALSE(files::removeFile(path, error));
        EXPECT_EQ(folder.read("a.txt"), "their own");
    }
    EXPECT_TRUE(files::writeWhole(path, "later", error)) << error;
    EXPECT_EQ(folder.fileCount(), 1);
    const auto change = files::ExclusiveChange::take(folder.inside("b.txt"), error);
    EXPECT_FALSE(change->stamp());
    folder.write("b.txt", "theirs");
    EXPECT_FALSE(files::writeWhole(folder.inside("b.txt"), "mine", error));
    EXPECT_EQ(folder.read("b.txt"), "theirs");
}

TEST(ExclusiveChange, LeavesNoEmptyFolder) {
    const TemporaryFolder folder;
    std::string error;
    for (const bool isWritten : {false, true}) {
        const auto change = files::ExclusiveChange::take(folder.inside("new\\deep\\a.txt"), error);
        ASSERT_TRUE(change) << error;
        if (isWritten) files::writeWhole(folder.inside("new\\deep\\a.txt"), "x", error);
    }
    EXPECT_EQ(folder.read("new/deep/a.txt"), "x");
    EXPECT_TRUE(files::ExclusiveChange::take(folder.inside("other\\a.txt"), error));
    EXPECT_EQ(folder.fileCount(), 1);
    EXPECT_FALSE(files::ExclusiveChange::take(folder.inside("new\\deep\\a.txt\\b"), error));
    EXPECT_THAT(error, HasSubstr("is a file, not a folder"));
}

TEST(KeptFile, IsPutBackOnAFullDisk) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "old");
    std::string error;
    const auto change = files::ExclusiveChange::take(path, error);
    auto kept = files::KeptFile::keep(path, error);
    auto none = files::KeptFile::keep(folder.inside("b.txt"), error);
    ASSERT_TRUE(kept && none) << error;
    EXPECT_TRUE(files::writeWhole(path, "new", error)) << error;
    EXPECT_TRUE(files::writeWhole(folder.inside("b.txt"), "new", error)) << error;
    {
        const FailingSteps steps(FailingSteps::writing, ENOSPC);
        EXPECT_TRUE(kept->putBack(error)) << error;
        EXPECT_TRUE(none->putBack(error)) << error;
    }
    EXPECT_EQ(folder.read("a.txt"), "old");
    EXPECT_EQ(folder.fileCount(), 1);
    EXPECT_EQ(change->stamp(), files::stampOf(path));
    kept = files::KeptFile::keep(path, error);
    EXPECT_EQ(folder.fileCount(), 2);
    kept.reset();
    EXPECT_EQ(folder.fileCount(), 1);
}

TEST(Leftovers, GoWithTheNextWriteWhenTheirWriterIsDead) {
    const TemporaryFolder folder;
    const pid_t dead = ::fork();
    if (dead == 0) ::_exit(0);
    ::waitpid(dead, nullptr, 0);
    char left[3][40];
    std::snprintf(left[0], sizeof left[0], ".%x-1f.tmp", static_cast<unsigned>(dead));
    std::snprintf(left[1], sizeof left[1], ".%x-2f.tmp", static_cast<unsigned>(dead));
    std::snprintf(left[2], sizeof left[2], ".%x-3f.tmp", static_cast<unsigned>(::getppid()));
    for (const char* name : left) folder.write(name, "half");
    folder.write(".notes-1.tmp", "a user's");
    // Somebody on another machine holds the second.
    const int held = ::open((folder.path() / left[1]).c_str(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    std::string error;
    EXPECT_TRUE(files::writeWhole(folder.inside("a.txt"), "x", error)) << error;
    ::close(held);
    EXPECT_EQ(folder.read(left[0]), "");
    EXPECT_EQ(folder.read(left[1]), "half");
    EXPECT_EQ(folder.read(left[2]), "half");
    EXPECT_EQ(folder.fileCount(), 4);
}

}  // namespace
