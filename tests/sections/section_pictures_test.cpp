// Which picture a section shows, and how that of a user section gets to the others.
#include "sections/section_pictures.h"

#include <gmock/gmock.h>

#include "core_api/settings.h"
#include "platform/window/controls.h"
#include "sections/section_names.h"
#include "support/printed.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using std::chrono::seconds;

class SectionPictures : public testing::Test {
  protected:
    SectionPictures() {
        gSettings.setLibDir(folder.inside("lib"));
        gSettings.setVorDir(folder.inside("vor"));
        for (const char* file : {"ProfSectionHL-big.bmp", "Frame-small.bmp", "Own-small.bmp"})
            folder.write(std::string("vor/icons/") + file, "picture");
    }
    ~SectionPictures() override { gSettings = Vor_Settings(); }

    void writeSource(const char* content, seconds age) {
        folder.write(source, content);
        fs::last_write_time(folder.path() / source, fs::file_time_type::clock::now() - age);
    }
    static std::string small(const char* section) {
        return sectionPicture("", section, PictureSize::small).str();
    }
    std::string made() const { return folder.read("vor/icons/Box-automated.bmp"); }

    static constexpr const char* source = "lib/User Sections/Box.bmp";
    TemporaryFolder folder;
};

TEST_F(SectionPictures, AreTheOnesThatAreThere) {
    const struct {
        const char* drawnAs;
        const char* section;
        PictureSize size;
        const char* file;
    } cases[] = {
        {"3", "L-50x50x5", PictureSize::big, "ProfSectionHL-big.bmp"},
        {"3", "L-50x50x5", PictureSize::small, "Unknown-small.bmp"},
        {"1", "IPE-200", PictureSize::big, "Unknown-big.bmp"},
        {"99", "X-1", PictureSize::big, "Unknown-big.bmp"},
        {"Frame.dwg", "F-1", PictureSize::small, "Frame-small.bmp"},
        {"Frame.DWG", "F-1", PictureSize::big, "Unknown-big.bmp"},
        {"", "User Sections\\Own.dwg", PictureSize::small, "Own-small.bmp"},
        {"", "user sections\\Own.dwg", PictureSize::small, "Own-small.bmp"},
        {"", "User Sections\\None.dwg", PictureSize::small, "Unknown-small.bmp"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(sectionPicture(c.drawnAs, c.section, c.size).str(), c.file)
            << c.drawnAs << c.section;
}

TEST_F(SectionPictures, OfAUserSectionAreCopiedOnceAndAgainAfterAChange) {
    writeSource("first", seconds(60));
    EXPECT_EQ(sectionPicture("", "User Sections\\Box.dwg", PictureSize::big).str(),
              "Unknown-big.bmp");
    EXPECT_EQ(made(), "");
    EXPECT_EQ(small("User Sections\\Box.dwg"), "Box-automated.bmp");
    EXPECT_EQ(made(), "first");
    writeSource("not newer", seconds(30));
    EXPECT_EQ(small("User Sections\\Box.dwg"), "Box-automated.bmp");
    EXPECT_EQ(made(), "first");
    writeSource("second", seconds(-60));
    EXPECT_EQ(small("User Sections\\Box.dwg"), "Box-automated.bmp");
    EXPECT_EQ(made(), "second");
}

TEST_F(SectionPictures, ThatCannotBeCopiedAreUnknown) {
    writeSource("first", seconds(0));
    fs::remove_all(folder.path() / "vor");
    folder.write("vor", "a file where the folder should be");
    Printed host;
    const HostScope installed(host);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(small("User Sections\\Box.dwg"), "Unknown-small.bmp");
    EXPECT_THAT(host.text, testing::HasSubstr("User Sections\\Box.bmp: the picture of this user "));
    EXPECT_EQ(std::ranges::count(host.text, '\n'), 1) << "told once: " << host.text;
}

TEST_F(SectionPictures, AreNeverWrittenOutsideTheirFolder) {
    folder.write("lib/escape.bmp", "picture");
    fs::create_directories(folder.path() / "lib/User Sections");
    EXPECT_EQ(small("User Sections\\..\\escape.dwg"), "Unknown-small.bmp");
    EXPECT_FALSE(fs::exists(folder.path() / "vor/escape-automated.bmp"));
}

TEST_F(SectionPictures, AreShownOnAButton) {
    CBitmap picture(2, 1, CBitmap::white);
    picture.set(1, 0, 0x123456);
    folder.write("vor/icons/I.bmp", encodeBitmap(picture));
    CButton button(Control::button);
    ASSERT_TRUE(showIcon(button, "I.bmp", lightGrey));
    EXPECT_EQ(button.picture(), picture);
    EXPECT_EQ(button.pictureWithout(), lightGrey);
    EXPECT_FALSE(showIcon(button, "Own-small.bmp", CBitmap::white));  // no picture
    EXPECT_FALSE(showIcon(button, "None.bmp", CBitmap::white));
    EXPECT_EQ(button.picture(), picture);
    EXPECT_EQ(button.pictureWithout(), lightGrey);
    ASSERT_TRUE(showPictureFile(button, folder.inside("vor\\icons\\I.bmp"), CBitmap::white));
    EXPECT_EQ(button.pictureWithout(), CBitmap::white);
}

TEST(SectionNames, TellUserSectionsAndTables) {
    const struct {
        const char* section;
        bool isUser;
        const char* userName;
        const char* table;
    } cases[] = {
        {"IPE-200", false, "IPE-200", "IPE"},
        {"L-50x50x5-old", false, "L-50x50x5-old", "L"},
        {"Frame", false, "Frame", "Frame"},
        {"User Sections\\Box.dwg", true, "Box", "User Sections\\Box.dwg"},
        {"USER SECTIONS\\a\\Box.1.dwg", true, "a\\Box.1", "USER SECTIONS\\a\\Box.1.dwg"},
        {"", false, "", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isUserSection(c.section), c.isUser) << c.section;
        EXPECT_EQ(userSectionName(c.section).str(), c.userName) << c.section;
        EXPECT_EQ(sectionTableOf(c.section).str(), c.table) << c.section;
    }
}

}  // namespace
