// One picture picked from a set.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/window/geometry.h"

class VORMANT_API TwSelectImageDlgData {
  public:
    virtual ~TwSelectImageDlgData() = default;

    Vor_String title;        ///< empty: that of the dialog
    Vor_StringArray files;   ///< ".bmp", host-style paths
    Vor_StringArray labels;  ///< parallel; one that is missing is the file's name
    CSize pictureSize{96, 96};
    int chosen = -1;  ///< index of a file, -1 for none
};
