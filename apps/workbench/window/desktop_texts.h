// The words of the desktop's own questions, by their numbers in the core's table.
#pragma once

#include <QString>

enum class DesktopText {
    ok = 1,
    cancel = 2,
    yes = 9101,
    no,
    retry,
    fileExists,        ///< "%1" exists: replace it?
    nameNotKept,       ///< a file name with the character "%1"
    characterNotKept,  ///< "%1"
    chooseFolder = 26963,
};

/// In the working language.
QString desktopText(DesktopText text);
