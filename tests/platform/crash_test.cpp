// Saving while the ground gives way: a killed process, a disk that takes no more.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files.h"
#include "support/temporary_folder.h"

namespace {

const std::string contentA(200000, 'A');
const std::string contentB(150000, 'B');

TEST(WriteWhole, KilledWriterLeavesOneWholeContent) {
    const TemporaryFolder folder;
    const std::string path = folder.write("sheet.tws", contentA);
    for (int round = 0; round < 15; ++round) {
        const pid_t writer = ::fork();
        ASSERT_GE(writer, 0);
        if (writer == 0) {
            std::string error;
            for (int i = 0;; ++i) files::writeWhole(path, i % 2 ? contentA : contentB, error);
        }
        ::usleep(static_cast<useconds_t>(1500 + 700 * round));
        ::kill(writer, SIGKILL);
        ::waitpid(writer, nullptr, 0);
        const std::string left = folder.read("sheet.tws");
        ASSERT_TRUE(left == contentA || left == contentB) << left.size() << " bytes are left";
    }
    std::string error;
    EXPECT_TRUE(files::writeWhole(path, "next", error)) << error;  // leftovers do not matter
    EXPECT_EQ(folder.read("sheet.tws"), "next");
}

TEST(WriteWhole, FullDiskKeepsTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write("sheet.tws", "old");
    const pid_t writer = ::fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100000, 100000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::string error;
        const bool done = files::writeWhole(path, contentA, error);
        ::_exit(!done && error.find("cannot write " + path) == 0 ? 0 : 1);
    }
    int status = -1;
    ::waitpid(writer, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(folder.read("sheet.tws"), "old");
    EXPECT_EQ(folder.fileCount(), 1);
}

}  // namespace
