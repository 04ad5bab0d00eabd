// Editing the sections of the library by the module's dialogs, with what comes of it kept in the
// files of the library and known to everything that asks for sections.
#pragma once

#include <optional>

#include "core_api/text/vor_string.h"

/// Opens the section library on a section (its full name). True when it was closed with OK.
bool editSectionLibrary(const Vor_String& section);

/// Adds a size to the table of `pattern` (a full section name), which it is made from. The full
/// name of the new size; nothing when the user cancelled, or after telling why it cannot be done.
std::optional<Vor_String> addSectionSize(const Vor_String& pattern);
