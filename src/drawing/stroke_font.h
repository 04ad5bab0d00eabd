// A font of single lines, as drawing tables had them: letters, digits and the signs of dimensions.
// Letters with accents show without them, other characters as an empty box.
#pragma once

#include <string_view>

#include "drawing/plane.h"

namespace drawing {

/// The lines of a text that begins at (0, 0) on its base line, y up. Windows-1252.
VORMANT_API std::vector<std::vector<Point>> textStrokes(std::string_view text, double capHeight);
VORMANT_API double textWidth(std::string_view text, double capHeight);
/// How thick its lines are drawn.
VORMANT_API double strokeWidth(double capHeight);

}  // namespace drawing
