#include <QApplication>

#include "window/dialog_font.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setFont(dialogFont());
    return 0;
}
