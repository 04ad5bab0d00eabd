// What a user does with mouse and keyboard, as windows hear of it. Keys have the numbers of the
// host's system; letters and digits are their capital characters.
#pragma once

#include "platform/window/geometry.h"

enum Key {
    keyBackspace = 8,
    keyTab = 9,
    keyEnter = 13,
    keyShift = 16,
    keyEscape = 27,
    keySpace = 32,
    keyPageUp = 33,
    keyPageDown = 34,
    keyEnd = 35,
    keyHome = 36,
    keyLeft = 37,
    keyUp = 38,
    keyRight = 39,
    keyDown = 40,
    keyInsert = 45,
    keyDelete = 46,
    keyF1 = 112,
    keyF2 = 113,
    keyF12 = 123,
};

struct KeyMessage {
    int key = 0;
    bool isDown = true;  ///< false: released
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

struct MouseMessage {
    enum class Kind { leftDown, leftUp, leftDouble, rightDown, rightUp, move };
    Kind kind = Kind::move;
    CPoint point;  ///< in pixels of the client area of the window that hears it
    bool shift = false;
    bool ctrl = false;
    bool isLeftHeld = false;
};

enum class Cursor {
    arrow,
    cross,
    move,
    resizeHorizontal,
    resizeVertical,
    resizeDown,
    resizeUp,
    hand,
    wait
};
