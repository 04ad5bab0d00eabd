// Pictures of the module as Qt shows them, and the icons of image buttons by number.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>

#include "platform/window/bitmap.h"

/// Pixels of the colour `without` (0x00RRGGBB; -1 for none) become transparent.
QImage imageOf(const CBitmap& picture, int64_t without = -1);
QPixmap pixmapOf(const CBitmap& picture);
/// A picture file of any kind, by its bytes; null when it is none or its sides are no picture's.
QImage imageOfFile(const std::string& bytes);
/// A picture that is drawn for the screen, else one of the module's own; null when neither exists.
QIcon iconOf(int number);
