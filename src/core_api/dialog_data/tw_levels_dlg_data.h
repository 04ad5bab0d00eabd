// The levels of a building.
#pragma once

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"

struct TwLevel {
    Vor_String name;
    double height = 0;  ///< millimetres above the origin
    bool isVisible = true;

    bool operator==(const TwLevel&) const = default;
};

class VORMANT_API TwLevelsDlgData {
  public:
    virtual ~TwLevelsDlgData() = default;

    Vor_Array<TwLevel> levels;
};
