// A construction grid: axes along two directions.
#pragma once

#include "core_api/text/vor_string.h"

class VORMANT_API TwGridDlgData {
  public:
    struct Axes {
        Vor_String distances;   ///< millimetres between the axes: "6000 6000 4500"
        Vor_String firstLabel;  ///< "1", "A"; the others count on

        bool operator==(const Axes&) const = default;
    };

    virtual ~TwGridDlgData() = default;

    Vor_String name;
    double originX = 0, originY = 0, originZ = 0;  ///< millimetres
    double rotation = 0;                           ///< degrees
    Axes x;
    Axes y;
    double overhang = 1000;  ///< millimetres that axes run on beyond the last one crossed
    bool showsLabels = true;
};
