#include <gtest/gtest.h>

#include "platform/readable_paths.h"
#include "support/temporary_folder.h"

namespace {

TEST(ReadablePaths, AreThoseOfThisMachineAndNothingElse) {
    const TemporaryFolder folder;
    const std::string inside = folder.inside("Own \xFC\\a.tws");
    const std::string shown = folder.path().string() + "/Own \xFC/a.tws";
    const std::pair<std::string, std::string> cases[] = {
        {inside, shown},
        {inside + ":12: no such name \"A\\B\"", shown + ":12: no such name \"A\\B\""},
        {"cannot read " + inside + "\n" + inside, "cannot read " + shown + "\n" + shown},
        {"(\"" + inside + "\" or '" + inside + "')", "(\"" + shown + "\" or '" + shown + "')"},
        // Of a host, of a sheet, of a pattern: as they were written.
        {"c:\\a\\t3.sss", "c:\\a\\t3.sss"},
        {"CallChild \"..\\Plate\"", "CallChild \"..\\Plate\""},
        {"\\no folder of a root\\x", "\\no folder of a root\\x"},
        {"a\\tmp\\b \\", "a\\tmp\\b \\"},
        {"", ""},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(paths::readable(text), expected);
    EXPECT_EQ(paths::readableUtf8("\\tmp\\\xC3\x9C.sss"), "/tmp/\xC3\x9C.sss");
}

}  // namespace
