#include "workbench/window/desktop_texts.h"

#include "workbench/window/say.h"

QString desktopText(DesktopText text) {
    return say(static_cast<int>(text));
}
