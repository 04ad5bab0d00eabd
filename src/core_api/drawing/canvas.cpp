#include "core_api/drawing/canvas.h"

#include <algorithm>
#include <numbers>

#include "core_api/drawing/dashes.h"
#include "core_api/drawing/stroke_font.h"

namespace drawing {

namespace {

/// Each row of pixels is cut into so many thin ones; along a row cover is exact.
constexpr int thinRows = 16;

struct Crossing {
    double x;
    int direction;
};

struct Side {
    Point a, b;
};

/// Those that a row of pixels meets.
std::vector<Side> sidesIn(std::span<const Contour> contours, int y) {
    std::vector<Side> sides;
    for (const Contour& contour : contours)
        for (size_t i = 0; i < contour.size(); ++i) {
            const Point a = contour[i], b = contour[(i + 1) % contour.size()];
            if (std::max(a.y, b.y) >= y && std::min(a.y, b.y) <= y + 1) sides.push_back({a, b});
        }
    return sides;
}

std::vector<Crossing> crossings(std::span<const Side> sides, double y) {
    std::vector<Crossing> found;
    for (const auto& [a, b] : sides) {
        if ((a.y <= y) == (b.y <= y)) continue;
        found.push_back({a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), a.y <= y ? 1 : -1});
    }
    std::sort(found.begin(), found.end(),
              [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
    return found;
}

/// Adds `share` to every pixel that lies between `from` and `to`, less where it does in part.
void cover(std::vector<double>& row, double from, double to, double share) {
    const double width = static_cast<double>(row.size());
    from = std::clamp(from, 0.0, width);
    to = std::clamp(to, 0.0, width);
    for (auto x = static_cast<size_t>(from); static_cast<double>(x) < to; ++x) {
        const double left = std::max(from, static_cast<double>(x));
        const double right = std::min(to, static_cast<double>(x) + 1);
        row[x] += share * (right - left);
    }
}

void coverLine(std::vector<double>& row, std::span<const Crossing> found, Canvas::Rule rule) {
    int winding = 0;
    for (size_t i = 0; i + 1 < found.size(); ++i) {
        winding += rule == Canvas::Rule::nonZero ? found[i].direction : 1;
        const bool isInside = rule == Canvas::Rule::nonZero ? winding != 0 : winding % 2 != 0;
        if (isInside) cover(row, found[i].x, found[i + 1].x, 1.0 / thinRows);
    }
}

CBitmap::Pixel mixed(CBitmap::Pixel paper, CBitmap::Pixel inkPixel, double share) {
    CBitmap::Pixel result = 0;
    for (const int shift : {0, 8, 16}) {
        const double below = paper >> shift & 0xFF, above = inkPixel >> shift & 0xFF;
        const auto level = static_cast<CBitmap::Pixel>(below + (above - below) * share + 0.5);
        result |= level << shift;
    }
    return result;
}

/// The end of a line; as smooth as a line of some pixels needs.
Contour disc(Point centre, double radius) {
    constexpr int corners = 16;
    Contour contour;
    for (int i = 0; i < corners; ++i)
        contour.push_back(centre + towards(2 * std::numbers::pi * i / corners) * radius);
    return contour;
}

/// The area that a line of `width` covers, all pieces turning the same way.
std::vector<Contour> body(std::span<const Point> points, double width, bool isClosed) {
    std::vector<Contour> pieces;
    for (const Point& point : points) pieces.push_back(disc(point, width / 2));
    const size_t sides = isClosed ? points.size() : points.size() - 1;
    for (size_t i = 0; i < sides; ++i) {
        const Point a = points[i], b = points[(i + 1) % points.size()];
        const Point across = leftOf(unit(b - a)) * (width / 2);
        pieces.push_back({a - across, b - across, b + across, a + across});
    }
    return pieces;
}

}  // namespace

Canvas::Canvas(int width, int height, CBitmap::Pixel paper) : m_bitmap(width, height, paper) {}

void Canvas::blend(int y, std::span<const double> share, CBitmap::Pixel inkPixel) {
    for (int x = 0; x < m_bitmap.width(); ++x)
        if (const double part = share[static_cast<size_t>(x)]; part > 0)
            m_bitmap.set(x, y, mixed(m_bitmap.at(x, y), inkPixel, std::min(part, 1.0)));
}

void Canvas::fill(std::span<const Contour> contours, CBitmap::Pixel inkPixel, Rule rule) {
    std::vector<Point> all;
    for (const Contour& contour : contours) all.insert(all.end(), contour.begin(), contour.end());
    const Box box = boundsOf(all);
    const double height = m_bitmap.height();
    const int first = static_cast<int>(std::clamp(std::floor(box.bottom), 0.0, height));
    const int last = static_cast<int>(std::clamp(std::ceil(box.top), 0.0, height));
    for (int y = first; y < last; ++y) {
        const std::vector<Side> sides = sidesIn(contours, y);
        std::vector<double> row(static_cast<size_t>(m_bitmap.width()));
        for (int thin = 0; thin < thinRows; ++thin)
            coverLine(row, crossings(sides, y + (thin + 0.5) / thinRows), rule);
        blend(y, row, inkPixel);
    }
}

void Canvas::stroke(std::span<const Point> points, double width, CBitmap::Pixel inkPixel,
                    bool isClosed, bool isDashed) {
    if (points.empty()) return;
    if (!isDashed) return fill(body(points, width, isClosed), inkPixel, Rule::nonZero);
    for (const auto& dash : dashes(points, isClosed))
        fill(body(dash, width, false), inkPixel, Rule::nonZero);
}

void Canvas::text(const Label& label, CBitmap::Pixel inkPixel) {
    const Box box = boundsOf(label);
    for (const auto& line : textStrokes(label.text.view(), label.capHeight)) {
        std::vector<Point> placed;
        for (const Point& point : line) placed.push_back({box.left + point.x, box.top - point.y});
        stroke(placed, strokeWidth(label.capHeight), inkPixel);
    }
}

const std::array<CBitmap::Pixel, inkCount>& paperInks() {
    static constexpr std::array<CBitmap::Pixel, inkCount> inks{
        0xDDE5EE, 0xEEF2F6, 0x8496AB, 0x1B2733, 0x6B7785, 0x44525F, 0x101820};
    return inks;
}

CBitmap painted(const Sketch& sketch) {
    Canvas canvas(static_cast<int>(std::ceil(sketch.width)),
                  static_cast<int>(std::ceil(sketch.height)));
    const auto inkOf = [](Ink ink) { return paperInks()[static_cast<size_t>(ink)]; };
    for (const SketchItem& item : sketch.items) {
        if (const auto* area = std::get_if<Fill>(&item))
            canvas.fill(area->contours, inkOf(area->ink), Canvas::Rule::evenOdd);
        else if (const auto* line = std::get_if<Stroke>(&item))
            canvas.stroke(line->points, line->width, inkOf(line->ink), line->isClosed,
                          line->isDashed);
        else if (const auto* label = std::get_if<Label>(&item))
            canvas.text(*label, inkOf(Ink::text));
    }
    return canvas.bitmap();
}

}  // namespace drawing
