// What files and names hold on a terminal: nothing that it would obey.
#include "platform/terminal_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "cli/program.h"
#include "test_folders.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// What a call writes when all its streams are a terminal.
std::string onTerminal(const std::vector<std::string>& arguments) {
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        std::vector<char*> argv{const_cast<char*>("vormant")};
        for (const auto& each : arguments) argv.push_back(const_cast<char*>(each.c_str()));
        argv.push_back(nullptr);
        ::execv(VORMANT_PROGRAM, argv.data());
        ::_exit(127);
    }
    std::string all;
    char part[4096];
    for (ssize_t count; (count = ::read(terminal, part, sizeof part)) > 0;)
        all.append(part, static_cast<size_t>(count));
    ::close(terminal);
    int status = 0;
    ::waitpid(child, &status, 0);
    return all;
}

TEST(Terminal, GetsNoControlCharactersOfTexts) {
    const struct {
        const char *text, *shown;
    } cases[] = {
        {"plain \xC3\x9C \xE2\x82\xAC\n\tend", "plain \xC3\x9C \xE2\x82\xAC\n\tend"},
        {"\x1B[2Jx\x07\r\x7F", "?[2Jx???"},
        {"\xC2\x9B[31m\xC2\x80\xC2\xA0\xC2", "?[31m?\xC2\xA0\xC2"},
    };
    for (const auto& each : cases) EXPECT_EQ(terminalText(each.text), each.shown);
}

TEST(Terminal, IsSafeFromEveryCommandAndPipesGetEveryByte) {
    const program::Folder folder;
    const std::string harm = "a\x1B]0;owned\x07\xC2\x81[5m";
    const auto sheet =
        folder.write("a.tws", "vormant-sheet 1\nsize 1 1\ncells\nA1 \"" + harm + "\nend 1\n");
    const auto table = folder.write("t.csv", "Name,Count\n" + harm + ",1\n");
    const std::vector<std::vector<std::string>> calls = {
        {"sheet", "show", sheet},
        {"sheet", "eval", "A1", "--cell", "A1=" + harm},
        {"bill", table},
        {"bill", table, "--group", harm},
        {"standards", "check", folder / harm},
        {"sections", "show", harm},
        {harm},
    };
    for (const auto& call : calls)
        EXPECT_THAT(onTerminal(call), AllOf(HasSubstr("]0;owned"), Not(HasSubstr("\x1B")),
                                            Not(HasSubstr("\x07")), Not(HasSubstr("\xC2\x81"))))
            << call[0];
    EXPECT_THAT(program::run({"bill", table}).out, HasSubstr(harm));
}

}  // namespace
