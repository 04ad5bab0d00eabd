// A line cut into dashes of 5 pixels with gaps of 3.
#pragma once

#include "drawing/plane.h"

namespace drawing {

inline constexpr double dashLength = 5;
inline constexpr double dashGap = 3;

VORMANT_API std::vector<std::vector<Point>> dashes(std::span<const Point> points, bool isClosed);

}  // namespace drawing
