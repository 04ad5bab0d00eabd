// Words by their text numbers, in the working language, as widgets take them.
#pragma once

#include <QString>

QString say(int number);
/// Of a menu entry, as the title of what it opens.
QString sayTitle(int number);
