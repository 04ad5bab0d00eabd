// The built-in parametric section types, numbered from 1: what they are called, the picture that
// shows them, and the values that a table of them holds, in the order of its value columns.
#pragma once

#include <string_view>

#include "core_api/settings.h"
#include "core_api/text/vor_string_array.h"

inline constexpr int sectionTypeCount = 24;

/// The base name of its pictures ("ProfSectionI"); empty for another number.
VORMANT_API std::string_view sectionTypePicture(int type);
/// In the working language; empty for another number.
VORMANT_API Vor_String sectionTypeText(int type);
/// As lists show it: "<" + text + ">".
VORMANT_API Vor_String sectionTypeDisplay(int type);
/// The type that lists show as `display`; -1 when there is none.
VORMANT_API int findSectionType(std::string_view display);
/// The names of the value columns, in the working language or another; none for another number.
VORMANT_API Vor_StringArray sectionTypeColumns(int type);
VORMANT_API Vor_StringArray sectionTypeColumns(int type, Language language);

/// What a table says of how its sections are drawn: the number of a type ("1" to "24"; -1 when the
/// text is none), or a drawn template (a ".dwg" file).
VORMANT_API int sectionTypeNumber(std::string_view drawnAs);
VORMANT_API bool isDrawnTemplate(const Vor_String& drawnAs);
