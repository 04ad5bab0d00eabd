// The words of the sheet editor's window in the working language.
#pragma once

#include <QString>

#include "core_api/texts/texts.h"
#include "sheet/sheet_words.h"
#include "window/dialog_font.h"

inline QString say(int number) {
    return toQt(dialString(number));
}
/// Of a menu entry, as the title of what it opens.
inline QString sayTitle(int number) {
    return say(number).remove('&').remove(QChar(0x2026));
}
