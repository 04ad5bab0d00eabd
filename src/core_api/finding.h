// What a critical reader has to say about a file.
#pragma once

#include "core_api/text/vor_string.h"

struct Finding {
    enum class Severity { error, warning };
    int row = 0;     ///< from 1; 0 speaks of the whole file
    int column = 0;  ///< from 1; 0 speaks of the whole row or file
    Severity severity = Severity::error;
    Vor_String message;
};
