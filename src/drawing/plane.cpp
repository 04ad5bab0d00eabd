#include "drawing/plane.h"

#include <algorithm>
#include <array>

namespace drawing {

namespace {

/// Whether two sides have a point in common.
bool meet(Point a, Point b, Point c, Point d) {
    const Box first = boundsOf(std::array{a, b});
    const Box second = boundsOf(std::array{c, d});
    if (first.right < second.left || second.right < first.left || first.top < second.bottom ||
        second.top < first.bottom)
        return false;
    const auto sidesDiffer = [](double left, double right) {
        return (left <= 0 && right >= 0) || (left >= 0 && right <= 0);
    };
    return sidesDiffer(cross(b - a, c - a), cross(b - a, d - a)) &&
           sidesDiffer(cross(d - c, a - c), cross(d - c, b - c));
}

}  // namespace

Box boundsOf(std::span<const Point> points) {
    if (points.empty()) return {};
    Box box{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& point : points) {
        box.left = std::min(box.left, point.x);
        box.right = std::max(box.right, point.x);
        box.bottom = std::min(box.bottom, point.y);
        box.top = std::max(box.top, point.y);
    }
    return box;
}

double signedArea(std::span<const Point> contour) {
    double twice = 0;
    for (size_t i = 0; i < contour.size(); ++i)
        twice += cross(contour[i], contour[(i + 1) % contour.size()]);
    return twice / 2;
}

bool isSimple(std::span<const Point> contour) {
    const size_t count = contour.size();
    if (count < 3) return false;
    for (size_t i = 0; i < count; ++i)
        for (size_t k = i + 2; k < count; ++k) {
            const bool areNeighbours = i == 0 && k == count - 1;
            if (!areNeighbours &&
                meet(contour[i], contour[(i + 1) % count], contour[k], contour[(k + 1) % count]))
                return false;
        }
    return true;
}

}  // namespace drawing
