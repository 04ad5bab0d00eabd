#include "drawing/canvas.h"

#include <algorithm>

#include "drawing/dashes.h"
#include "drawing/line_cover.h"
#include "drawing/stroke_font.h"

namespace drawing {

namespace {

/// Each row of pixels is cut into so many thin ones; along a row cover is exact.
constexpr int thinRows = 16;

struct Side {
    Point low, high;

    double at(double y) const { return low.x + (high.x - low.x) * (y - low.y) / (high.y - low.y); }
};

/// From the lowest on. Level ones are left out, they bound nothing that lies beside them.
std::vector<Side> sidesOf(std::span<const Contour> contours) {
    std::vector<Side> sides;
    for (const Contour& contour : contours)
        for (size_t i = 0; i < contour.size(); ++i) {
            const Point a = contour[i], b = contour[(i + 1) % contour.size()];
            if (a.y != b.y) sides.push_back(a.y < b.y ? Side{a, b} : Side{b, a});
        }
    std::sort(sides.begin(), sides.end(),
              [](const Side& a, const Side& b) { return a.low.y < b.low.y; });
    return sides;
}

/// The sides that the rows meet, one row of pixels after the other.
class Sweep {
  public:
    explicit Sweep(std::span<const Side> sides) : m_rest(sides) {}

    void moveTo(int y) {
        std::erase_if(m_met, [&](const Side& side) { return side.high.y <= y; });
        for (; !m_rest.empty() && m_rest.front().low.y < y + 1; m_rest = m_rest.subspan(1))
            if (m_rest.front().high.y > y) m_met.push_back(m_rest.front());
    }
    /// Where they lie at that height, from the left; two at a time bound what is inside.
    std::span<const double> crossings(double y) {
        m_found.clear();
        for (const Side& side : m_met)
            if (side.low.y <= y && y < side.high.y) m_found.push_back(side.at(y));
        std::sort(m_found.begin(), m_found.end());
        return m_found;
    }

  private:
    std::span<const Side> m_rest;
    std::vector<Side> m_met;
    std::vector<double> m_found;  ///< kept for its memory
};

/// How far the pixels of a row are covered, from the pixel `left` on. Kept as the steps from each
/// pixel to the next, so that a wide area costs as little as a thin line.
class RowCover {
  public:
    RowCover(int left, int width) : m_left(left), m_steps(static_cast<size_t>(width) + 2) {}

    void clear() { std::fill(m_steps.begin(), m_steps.end(), 0.0); }
    void add(double from, double to, double share) {
        step(from, share);
        step(to, -share);
    }
    template <class Use>
    void forEach(Use use) const {
        double share = 0;
        for (size_t i = 0; i + 2 < m_steps.size(); ++i)
            use(m_left + static_cast<int>(i), share += m_steps[i]);
    }

  private:
    void step(double x, double share) {
        x = std::clamp(x - m_left, 0.0, static_cast<double>(m_steps.size() - 2));
        const auto pixel = static_cast<size_t>(x);
        const double part = x - static_cast<double>(pixel);
        m_steps[pixel] += share * (1 - part);
        m_steps[pixel + 1] += share * part;
    }

    int m_left;
    std::vector<double> m_steps;
};

CBitmap::Pixel mixed(CBitmap::Pixel paper, CBitmap::Pixel inkPixel, double share) {
    CBitmap::Pixel result = 0;
    for (const int shift : {0, 8, 16}) {
        const double below = paper >> shift & 0xFF, above = inkPixel >> shift & 0xFF;
        const auto level = static_cast<CBitmap::Pixel>(below + (above - below) * share + 0.5);
        result |= level << shift;
    }
    return result;
}

}  // namespace

Canvas::Canvas(int width, int height, CBitmap::Pixel paper) : m_bitmap(width, height, paper) {}

void Canvas::fill(std::span<const Contour> contours, CBitmap::Pixel inkPixel) {
    std::vector<Point> all;
    for (const Contour& contour : contours) all.insert(all.end(), contour.begin(), contour.end());
    const Box box = boundsOf(all);
    const int left = pixelAt(box.left, m_bitmap.width());
    const int right = pixelAt(box.right + 1, m_bitmap.width());
    const int first = pixelAt(box.bottom, m_bitmap.height());
    const int last = pixelAt(box.top + 1, m_bitmap.height());
    const std::vector<Side> sides = sidesOf(contours);
    Sweep sweep(sides);
    RowCover row(left, right - left);
    for (int y = first; y < last; ++y) {
        sweep.moveTo(y);
        row.clear();
        for (int thin = 0; thin < thinRows; ++thin) {
            const auto found = sweep.crossings(y + (thin + 0.5) / thinRows);
            for (size_t i = 0; i + 1 < found.size(); i += 2)
                row.add(found[i], found[i + 1], 1.0 / thinRows);
        }
        row.forEach([&](int x, double share) { blend(x, y, inkPixel, share); });
    }
}

void Canvas::blend(int x, int y, CBitmap::Pixel inkPixel, double share) {
    if (share > 0) m_bitmap.set(x, y, mixed(m_bitmap.at(x, y), inkPixel, std::min(share, 1.0)));
}

void Canvas::stroke(std::span<const Point> points, double width, CBitmap::Pixel inkPixel,
                    bool isClosed, bool isDashed) {
    if (points.empty()) return;
    if (isDashed) {
        for (const auto& dash : dashes(points, isClosed)) stroke(dash, width, inkPixel);
        return;
    }
    LineCover cover(boundsOf(points), width, m_bitmap.width(), m_bitmap.height());
    for (size_t i = 0; i + 1 < points.size(); ++i) cover.add(points[i], points[i + 1]);
    if (isClosed || points.size() == 1) cover.add(points.back(), points.front());
    cover.forEach([&](int x, int y, double share) { blend(x, y, inkPixel, share); });
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
            canvas.fill(area->contours, inkOf(area->ink));
        else if (const auto* line = std::get_if<Stroke>(&item))
            canvas.stroke(line->points, line->width, inkOf(line->ink), line->isClosed,
                          line->isDashed);
        else if (const auto* label = std::get_if<Label>(&item))
            canvas.text(*label, inkOf(Ink::text));
    }
    return canvas.bitmap();
}

}  // namespace drawing
