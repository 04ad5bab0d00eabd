// The mapping file beside a standards spreadsheet: which macro objects its variables stand for, one
// line for each context that was ever mapped.
//
//     Mapping version 1.0
//     key=variable[0x83]group[0x95]Kind object[0xBF]variable[0x83]…
//
// The separators in brackets are single Windows-1252 bytes.
#pragma once

#include <memory>
#include <optional>

#include "core_api/text/vor_string_array.h"
#include "mapping/tw_object_map.h"

/// The library's "Connection Standards\".
Vor_String standardsFolder();

/// A standard's mapping file; `standardsName` has no extension.
Vor_String mappingFilePath(const Vor_String& standardsName);

/// Its lines without the header, kept until the file changes. Null, with `message` (when asked for)
/// saying why, when it cannot be read.
std::shared_ptr<const Vor_StringArray> readMappingLines(const Vor_String& standardsName,
                                                        Vor_String* message = nullptr);
bool writeMappingLines(const Vor_String& standardsName, Vor_StringArray lines,
                       Vor_String* message = nullptr);

/// Index of the first line stored under exactly this key, or -1. A line without "=" has the empty
/// key.
int findMappingLine(const Vor_StringArray& lines, const Vor_String& key);
Vor_String mappingLineKey(const Vor_String& line);

/// One line. Objects without a kind, whose variable serves two objects, or whose variable could
/// not be a file name are left out.
Vor_String makeMappingLine(const Vor_String& key, const Vor_Array<TwObjectMap>& objects);
/// The objects of a line; items that say nothing known are passed over. Nothing without "=".
std::optional<Vor_Array<TwObjectMap>> parseMappingLine(const Vor_String& line);
