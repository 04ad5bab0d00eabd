// Dimensions on paper: lines, arrow heads and labels that keep clear of each other and of the
// figure.
#pragma once

#include <array>

#include "drawing/section_outline.h"
#include "drawing/sketch.h"

namespace drawing {

/// From millimetres, y up, to pixels, y down.
struct View {
    double scale = 1;
    Point origin;

    Point operator()(Point at) const { return {origin.x + at.x * scale, origin.y - at.y * scale}; }
    Contour operator()(const Contour& contour) const {
        Contour seen;
        for (const Point& point : contour) seen.push_back((*this)(point));
        return seen;
    }
};

class DimensionLines {
  public:
    /// Draws into `sketch`; `edges` are the contours of the figure, in pixels. Both are borrowed.
    DimensionLines(Sketch& sketch, std::span<const Contour> edges, double capHeight);

    struct Wanted {
        Dimension dimension;
        Vor_String label;
    };
    /// All at once: lanes are as wide as their labels.
    void draw(std::span<const Wanted> all, const View& view);

  private:
    /// A straight dimension with its ends on the line, in pixels.
    struct Run {
        Point from, to;
        Point outward;
        bool mayLabelOutward = false;
    };
    void drawSpan(const Wanted& wanted, const View& view);
    void drawRun(const Run& run, const Vor_String& text);
    void drawAcross(const Wanted& wanted, const View& view);
    void drawLeader(const Wanted& wanted, const View& view);
    void drawAngle(const Wanted& wanted, const View& view);

    void line(Point from, Point to);
    void arrow(Point tip, Point direction);
    void label(Point at, const Vor_String& text);
    Box labelBox(Point at, const Vor_String& text) const;
    /// Where a label has its middle when it begins `clear` pixels beyond `end` along `direction`.
    Point beyond(Point end, Point direction, const Vor_String& text, double clear) const;
    bool isFree(const Box& box) const;
    double laneOffset(Point away, int lane) const;

    Sketch& m_sketch;
    std::span<const Contour> m_edges;
    double m_capHeight;
    Box m_box;
    double m_widestLabel = 0;
    int m_highestLane[4] = {-1, -1, -1, -1};
    std::vector<Box> m_labels;
    std::vector<std::array<Point, 2>> m_lines;
};

}  // namespace drawing
