// What a member is called when it is exchanged in the CIS/2 format.
#pragma once

#include "core_api/sections/section_translation.h"
#include "core_api/text/vor_string.h"

class VORMANT_API TwDlgCis2Data {
  public:
    virtual ~TwDlgCis2Data() = default;

    Vor_String memberName;
    Vor_String sectionName;
    Vor_String materialName;
    Vor_String assemblyMark;
    Vor_String pieceMark;
    int phase = 1;
    bool isExported = true;
    /// What sections are called in that format. The library keeps them for all members; the dialog
    /// reads and writes them.
    SectionTranslation sectionNames;
    /// False while the library's own cannot be read: then none are shown, and none written.
    bool areSectionNamesKnown = true;
};
