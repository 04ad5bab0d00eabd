// All sections of the library by their full system names, for fields that take one.
#pragma once

#include <QStringList>

/// In the order of the tables. Tables that cannot be read give none.
QStringList sectionNames();
