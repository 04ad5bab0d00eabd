#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>

#include "workbench/window/dialog_font.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setFont(dialogFont());
    if (QFontDatabase::families().isEmpty()) {
        std::fprintf(stderr, "no fonts are installed: every character would be a box\n");
        return 1;
    }
    return RUN_ALL_TESTS();
}
