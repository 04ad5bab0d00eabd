#include "window/desktop_texts.h"

#include "window/say.h"

QString desktopText(DesktopText text) {
    return say(static_cast<int>(text));
}
