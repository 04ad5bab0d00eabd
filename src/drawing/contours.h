// The two ways in which the contours of sections come about: rolled ones are polygons whose corners
// are rounded, cold-formed ones a strip bent along a path.
#pragma once

#include <numbers>
#include <optional>

#include "drawing/plane.h"

namespace drawing {

struct Corner {
    Point at;
    double radius = 0;  ///< 0: sharp
};

/// The polygon with its corners rounded, counter-clockwise. Nothing when a rounding takes more of a
/// side than its neighbours leave. Arcs are cut into steps of 3 degrees, which keeps areas within a
/// thousandth, or into finer ones (radians).
inline constexpr double drawnArcStep = std::numbers::pi / 60;
VORMANT_API std::optional<Contour> rounded(std::span<const Corner> corners,
                                           double arcStep = drawnArcStep);

VORMANT_API Contour circle(Point centre, double radius);
/// From angle to angle, both ends included; clockwise when `to` is less than `from`. The half axes
/// may differ.
VORMANT_API std::vector<Point> arc(Point centre, double radiusX, double radiusY, double from,
                                   double to, double arcStep = drawnArcStep);

/// A strip that reaches `left` to the left of `path` and `right` to its right, seen along it; its
/// thickness is their sum. Bends have the inner radius `inner`, or a smaller one, down to 0, where
/// a side is too short for it. Nothing when even sharp bends do not fit.
struct Strip {
    double left = 0;
    double right = 0;
    double inner = 0;
};
VORMANT_API std::optional<Contour> bent(std::span<const Point> path, const Strip& strip);

}  // namespace drawing
