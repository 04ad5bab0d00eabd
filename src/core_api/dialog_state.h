// What dialogs remember from one run to the next, by dialog name ("DLG_FINDREPLACE"): their place
// on the screen and a few switches. A value that cannot be kept is told on the command line and
// forgotten.
#pragma once

#include "core_api/text/vor_string.h"
#include "platform/window/wnd.h"

/// Stores the window's rectangle.
VORMANT_API void WriteDlgSize(const CWnd& dialog, std::string_view name);
/// Moves the window to the rectangle stored. False, with nothing moved, when there is none or it
/// is no rectangle of 1 to 32767 pixels a side.
VORMANT_API bool ChangeDlgSize(CWnd& dialog, std::string_view name);

/// False, with `value` as it was, when none is stored.
VORMANT_API bool readDlgRegBool(std::string_view dialog, std::string_view name, bool& value);
VORMANT_API void writeDlgRegBool(std::string_view dialog, std::string_view name, bool value);
