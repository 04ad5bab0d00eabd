#include "window/say.h"

#include "core_api/texts/texts.h"
#include "window/dialog_font.h"

QString say(int number) {
    return toQt(dialString(number));
}

QString sayTitle(int number) {
    return say(number).remove('&').remove(QChar(0x2026));
}
