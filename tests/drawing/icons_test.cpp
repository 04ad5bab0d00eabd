// The pictures that are drawn when the programs are built lie where dialogs look for them.
#include <gtest/gtest.h>

#include "core_api/program_data.h"
#include "core_api/settings.h"
#include "sections/section_pictures.h"
#include "sections/section_types.h"

namespace {

TEST(Icons, HaveABigAndASmallOneOfEachSectionType) {
    gSettings.setVorDir("");
    useProgramData();
    const struct {
        PictureSize size;
        const char* name;
        int width, height;
    } sizes[] = {{PictureSize::big, "-big.bmp", 320, 240},
                 {PictureSize::small, "-small.bmp", 64, 48}};
    for (const auto& [size, name, width, height] : sizes)
        for (int type = 0; type <= sectionTypeCount; ++type) {
            const Vor_String file = sectionPicture(std::to_string(type), "", size);
            const std::string base(type > 0 ? sectionTypePicture(type) : "Unknown");
            EXPECT_EQ(file.str(), base + name);
            std::string error;
            const auto picture = readBitmap(iconPath(file), error);
            ASSERT_TRUE(picture) << error;
            EXPECT_EQ(picture->width(), width);
            EXPECT_EQ(picture->height(), height);
        }
}

TEST(ProgramData, LeavesTheAddOnFolderAloneWhenThereIsNone) {
    EXPECT_TRUE(programData("icons"));
    EXPECT_FALSE(programData("no such data"));
}

}  // namespace
