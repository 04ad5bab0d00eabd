// The same input gives the same bytes: at any time, in any time zone, in any locale.
#include <gtest/gtest.h>
#include <unistd.h>

#include "program.h"
#include "test_folders.h"

namespace {

struct Place {
    const char *zone, *locale;
};

TEST(SameBytes, AreWrittenInEveryZoneAndLocaleAndAtEveryTime) {
    const program::Folder folder;
    const std::string library = VORMANT_SOURCE_DIR "/library";
    const std::string sheet = library + "/Connection Standards/Childs/SteelStrength.tws";
    const struct {
        std::vector<std::string> arguments;  // the file is the last
        const char* file;
        bool isDated;
    } calls[] = {
        {{"bill", "EndPlate", "FinPlate", "--pictures", "-o"}, "b.sss", true},
        {{"bill", "EndPlate", "FinPlate", "--pictures", "-o"}, "b.xlsx", false},
        {{"bill", "EndPlate", "FinPlate", "-o"}, "b.csv", false},
        {{"sheet", "convert", sheet}, "s.xlsx", false},
        {{"sheet", "convert", sheet}, "s.csv", false},
        {{"sheet", "convert", sheet}, "s.tws", false},
        {{"sections", "export", "HEA"}, "x.csv", false},
        {{"sections", "export", "HEA"}, "x.json", false},
    };
    // Where there are no sources of locales, the commas of German numbers are not tried.
    const std::string german = folder / "de_DE.UTF-8";
    ::setenv("LOCPATH", folder.path().c_str(), 1);
    (void)std::system(("localedef -i de_DE -f UTF-8 '" + german + "' >/dev/null 2>&1").c_str());
    const Place places[] = {{"UTC", "C"}, {"<+14>-14", "de_DE.UTF-8"}, {"<-11>11", "C.utf8"}};
    std::vector<std::string> first(std::size(calls));
    for (const Place& place : places) {
        if (&place == std::end(places) - 1) ::usleep(1'100'000);  // clocks of files count seconds
        ::setenv("TZ", place.zone, 1);
        ::setenv("LC_ALL", place.locale, 1);
        for (size_t i = 0; i < std::size(calls); ++i) {
            if (calls[i].isDated) ::setenv("SOURCE_DATE_EPOCH", "1774997999", 1);
            std::vector<std::string> arguments{"--library", library};
            arguments.insert(arguments.end(), calls[i].arguments.begin(), calls[i].arguments.end());
            arguments.push_back(folder / calls[i].file);
            const auto result = program::run(arguments);
            ::unsetenv("SOURCE_DATE_EPOCH");
            ASSERT_EQ(result.exitCode, 0) << result.err;
            const std::string bytes = folder.read(calls[i].file);
            std::filesystem::remove(folder / calls[i].file);
            if (&place == places) first[i] = bytes;
            EXPECT_TRUE(bytes == first[i]) << calls[i].file << " in " << place.zone;
        }
    }
    for (const char* name : {"TZ", "LC_ALL", "LOCPATH"}) ::unsetenv(name);
}

}  // namespace
