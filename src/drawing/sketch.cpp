#include "drawing/sketch.h"

#include <algorithm>
#include <limits>

#include "drawing/stroke_font.h"

namespace drawing {

namespace {

/// On a line at 45 degrees x + y stays the same, so a point of one is told by that sum and x.
double sumOf(Point point) {
    return point.x + point.y;
}

std::vector<double> crossings(std::span<const Contour> contours, double sum) {
    std::vector<double> xs;
    for (const Contour& contour : contours)
        for (size_t i = 0; i < contour.size(); ++i) {
            const Point a = contour[i], b = contour[(i + 1) % contour.size()];
            if ((sumOf(a) <= sum) == (sumOf(b) <= sum)) continue;
            const double share = (sum - sumOf(a)) / (sumOf(b) - sumOf(a));
            xs.push_back(a.x + (b.x - a.x) * share);
        }
    std::sort(xs.begin(), xs.end());
    return xs;
}

}  // namespace

void Sketch::add(Fill fill) {
    items.emplace_back(std::move(fill));
}

void Sketch::add(Stroke stroke) {
    items.emplace_back(std::move(stroke));
}

void Sketch::add(Label label) {
    items.emplace_back(std::move(label));
}

Box boundsOf(const Label& label) {
    const double wide = textWidth(label.text.view(), label.capHeight);
    const double before = label.anchor == Anchor::left     ? 0
                          : label.anchor == Anchor::centre ? wide / 2
                                                           : wide;
    return {label.at.x - before, label.at.y - label.capHeight / 2, label.at.x - before + wide,
            label.at.y + label.capHeight / 2};
}

std::vector<Stroke> hatch(std::span<const Contour> contours, double spacing, double width) {
    double lowest = std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::lowest();
    for (const Contour& contour : contours)
        for (const Point& point : contour) {
            lowest = std::min(lowest, sumOf(point));
            highest = std::max(highest, sumOf(point));
        }
    std::vector<Stroke> strokes;
    const double step = spacing * std::sqrt(2.0);
    for (double sum = std::ceil(lowest / step) * step; sum < highest; sum += step) {
        const std::vector<double> xs = crossings(contours, sum);
        for (size_t i = 0; i + 1 < xs.size(); i += 2)
            strokes.push_back({.points = {{xs[i], sum - xs[i]}, {xs[i + 1], sum - xs[i + 1]}},
                               .ink = Ink::hatch,
                               .width = width});
    }
    return strokes;
}

}  // namespace drawing
