#include "drawing/dimension_lines.h"

#include <algorithm>
#include <numbers>

#include "drawing/contours.h"

namespace drawing {

namespace {

constexpr double arrowLength = 7, arrowHalfWidth = 2.2;
constexpr double tail = 13;           // of an arrow that points at a face from outside
constexpr double labelClearance = 5;  // between a label that looks for room and all else
constexpr double clearance = 4;       // between a label and what is next to it
constexpr double firstLane = 18;      // between the figure and the nearest dimension line
constexpr double extensionGap = 2;    // between the figure and an extension line
constexpr double extensionOver = 4;   // how far extension lines pass the dimension line
constexpr double lineWidth = 1;

/// A line along the pixels is sharpest in the middle of a row of them.
double toPixelMiddle(double x) {
    return std::floor(x) + 0.5;
}

int sideOf(Point away) {
    if (std::abs(away.x) > 0.999) return away.x < 0 ? 0 : 1;
    if (std::abs(away.y) > 0.999) return away.y < 0 ? 2 : 3;
    return -1;
}

Point turned(Point direction, double angle) {
    const Point turn = towards(angle);
    return {direction.x * turn.x - direction.y * turn.y,
            direction.x * turn.y + direction.y * turn.x};
}

/// Whether a line passes through the box (its middle parts are looked at closely enough for lines
/// of a picture).
bool crosses(const Box& box, Point a, Point b) {
    const Box line = boundsOf(std::array{a, b});
    if (line.right < box.left || box.right < line.left || line.top < box.bottom ||
        box.top < line.bottom)
        return false;
    const auto side = [&](double x, double y) { return cross(b - a, Point{x, y} - a) > 0; };
    const int left = side(box.left, box.bottom) + side(box.right, box.bottom) +
                     side(box.left, box.top) + side(box.right, box.top);
    return left != 0 && left != 4;
}

Box grown(const Box& box, double by) {
    return {box.left - by, box.bottom - by, box.right + by, box.top + by};
}

}  // namespace

DimensionLines::DimensionLines(Sketch& sketch, std::span<const Contour> edges, double capHeight)
    : m_sketch(sketch), m_edges(edges), m_capHeight(capHeight) {
    std::vector<Point> all;
    for (const Contour& contour : edges) all.insert(all.end(), contour.begin(), contour.end());
    m_box = boundsOf(all);
}

void DimensionLines::draw(std::span<const Wanted> all, const View& view) {
    using Kind = Dimension::Kind;
    for (const auto& [dimension, text] : all) {
        const Box box = labelBox({}, text);
        if (dimension.kind != Kind::span) continue;
        m_widestLabel = std::max(m_widestLabel, box.width());
        if (const int side = sideOf(dimension.away); side >= 0)
            m_highestLane[side] = std::max(m_highestLane[side], dimension.lane);
    }
    // What has its fixed place comes first, the others look for room.
    for (const Kind kind : {Kind::span, Kind::angle, Kind::across, Kind::leader})
        for (const Wanted& wanted : all) {
            if (wanted.dimension.kind != kind) continue;
            switch (kind) {
                case Kind::span:
                    drawSpan(wanted, view);
                    break;
                case Kind::angle:
                    drawAngle(wanted, view);
                    break;
                case Kind::across:
                    drawAcross(wanted, view);
                    break;
                case Kind::leader:
                    drawLeader(wanted, view);
                    break;
            }
        }
}

double DimensionLines::laneOffset(Point away, int lane) const {
    const double label = std::abs(away.x) * m_widestLabel + std::abs(away.y) * m_capHeight;
    return firstLane + label / 2 + lane * (label + 2 * clearance);
}

void DimensionLines::drawSpan(const Wanted& wanted, const View& view) {
    const Dimension& dimension = wanted.dimension;
    const Point away{dimension.away.x, -dimension.away.y};
    const Point from = view(dimension.from), to = view(dimension.to);
    const int side = sideOf(dimension.away);
    double edge = std::max(dot(from, away), dot(to, away));
    if (side >= 0)
        for (const Point corner : {Point{m_box.left, m_box.bottom}, {m_box.right, m_box.top}})
            edge = std::max(edge, dot(corner, away));
    const double place = edge + laneOffset(away, dimension.lane);
    const auto onLine = [&](Point point) { return point + away * (place - dot(point, away)); };
    for (const Point& point : {from, to})
        line(point + away * extensionGap, onLine(point) + away * extensionOver);
    drawRun({onLine(from), onLine(to), away, side < 0 || m_highestLane[side] == dimension.lane},
            wanted.label);
}

void DimensionLines::drawRun(const Run& run, const Vor_String& text) {
    const Point along = unit(run.to - run.from);
    const double size = length(run.to - run.from);
    const Box box = labelBox({}, text);
    const double label = std::abs(along.x) * box.width() + std::abs(along.y) * box.height();
    const Point middle = (run.from + run.to) * 0.5;
    const bool arrowsFit = size >= 2 * arrowLength + clearance;
    if (size >= label + 2 * clearance + 2 * arrowLength + 4) {
        line(run.from, middle - along * (label / 2 + clearance));
        line(middle + along * (label / 2 + clearance), run.to);
        this->label(middle, text);
    } else {
        const Point over = along * (arrowsFit ? 0 : tail);
        line(run.from - over, run.to + over);
        if (run.mayLabelOutward)
            this->label(beyond(middle, run.outward, text, clearance + 3), text);
        else
            this->label(beyond(run.to + over, along, text, clearance), text);
    }
    arrow(run.from, along * (arrowsFit ? -1 : 1));
    arrow(run.to, along * (arrowsFit ? 1 : -1));
}

void DimensionLines::drawAcross(const Wanted& wanted, const View& view) {
    Point from = view(wanted.dimension.from), to = view(wanted.dimension.to);
    double over = tail;
    const auto labelAt = [&] {
        return beyond(to + unit(to - from) * over, unit(to - from), wanted.label, clearance);
    };
    const auto fits = [&] {
        return isFree(grown(labelBox(labelAt(), wanted.label), labelClearance));
    };
    for (const double tried : {tail, tail * 1.8, tail * 2.6}) {
        over = tried;
        if (fits()) break;
        std::swap(from, to);
        if (fits()) break;
        std::swap(from, to);
        over = tail;
    }
    const Point along = unit(to - from);
    if (wanted.dimension.hasReach) line(view(wanted.dimension.reach), view(wanted.dimension.from));
    line(from - along * tail, to + along * over);
    arrow(from, along);
    arrow(to, along * -1);
    label(labelAt(), wanted.label);
}

void DimensionLines::drawLeader(const Wanted& wanted, const View& view) {
    const Point tip = view(wanted.dimension.to);
    const Point wish = unit(view(wanted.dimension.from) - tip);
    constexpr double near = 18, degree = std::numbers::pi / 180;
    Point end = tip + wish * near;
    Point at = beyond(end, wish, wanted.label, clearance);
    const auto search = [&] {
        for (const double reach : {near, near * 1.6, near * 2.3})
            for (const double angle : {0, 20, -20, 40, -40, 65, -65}) {
                const Point direction = turned(wish, angle * degree);
                const Point tried =
                    beyond(tip + direction * reach, direction, wanted.label, clearance);
                if (!isFree(grown(labelBox(tried, wanted.label), labelClearance))) continue;
                end = tip + direction * reach;
                at = tried;
                return;
            }
    };
    search();
    line(tip, end);
    arrow(tip, unit(tip - end));
    label(at, wanted.label);
}

void DimensionLines::drawAngle(const Wanted& wanted, const View& view) {
    const Point centre = view(wanted.dimension.centre);
    const Point from = view(wanted.dimension.from) - centre,
                to = view(wanted.dimension.to) - centre;
    const double radius = std::min({30.0, length(from) * 0.85, length(to) * 0.85});
    const double start = std::atan2(from.y, from.x);
    const double sweep = std::atan2(cross(from, to), dot(from, to));
    const auto points = arc(centre, radius, radius, start, start + sweep);
    m_sketch.add(Stroke{.points = points, .ink = Ink::dimension, .width = lineWidth});
    for (size_t i = 1; i < points.size(); ++i) m_lines.push_back({points[i - 1], points[i]});
    // An arrow head is a chord of the arc.
    const double lead = sweep > 0 ? arrowLength / radius : -arrowLength / radius;
    arrow(points.front(), points.front() - (centre + towards(start + lead) * radius));
    arrow(points.back(), points.back() - (centre + towards(start + sweep - lead) * radius));
    const Point middle = towards(start + sweep / 2);
    label(beyond(centre + middle * radius, middle, wanted.label, clearance), wanted.label);
}

void DimensionLines::line(Point from, Point to) {
    if (std::abs(from.x - to.x) < 1e-6) from.x = to.x = toPixelMiddle(from.x);
    if (std::abs(from.y - to.y) < 1e-6) from.y = to.y = toPixelMiddle(from.y);
    m_sketch.add(Stroke{.points = {from, to}, .ink = Ink::dimension, .width = lineWidth});
    m_lines.push_back({from, to});
}

void DimensionLines::arrow(Point tip, Point direction) {
    direction = unit(direction);
    if (std::abs(direction.x) < 1e-6) tip.x = toPixelMiddle(tip.x);
    if (std::abs(direction.y) < 1e-6) tip.y = toPixelMiddle(tip.y);
    const Point base = tip - direction * arrowLength;
    const Point across = leftOf(direction) * arrowHalfWidth;
    m_sketch.add(Fill{.contours = {{tip, base + across, base - across}}, .ink = Ink::dimension});
}

void DimensionLines::label(Point at, const Vor_String& text) {
    m_sketch.add(Label{.at = at, .text = text, .capHeight = m_capHeight});
    m_labels.push_back(labelBox(at, text));
}

Box DimensionLines::labelBox(Point at, const Vor_String& text) const {
    return boundsOf(Label{.at = at, .text = text, .capHeight = m_capHeight});
}

Point DimensionLines::beyond(Point end, Point direction, const Vor_String& text,
                             double clear) const {
    const Box box = labelBox({}, text);
    // Half the label as seen along the direction, whichever of its sides is met first.
    const double toSide = box.width() / 2 / std::max(std::abs(direction.x), 1e-9);
    const double toTop = box.height() / 2 / std::max(std::abs(direction.y), 1e-9);
    return end + direction * (clear + std::min(toSide, toTop));
}

bool DimensionLines::isFree(const Box& box) const {
    for (const Box& other : m_labels)
        if (box.overlaps(other)) return false;
    for (const auto& [from, to] : m_lines)
        if (crosses(box, from, to)) return false;
    for (const Contour& contour : m_edges)
        for (size_t i = 0; i < contour.size(); ++i)
            if (crosses(box, contour[i], contour[(i + 1) % contour.size()])) return false;
    return true;
}

}  // namespace drawing
