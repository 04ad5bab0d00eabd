#include "workbench/window/say.h"

#include "core_api/texts/texts.h"
#include "platform/readable_paths.h"
#include "workbench/window/dialog_font.h"

QString say(int number) {
    return toQt(dialString(number));
}

QString sayTitle(int number) {
    return say(number).remove('&').remove(QChar(0x2026));
}

QString shownMessage(std::string_view message) {
    return toQt(paths::readable(message));
}

QString shownMessage(const QString& message) {
    return QString::fromStdString(paths::readableUtf8(message.toStdString()));
}
