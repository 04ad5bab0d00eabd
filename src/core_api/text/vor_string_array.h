// An array of texts with the look-ups the module needs.
#pragma once

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"

class VORMANT_API Vor_StringArray : public Vor_Array<Vor_String> {
  public:
    using Vor_Array<Vor_String>::Vor_Array;

    /// Index of the first entry equal to `text`, or -1. The flag says "case matters".
    int find(std::string_view text, bool caseMatters = false) const;
    bool contains(std::string_view text, bool caseMatters = false) const {
        return find(text, caseMatters) >= 0;
    }
};
