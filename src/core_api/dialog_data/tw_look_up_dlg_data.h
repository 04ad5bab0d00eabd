// One value picked from a list of named values.
#pragma once

#include "core_api/text/vor_string_array.h"

class VORMANT_API TwLookUpDlgData {
  public:
    virtual ~TwLookUpDlgData() = default;

    Vor_String title;  ///< empty: that of the dialog
    Vor_String prompt;
    Vor_StringArray names;
    int chosen = -1;  ///< index of a name, -1 for none
};
