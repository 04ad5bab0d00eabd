#include "drawing/contours.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr double straight = 1e-9;

/// A corner between the directions that come in and go out.
struct Turn {
    Turn(Point before, const Corner& corner, Point after)
        : in(unit(corner.at - before)), out(unit(after - corner.at)) {
        angle = std::atan2(cross(in, out), dot(in, out));
        if (std::abs(angle) > straight) tangent = corner.radius * std::tan(std::abs(angle) / 2);
    }
    Point in;
    Point out;
    double angle = 0;    ///< above 0 for a turn to the left
    double tangent = 0;  ///< how much of both sides the rounding takes
};

void appendArc(Contour& contour, const Corner& corner, const Turn& turn, double arcStep) {
    const double side = turn.angle > 0 ? 1 : -1;
    const Point begin = corner.at - turn.in * turn.tangent;
    const Point centre = begin + leftOf(turn.in) * (side * corner.radius);
    const Point spoke = begin - centre;
    const double start = std::atan2(spoke.y, spoke.x);
    const double end = start + turn.angle;
    for (const Point& point : arc(centre, corner.radius, corner.radius, start, end, arcStep))
        contour.push_back(point);
}

/// One face of a strip: the path moved to its left by `by`, with sharp corners.
std::vector<Point> moved(std::span<const Point> path, double by) {
    std::vector<Point> face;
    for (size_t i = 0; i < path.size(); ++i) {
        const Point in = unit(i > 0 ? path[i] - path[i - 1] : path[1] - path[0]);
        const Point out = unit(i + 1 < path.size() ? path[i + 1] - path[i] : in);
        // The corner lies where both moved sides meet.
        const double half = 1 + dot(in, out);
        face.push_back(path[i] + (leftOf(in) + leftOf(out)) * (by / half));
    }
    return face;
}

std::vector<Corner> stripCorners(std::span<const Point> path, const Strip& strip) {
    const std::vector<Point> left = moved(path, strip.left);
    const std::vector<Point> right = moved(path, -strip.right);
    const double outer = strip.inner + strip.left + strip.right;
    std::vector<Corner> corners;
    const auto radius = [&](size_t i, bool isLeft) {
        if (i == 0 || i + 1 == path.size()) return 0.0;
        const bool turnsLeft = cross(path[i] - path[i - 1], path[i + 1] - path[i]) > 0;
        return turnsLeft == isLeft ? strip.inner : outer;
    };
    for (size_t i = 0; i < path.size(); ++i) corners.push_back({right[i], radius(i, false)});
    for (size_t i = path.size(); i-- > 0;) corners.push_back({left[i], radius(i, true)});
    return corners;
}

/// A face that is shorter than its bends runs backwards; its contour would still be closed.
bool keepsDirections(std::span<const Point> path, const Strip& strip) {
    for (const double by : {strip.left, -strip.right}) {
        const std::vector<Point> face = moved(path, by);
        for (size_t i = 1; i < path.size(); ++i)
            if (dot(face[i] - face[i - 1], path[i] - path[i - 1]) <= 0) return false;
    }
    return true;
}

}  // namespace

std::vector<Point> arc(Point centre, double radiusX, double radiusY, double from, double to,
                       double arcStep) {
    const int steps = std::max(1, static_cast<int>(std::ceil(std::abs(to - from) / arcStep)));
    std::vector<Point> points;
    for (int i = 0; i <= steps; ++i) {
        const Point spoke = towards(from + (to - from) * i / steps);
        points.push_back(centre + Point{spoke.x * radiusX, spoke.y * radiusY});
    }
    return points;
}

Contour circle(Point centre, double radius) {
    Contour contour = arc(centre, radius, radius, 0, 2 * std::numbers::pi);
    contour.pop_back();
    return contour;
}

std::optional<Contour> rounded(std::span<const Corner> corners, double arcStep) {
    const size_t count = corners.size();
    std::vector<Turn> turns;
    for (size_t i = 0; i < count; ++i)
        turns.emplace_back(corners[(i + count - 1) % count].at, corners[i],
                           corners[(i + 1) % count].at);
    Contour contour;
    for (size_t i = 0; i < count; ++i) {
        const size_t next = (i + 1) % count;
        const double side = length(corners[next].at - corners[i].at);
        if (turns[i].tangent + turns[next].tangent > side * (1 + 1e-9)) return std::nullopt;
        if (turns[i].tangent > 0)
            appendArc(contour, corners[i], turns[i], arcStep);
        else
            contour.push_back(corners[i].at);
    }
    // Roundings that leave nothing of a side between them share a point.
    const auto isSame = [](Point a, Point b) { return length(a - b) < 1e-9; };
    contour.erase(std::unique(contour.begin(), contour.end(), isSame), contour.end());
    while (contour.size() > 1 && isSame(contour.front(), contour.back())) contour.pop_back();
    if (signedArea(contour) < 0) std::reverse(contour.begin(), contour.end());
    return contour;
}

std::optional<Contour> bent(std::span<const Point> path, const Strip& strip) {
    if (!keepsDirections(path, strip)) return std::nullopt;
    for (const double share : {1.0, 0.75, 0.5, 0.25, 0.0}) {
        Strip tried = strip;
        tried.inner *= share;
        if (const auto contour = rounded(stripCorners(path, tried))) return contour;
    }
    return std::nullopt;
}

}  // namespace drawing
