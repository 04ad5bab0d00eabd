#include "window/desktop_texts.h"

#include "core_api/texts/texts.h"
#include "window/dialog_font.h"

QString desktopText(DesktopText text) {
    return toQt(dialString(static_cast<int>(text)).str());
}
