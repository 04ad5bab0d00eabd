// What the program answers to calls that are wrong, and to questions about itself.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/program.h"
#include "test_folders.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Arguments = std::vector<std::string>;

struct Call {
    Arguments arguments;
    std::string message;
};

program::Result expectRefused(const Call& call) {
    SCOPED_TRACE(testing::PrintToString(call.arguments));
    auto result = program::run(call.arguments);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, StartsWith("vormant: "));
    EXPECT_THAT(result.err, HasSubstr(call.message));
    return result;
}

TEST(Calls, WrongOnesAreRefusedWithOneMessageAndTheWayToHelp) {
    const Call calls[] = {
        {{}, "say which command"},
        {{"standards"}, "say which command"},
        {{"sheets"}, "\"sheets\" makes no sense"},
        {{"sheet", "draw"}, "\"draw\" makes no sense here\n"},
        {{"sheet", "shwo"}, "did you mean show?"},
        {{"sheet", "show", "x", "--formula"}, "did you mean --formulas?"},
        {{"--librari", "x", "standards", "list"}, "did you mean --library?"},
        {{"sheet", "convert", "", "a.csv"}, "FROM: this is empty"},
        {{"sheet", "show", ""}, "FILE: this is empty"},
        {{"sheet", "eval", "--jsonl", "--input", ""}, "--input: this is empty"},
        {{"standards", "check", "x", ""}, "FILE: this is empty"},
        {{"standards", "test", ""}, "NAME: this is empty"},
        {{"standards", "run", ""}, "NAME: this is empty"},
        {{"standards", "batch", ""}, "NAME: this is empty"},
        {{"standards", "batch", "x", ""}, "INPUT: this is empty"},
        {{"standards", "run", "x", "--macro", "", "--key", "k"}, "--macro: this is empty"},
        {{"--frob", "standards", "list"}, "\"--frob\" makes no sense"},
        {{"sheet", "eval", "1", "2"}, "\"2\" makes no sense"},
        {{"sheet", "eval", "--cell"}, "--cell"},
        {{"sheet", "eval", "1", "--jsonl"}, "excludes"},
        {{"sheet", "eval", "--input", "x"}, "--jsonl"},
        {{"sheet", "convert", "a.tws"}, "TO is required"},
        {{"standards", "run"}, "NAME is required"},
        {{"standards", "run", "x", "--key", "k"}, "--macro"},
        {{"standards", "run", "x", "--macro", "m"}, "--key"},
        {{"standards", "run", "x", "--write"}, "--macro"},
        {{"standards", "run", "x", "--set", "A=1", "--macro", "m", "--key", "k"}, "excludes"},
        {{"standards", "check"}, "FILE is required"},
        {{"standards", "test", "x", "--all"}, "excludes"},
    };
    for (const auto& call : calls) EXPECT_THAT(expectRefused(call).err, HasSubstr("--help'"));
}

TEST(Calls, WrongValuesAreRefusedBeforeAnythingIsDone) {
    const Call calls[] = {
        {{"sheet", "eval"}, "give a formula"},
        {{"sheet", "eval", "1", "--cell", "A1"}, "ADDRESS=VALUE"},
        {{"sheet", "eval", "1", "--cell", "A0=5"}, "ADDRESS=VALUE"},
        {{"sheet", "eval", "1", "--cell", "A1=5", "--cell", "a1=6"}, "given twice"},
        {{"sheet", "eval", "1", "--cell", "A1:B2=5"}, "ADDRESS=VALUE"},
        {{"sheet", "eval", "\"\xE4\xB8\xAD\""}, "U+4E2D"},
        {{"sheet", "eval", "\"\xFF\""}, "UTF-8"},
        {{"standards", "test"}, "--all"},
        {{"sheet", "convert", "a.tws", "a.pdf"}, "a.pdf: only .tws"},
        {{"sheet", "convert", "a.xlsx", "a.tws"}, "a.xlsx: only .tws"},
    };
    for (const auto& call : calls) expectRefused(call);
}

TEST(Calls, HelpAndVersionGoToTheStandardOutput) {
    for (const Arguments& call : {Arguments{"--help"}, Arguments{"standards", "--help"},
                                  Arguments{"standards", "run", "-h"}, Arguments{"--version"}}) {
        SCOPED_TRACE(testing::PrintToString(call));
        const auto result = program::run(call);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.out, HasSubstr("vormant"));
        EXPECT_EQ(result.err, "");
    }
}

TEST(Calls, AnOutputThatCannotBeWrittenFailsTheCall) {
    for (const std::string call : {"--version", "sheet eval 1"}) {
        const std::string command = VORMANT_PROGRAM " " + call + " >/dev/full 2>/dev/null";
        EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1) << call;
    }
}

TEST(Calls, ALibraryThatIsNoneFailsAndIsNamed) {
    const program::Folder folder;
    const auto file = folder.write("file", "");
    for (const std::string& library : {folder / "absent", file}) {
        const auto result = program::run({"--library", library, "standards", "list"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr(library + ": is no folder"));
    }
}

TEST(Calls, TheLibraryCanComeFromTheEnvironmentAndTheOptionWins) {
    const program::Folder folder;
    folder.write("a/Connection Standards/x.txt", "");
    ::setenv("VORMANT_LIBRARY", (folder / "a").c_str(), 1);
    const auto fromEnvironment = program::run({"standards", "list"});
    const auto fromOption = program::run({"--library", folder / "b", "standards", "list"});
    ::unsetenv("VORMANT_LIBRARY");
    EXPECT_THAT(fromEnvironment.err, HasSubstr("no standards in " + (folder / "a")));
    EXPECT_THAT(fromOption.err, HasSubstr(folder / "b"));
}

}  // namespace
