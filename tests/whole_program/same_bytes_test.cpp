// The same input gives the same bytes, whatever the command: at any time, in any time zone, in any
// locale.
#include <gtest/gtest.h>
#include <unistd.h>

#include "whole_program/commands.h"

namespace whole_program {
namespace {

TEST(SameBytes, AreWrittenInEveryZoneAndLocaleAndAtEveryTime) {
    Workplace place;
    // Where there are no sources of locales, the commas of German numbers are not tried.
    const program::Folder locales;
    (void)std::system(
        ("localedef -i de_DE -f UTF-8 '" + locales / "de_DE.UTF-8" + "' >/dev/null 2>&1").c_str());
    const std::string locations = "LOCPATH=" + locales.path().string();
    const std::vector<std::string> surroundings[] = {
        {"TZ=UTC", "LC_ALL=C"},
        {"TZ=<+14>-14", "LC_ALL=de_DE.UTF-8", locations},
        {"TZ=<-11>11", "LC_ALL=C.UTF-8"},
    };
    struct Written {
        std::string out;
        Files files;
    };
    std::vector<Written> first;
    for (const auto& each : surroundings) {
        if (!first.empty()) ::usleep(1'100'000);  // clocks of files count seconds
        size_t number = 0;
        for (const Command& command : writingCommands()) {
            const auto result = place.run(command, each);
            ASSERT_EQ(result.exitCode, 0) << command.name << ": " << result.err;
            Written now{result.out, place.files()};
            place.reset();
            if (&each == surroundings) first.push_back(now);
            const Written& before = first[number++];
            EXPECT_EQ(now.out, before.out) << command.name << " with " << each[0];
            for (const auto& [name, content] : now.files) {
                const auto found = before.files.find(name);
                EXPECT_TRUE(found != before.files.end() && found->second == content)
                    << command.name << " with " << each[0] << ": " << name;
            }
            EXPECT_EQ(now.files.size(), before.files.size()) << command.name;
        }
    }
}

}  // namespace
}  // namespace whole_program
