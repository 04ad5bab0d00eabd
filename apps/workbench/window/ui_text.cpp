#include "workbench/window/ui_text.h"

#include "core_api/texts/texts.h"
#include "platform/readable_paths.h"
#include "workbench/window/dialog_font.h"

QString uiText(int number) {
    return toQt(dialString(number));
}

QString uiTitle(int number) {
    return uiText(number).remove('&').remove(QChar(0x2026));
}

QString shownMessage(std::string_view message) {
    return toQt(paths::readable(message));
}

QString shownMessage(const QString& message) {
    return QString::fromStdString(paths::readableUtf8(message.toStdString()));
}
