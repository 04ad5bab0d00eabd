// The one font of all dialogs, and the text between the module (Windows-1252) and Qt.
#pragma once

#include <QFont>
#include <QString>
#include <string>
#include <string_view>

/// Of a fixed height in pixels, so that the tables of dialogs fit whatever the desktop's own font.
QFont dialogFont();

QString toQt(std::string_view text);
/// Characters that Windows-1252 lacks become "?": only for what is shown or searched. For what is
/// kept, ask canBeKept first and refuse.
std::string fromQt(const QString& text);
bool canBeKept(const QString& text);
