// What sections are called by another system.
#include "core_api/sections/section_translation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "support/temporary_folder.h"

namespace {

class SectionTranslations : public testing::Test {
  protected:
    SectionTranslations() { gSettings.setLibDir(folder.inside()); }
    ~SectionTranslations() override { gSettings = Vor_Settings(); }

    TemporaryFolder folder;
    SectionTranslation names;
    Vor_String message;
};

TEST_F(SectionTranslations, ComeBackAsTheyWereWritten) {
    names.set("IPE-200", "EURO\tIPE200");
    names.set("HEA-100", "");
    names.set("ipe-200", "I200\\");
    names.set("L-50x50x5", "L5");
    ASSERT_EQ(writeSectionTranslation("Names.dat", "Section name", "Other", names), Acad::eOk);
    EXPECT_EQ(folder.read("Names.dat"), "Section name\tOther\nIPE-200\tI200\\\\\nL-50x50x5\tL5\n");
    SectionTranslation read;
    ASSERT_EQ(readSectionTranslation(folder.inside("Names.dat"), read), Acad::eOk);
    names.pairs.removeAt(1);  // without a name in the other system
    EXPECT_EQ(read, names);
    EXPECT_EQ(read.otherName("ipe-200").str(), "I200\\");
    EXPECT_EQ(read.section("l5").str(), "L-50x50x5");
    EXPECT_EQ(read.otherName("L5").str(), "");
}

TEST_F(SectionTranslations, ReadWhatIsWholeAndTellWhatIsDamaged) {
    folder.write("Odd.dat", "only titles, of any length\n\nIPE-80\n\tX\nIPE-100\tI100\tmore\n");
    ASSERT_EQ(readSectionTranslation("Odd.dat", names), Acad::eOk);
    ASSERT_EQ(names.pairs.length(), 1);
    EXPECT_EQ(names.section("I100").str(), "IPE-100");
    folder.write("Bad.dat", "a\tb\nIPE-80\t\\\n");
    EXPECT_EQ(readSectionTranslation("Bad.dat", names, &message), Acad::eInvalidInput);
    EXPECT_THAT(message.str(), testing::EndsWith("Bad.dat:2: a backslash stands alone; write it "
                                                 "twice"));
    EXPECT_EQ(names.pairs.length(), 1);
    ASSERT_EQ(readSectionTranslation("None.dat", names), Acad::eOk);
    EXPECT_TRUE(names.pairs.isEmpty());
}

TEST_F(SectionTranslations, NeedALibraryToBeWritten) {
    gSettings.setLibDir("");
    EXPECT_EQ(readSectionTranslation("Names.dat", names), Acad::eOk);
    EXPECT_EQ(writeSectionTranslation("Names.dat", "", "", names, &message), Acad::eInvalidInput);
    EXPECT_EQ(message.str(), "no library folder is set; choose the library first");
    gSettings.setLibDir(folder.inside("none"));
    EXPECT_EQ(writeSectionTranslation("Names.dat", "", "", names, &message), Acad::eInvalidInput);
    EXPECT_THAT(message.str(), testing::HasSubstr("No such file"));
}

}  // namespace
