#include <gtest/gtest.h>

#include "workbench/window/dialog_font.h"

namespace {

TEST(DesktopText, KeepsEveryCharacterOfTheModuleAndSaysWhatItCannotKeep) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(fromQt(toQt(all)), all);
    EXPECT_TRUE(canBeKept(QString::fromUtf8("\xE2\x82\xAC 5")));
    EXPECT_FALSE(canBeKept(QString::fromUtf8("\xE6\x9D\xB1")));
    EXPECT_EQ(fromQt(QString::fromUtf8("a\xE6\x9D\xB1z")), "a?z");
}

}  // namespace
