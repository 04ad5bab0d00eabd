#include "workbench/window/desktop_texts.h"

#include "workbench/window/ui_text.h"

QString desktopText(DesktopText text) {
    return uiText(static_cast<int>(text));
}
