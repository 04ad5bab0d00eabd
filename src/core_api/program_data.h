// The data that comes with the programs: "share/vormant/" beside the folder of the running program
// when it is installed, and at the top of the build tree when it is not.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

/// The machine path of the folder `name` of that data ("library"), "" for all of it. Nothing when
/// there is none, or when the running program cannot be told.
VORMANT_API std::optional<std::string> programData(std::string_view name);

/// Makes that data the add-on's folder. Without any, the settings stay as they are: pictures are
/// missing then, and nothing else.
VORMANT_API void useProgramData();
