#include "workbench/sections/sketch_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>
#include <cmath>

#include "drawing/dashes.h"
#include "drawing/sketch.h"
#include "drawing/stroke_font.h"

namespace {

using namespace drawing;

/// How much of the text's colour an ink has; the rest is the paper's.
double strength(Ink ink) {
    switch (ink) {
        case Ink::surface:
            return 0.07;
        case Ink::metal:
            return 0.14;
        case Ink::hatch:
            return 0.45;
        case Ink::hidden:
            return 0.55;
        case Ink::dimension:
            return 0.7;
        case Ink::outline:
        case Ink::text:
            break;
    }
    return 1;
}

QColor colour(Ink ink, const QPalette& palette) {
    const QColor paper = palette.color(QPalette::Base), full = palette.color(QPalette::Text);
    const auto mixed = [part = strength(ink)](int of, int with) {
        return static_cast<int>(std::lround(of + (with - of) * part));
    };
    return QColor(mixed(paper.red(), full.red()), mixed(paper.green(), full.green()),
                  mixed(paper.blue(), full.blue()));
}

/// Upright and level lines lie on the pixels of the screen, or they would be grey and twice as
/// wide.
class PixelGrid {
  public:
    explicit PixelGrid(double pixelsPerUnit) : m_scale(pixelsPerUnit) {}

    /// Whole pixels, one at least.
    double width(double wanted) const { return pixels(wanted) / m_scale; }
    std::vector<Point> aligned(std::span<const Point> points, double lineWidth) const {
        std::vector<Point> result(points.begin(), points.end());
        const double shift = std::fmod(pixels(lineWidth), 2) / 2;
        for (size_t i = 0; i + 1 < points.size(); ++i) align(points, i, i + 1, shift, result);
        if (points.size() > 2) align(points, points.size() - 1, 0, shift, result);
        return result;
    }

  private:
    double pixels(double wanted) const { return std::max(1.0, std::round(wanted * m_scale)); }
    double on(double at, double shift) const {
        return (std::round(at * m_scale - shift) + shift) / m_scale;
    }
    void align(std::span<const Point> points, size_t i, size_t j, double shift,
               std::vector<Point>& result) const {
        constexpr double straight = 1e-6;
        const Point a = points[i], b = points[j];
        if (std::abs(a.x - b.x) < straight) result[i].x = result[j].x = on(a.x, shift);
        if (std::abs(a.y - b.y) < straight) result[i].y = result[j].y = on(a.y, shift);
    }

    double m_scale;
};

QPolygonF polygon(std::span<const Point> points) {
    QPolygonF all;
    for (const Point& point : points) all << QPointF(point.x, point.y);
    return all;
}

class Painting {
  public:
    Painting(QPainter& painter, const QPalette& palette)
        : m_painter(painter), m_palette(palette), m_grid(painter.device()->devicePixelRatioF()) {}

    void operator()(const Fill& fill) {
        QPainterPath path;  // even-odd
        for (const Contour& contour : fill.contours) {
            path.addPolygon(polygon(contour));
            path.closeSubpath();
        }
        m_painter.fillPath(path, colour(fill.ink, m_palette));
    }
    void operator()(const Stroke& stroke) {
        usePen(stroke.ink, m_grid.width(stroke.width));
        const std::vector<Point> points = m_grid.aligned(stroke.points, stroke.width);
        if (stroke.isDashed)
            for (const auto& dash : dashes(points, stroke.isClosed))
                m_painter.drawPolyline(polygon(dash));
        else if (stroke.isClosed)
            m_painter.drawPolygon(polygon(points));
        else
            m_painter.drawPolyline(polygon(points));
    }
    void operator()(const Label& label) {
        usePen(Ink::text, strokeWidth(label.capHeight));
        const Box box = boundsOf(label);
        for (const auto& line : textStrokes(label.text.view(), label.capHeight)) {
            QPolygonF placed;
            for (const Point& point : line)
                placed << QPointF(box.left + point.x, box.top - point.y);
            m_painter.drawPolyline(placed);
        }
    }

  private:
    void usePen(Ink ink, double width) {
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(
            QPen(colour(ink, m_palette), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    QPainter& m_painter;
    const QPalette& m_palette;
    PixelGrid m_grid;
};

}  // namespace

void paintSketch(QPainter& painter, const Sketch& sketch, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    Painting painting(painter, palette);
    for (const SketchItem& item : sketch.items) std::visit(painting, item);
    painter.restore();
}
