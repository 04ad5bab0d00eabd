// Points and closed contours in a plane, as sections and pictures are made of them. Angles are
// radians, counter-clockwise from the x axis when y points up.
#pragma once

#include <cmath>
#include <span>
#include <vector>

#include "platform/export.h"

namespace drawing {

struct Point {
    double x = 0;
    double y = 0;

    Point operator+(Point other) const { return {x + other.x, y + other.y}; }
    Point operator-(Point other) const { return {x - other.x, y - other.y}; }
    Point operator*(double factor) const { return {x * factor, y * factor}; }
    bool operator==(const Point&) const = default;
};

inline double dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
inline double cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}
inline double length(Point a) {
    return std::hypot(a.x, a.y);
}
/// Length 1; (0, 0) stays as it is.
inline Point unit(Point a) {
    const double size = length(a);
    return size > 0 ? a * (1 / size) : a;
}
/// A quarter turn counter-clockwise.
inline Point leftOf(Point a) {
    return {-a.y, a.x};
}
inline Point towards(double angle) {
    return {std::cos(angle), std::sin(angle)};
}

/// Its last point joins its first one.
using Contour = std::vector<Point>;

struct Box {
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    double width() const { return right - left; }
    double height() const { return top - bottom; }
    Point centre() const { return {(left + right) / 2, (bottom + top) / 2}; }
    bool overlaps(const Box& other) const {
        return left < other.right && other.left < right && bottom < other.top && other.bottom < top;
    }
};

/// All zero when there are no points.
VORMANT_API Box boundsOf(std::span<const Point> points);
/// Above 0 when the contour runs counter-clockwise.
VORMANT_API double signedArea(std::span<const Point> contour);
/// No two sides cross or touch but neighbours at their common end.
VORMANT_API bool isSimple(std::span<const Point> contour);

}  // namespace drawing
