// What the section library dialog works on: the table files of the library and the drawn section
// templates.
#pragma once

#include "core_api/text/vor_string_array.h"

class VORMANT_API DlgEditLibData {
  public:
    virtual ~DlgEditLibData() = default;

    /// Lists the table files of the library's "prof\" folder.
    void GetAvailableFiles();

    /// Without folder and ".pr".
    Vor_StringArray tableNames;
    /// File names ending in ".dwg".
    Vor_StringArray templateNames;
};
