// The functions that equations may call beside those of the control.
#pragma once

#include <span>

#include "spread/control/ss_api.h"

struct StandardsFunctionRow {
    const char* name;
    int least;  ///< count of arguments
    int most;
    SSCustomFunction callback;
};

/// In the order in which they are registered.
std::span<const StandardsFunctionRow> standardsFunctions();
