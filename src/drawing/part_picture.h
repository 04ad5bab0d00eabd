// The picture of a part as bills show it: a plate by its face and its edge, a length of a profile
// by its section and its side, a bolt by its side. All in scale, but long parts are shortened
// between break lines.
#pragma once

#include "drawing/figure.h"
#include "platform/window/bitmap.h"

namespace drawing {

struct DrawnPart {
    enum class Kind { plate, profile, bolt };
    Kind kind = Kind::plate;

    // Millimetres, all above 0 where the kind has them.
    double length = 0;     ///< plate, profile; of a bolt: below its head
    double width = 0;      ///< plate
    double thickness = 0;  ///< plate
    double diameter = 0;   ///< bolt

    struct Hole {
        Point at;  ///< along the length and the width, from one corner
        double diameter = 0;
    };
    std::vector<Hole> holes{};  ///< plate; those that do not lie within it are left out

    int sectionType = 0;  ///< profile
    std::vector<double> sectionValues{};
};

/// Empty when a measure is missing or the values make no section.
VORMANT_API Figure partFigure(const DrawnPart& part);
/// Empty in the same cases.
VORMANT_API CBitmap partPicture(const DrawnPart& part, int width, int height);

}  // namespace drawing
