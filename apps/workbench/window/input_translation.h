// What Qt tells of keys and the mouse, in the words of the windows.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <optional>

#include "platform/window/input.h"

/// Nothing for keys that the windows have no number for.
std::optional<KeyMessage> keyMessage(const QKeyEvent& event);
/// Nothing for buttons beyond left and right.
std::optional<MouseMessage> mouseMessage(const QMouseEvent& event);
Qt::CursorShape cursorShape(Cursor cursor);
