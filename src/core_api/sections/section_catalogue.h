// The catalogue of section groups and types, and its files in the library's "prof\" folder:
// "Groups.dat" and "Types.dat", record files (core_api/files.h) of a title record and one record a
// group or type. A file that is not there is an empty list.
#pragma once

#include <array>
#include <optional>

#include "core_api/files.h"
#include "core_api/sections/section_group_array.h"
#include "core_api/sections/section_type.h"
#include "platform/files.h"

struct SectionCatalogue {
    SectionGroupArray groups;
    Vor_Array<SectionType> types;
    bool operator==(const SectionCatalogue&) const = default;
};

/// False, with `catalogue` as it was, when a file cannot be read; `message` says which, where and
/// what to do.
VORMANT_API bool readSectionCatalogue(SectionCatalogue& catalogue, Vor_String* message = nullptr);
/// The files, of the groups and of the types, as they are now.
using CatalogueStamps = std::array<std::optional<files::Stamp>, 2>;
VORMANT_API CatalogueStamps sectionCatalogueStamps();
VORMANT_API Vor_String sectionCatalogueFolder();
/// Each file is written whole or not at all.
VORMANT_API bool writeSectionCatalogue(const SectionCatalogue& catalogue,
                                       Vor_String* message = nullptr);

/// The records of the files, and back. False with the message "source:line: what is wrong; what to
/// do", and the output as it was.
VORMANT_API bool readGroupRecords(const RecordRows& records, std::string_view source,
                                  SectionGroupArray& groups, Vor_String& message);
VORMANT_API bool readTypeRecords(const RecordRows& records, std::string_view source,
                                 Vor_Array<SectionType>& types, Vor_String& message);
VORMANT_API RecordRows groupRecords(const SectionGroupArray& groups);
VORMANT_API RecordRows typeRecords(const Vor_Array<SectionType>& types);
