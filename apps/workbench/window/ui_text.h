// Words by their text numbers, in the working language, as widgets take them.
#pragma once

#include <QString>
#include <string_view>

QString uiText(int number);
/// Of a menu entry, as the title of what it opens.
QString uiTitle(int number);
/// A message of the module, with its files named as on this machine.
QString shownMessage(std::string_view message);
QString shownMessage(const QString& message);
