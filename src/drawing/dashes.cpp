#include "drawing/dashes.h"

#include <algorithm>

namespace drawing {

std::vector<std::vector<Point>> dashes(std::span<const Point> points, bool isClosed) {
    std::vector<std::vector<Point>> all;
    bool isDash = true;
    double left = dashLength;  // of the dash or gap at hand
    const size_t sides = points.empty() ? 0 : isClosed ? points.size() : points.size() - 1;
    if (sides > 0) all.push_back({points[0]});
    for (size_t i = 0; i < sides; ++i) {
        const Point end = points[(i + 1) % points.size()];
        Point at = points[i];
        while (length(end - at) > 0) {
            const double walked = std::min(left, length(end - at));
            at = walked == left ? at + unit(end - at) * walked : end;
            left -= walked;
            if (isDash) all.back().push_back(at);
            if (left > 0) continue;
            isDash = !isDash;
            left = isDash ? dashLength : dashGap;
            if (isDash) all.push_back({at});
        }
    }
    return all;
}

}  // namespace drawing
