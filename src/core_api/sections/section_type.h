// A section type as users sort and name them for choosing sections. (How a section is drawn is
// another matter: sections/section_types.h.)
#pragma once

#include "core_api/text/vor_string_array.h"

class VORMANT_API SectionType {
  public:
    /// Enabled, in no group, called "New type" in every language.
    SectionType();
    virtual ~SectionType() = default;

    static constexpr long noGroup = -1;

    bool isEnabled = true;
    Vor_String image;      ///< picture file name
    long group = noGroup;  ///< number of its group
    Vor_String remark;
    Vor_StringArray names;  ///< one for each language, in the order of MacroLangs

    /// In the working language, else in the first that has a name.
    Vor_String getName() const;

    bool operator==(const SectionType&) const = default;
};
