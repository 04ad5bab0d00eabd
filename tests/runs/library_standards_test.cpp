#include "runs/library_standards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "runs/given_value.h"
#include "support/temporary_folder.h"

namespace {

TEST(LibraryStandards, AreNamedAsTheirMappingFilesAre) {
    EXPECT_TRUE(runs::libraryStandards().empty());
    const TemporaryFolder folder;
    folder.write("Connection Standards/Plate.tws", "");
    folder.write("Connection Standards/Parents/Haunch.TWS", "");
    folder.write("Connection Standards/Plate.map", "");
    gSettings.setLibDir(folder.inside());
    std::vector<std::string> names;
    for (const auto& standard : runs::libraryStandards()) {
        names.push_back(standard.name.str());
        EXPECT_EQ(runs::nameInLibrary(standard.path)->str(), names.back());
    }
    EXPECT_THAT(names, testing::UnorderedElementsAre("Plate", "Parents\\Haunch"));
    EXPECT_FALSE(runs::nameInLibrary("c:\\elsewhere\\Plate.tws"));
    gSettings.setLibDir("");
}

TEST(GivenValues, AreRefusedOnlyWhereANumberBelongs) {
    const struct {
        TwValueType type;
        const char* value;
        const char* refusal;
    } cases[] = {
        {TwValueType::Double, "12.5", ""},
        {TwValueType::Double, "", ""},
        {TwValueType::Int, "1,5", "Gap is a number (Int): write it with digits and a point"},
        {TwValueType::Double, "ten", "Gap is a number (Double): write it with digits and a point"},
        {TwValueType::String, "ten", ""},
    };
    for (const auto& each : cases) {
        const TwVarCell variable("Gap", TwCellType::input, each.type);
        EXPECT_EQ(runs::refusal(variable, each.value).str(), each.refusal) << each.value;
    }
}

}  // namespace
