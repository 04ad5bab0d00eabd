// The files of section tables (".pr"): a record with the section type, one with the column names,
// then the sizes.
#pragma once

#include <memory>

#include "core_api/sections/section_table.h"

/// Null, with `message` saying why, when the file cannot be read.
VORMANT_API std::unique_ptr<SectionTable> readSectionTable(const Vor_String& path,
                                                           Vor_String& message);
