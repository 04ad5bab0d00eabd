#include "core_api/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/text/text_helpers.h"
#include "support/temporary_folder.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

TEST(LineFiles, ReadBothLineEndsAndWriteOne) {
    const TemporaryFolder folder;
    const struct {
        const char* content;
        const char* lines;
    } cases[] = {
        {"", ""},        {"a", "a"},   {"a\r\nb\n", "a|b"},
        {"a\n\n", "a|"}, {"\r\n", ""}, {"x\ry\r\n\xBF", "x\ry|\xBF"},
    };
    for (const auto& c : cases) {
        Vor_StringArray lines{"kept"};
        const std::string path = folder.write("lines.txt", c.content);
        ASSERT_EQ(ObjectExportReadFile(path, lines), Acad::eOk);
        EXPECT_EQ(arrToStr(lines, "|").str(), c.lines) << c.content;
    }
    ASSERT_EQ(ObjectExportWriteFile(folder.inside("out.txt"), {"a", "", "\x95"}), Acad::eOk);
    EXPECT_EQ(folder.read("out.txt"), "a\n\n\x95\n");
}

TEST(LineFiles, FailureKeepsTheLinesAndSaysWhy) {
    const TemporaryFolder folder;
    Vor_StringArray lines{"kept"};
    Vor_String message;
    EXPECT_EQ(ObjectExportReadFile(folder.inside("none"), lines, &message), Acad::eInvalidInput);
    EXPECT_EQ(lines[0].str(), "kept");
    EXPECT_THAT(message.str(), HasSubstr("cannot read " + folder.inside("none")));
    EXPECT_EQ(ObjectExportWriteFile(folder.inside("no\\where"), lines, &message),
              Acad::eInvalidInput);
    EXPECT_THAT(message.str(), HasSubstr("cannot write"));
}

TEST(RecordFiles, AnyTextSurvives) {
    const TemporaryFolder folder;
    const RecordRows records{{"1"}, {"SysName", "I/O"}, {"a\tb", "c\\t\n\r", ""}, {""}, {"", ""}};
    ASSERT_TRUE(writeFile(folder.inside("IPE.A.pr"), records));
    RecordRows read;
    Vor_String name;
    ASSERT_TRUE(readFile(folder.inside("IPE.A.pr"), name, read));
    EXPECT_EQ(read, records);
    EXPECT_EQ(name.str(), "IPE.A");
}

TEST(RecordFiles, DamageNamesFileAndLine) {
    const TemporaryFolder folder;
    for (const char* damaged : {"ok\nC:\\dir\n", "ok\nend\\", "\na\tb\\\tc"}) {
        const std::string path = folder.write("bad.pr", damaged);
        RecordRows records{{"kept"}};
        Vor_String name("kept"), message;
        EXPECT_FALSE(readFile(path, name, records, &message));
        EXPECT_THAT(message.str(), EndsWith("bad.pr:2: a backslash stands alone; write it twice"));
        EXPECT_EQ(records.length(), 1);
        EXPECT_EQ(name.str(), "kept");
    }
}

}  // namespace
