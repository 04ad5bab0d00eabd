#include "drawing/part_picture.h"

#include <algorithm>

#include "drawing/canvas.h"
#include "drawing/contours.h"

namespace drawing {

namespace {

constexpr Point left{-1, 0}, right{1, 0}, up{0, 1}, down{0, -1};

bool isSize(double value) {
    return std::isfinite(value) && value > 0;
}

Vor_String measure(double value) {
    return {value, 1};
}

Contour rectangle(double x0, double y0, double x1, double y1) {
    return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

/// A length that is too long for its height loses its middle.
class DrawnLength {
  public:
    DrawnLength(double real, double longest) : m_real(real), m_drawn(std::min(real, longest)) {}
    double drawn() const { return m_drawn; }
    bool isBroken() const { return m_drawn < m_real; }
    double breakGap() const { return m_drawn * 0.03; }
    /// Where something between both ends is drawn; nothing in the part that is left out.
    std::optional<double> place(double x, double radius) const {
        if (!isBroken()) return x;
        const double shown = (m_drawn - breakGap()) / 2 - radius - m_drawn * 0.02;
        if (x <= shown) return x;
        if (x >= m_real - shown) return x - m_real + m_drawn;
        return std::nullopt;
    }

  private:
    double m_real;
    double m_drawn;
};

/// The side of something long: one rectangle, or two with zigzag lines at the break. It begins at
/// `x` and stands on y = 0.
std::vector<Contour> sides(const DrawnLength& size, double x, double height) {
    const double end = x + size.drawn();
    if (!size.isBroken()) return {rectangle(x, 0, end, height)};
    const double middle = x + size.drawn() / 2, gap = size.breakGap() / 2;
    const double swing = size.drawn() * 0.012;
    const auto zigzag = [&](double at) {
        return std::vector<Point>{{at, 0},
                                  {at, height * 0.42},
                                  {at + swing, height * 0.46},
                                  {at - swing, height * 0.54},
                                  {at, height * 0.58},
                                  {at, height}};
    };
    Contour first = zigzag(middle - gap), second = zigzag(middle + gap);
    first.insert(first.end(), {{x, height}, {x, 0}});
    second.insert(second.end(), {{end, height}, {end, 0}});
    return {first, second};
}

Dimension spanOf(int value, Point from, Point to, Point away) {
    return {.value = value, .from = from, .to = to, .away = away};
}

Figure plateFigure(const DrawnPart& part) {
    if (!isSize(part.length) || !isSize(part.width) || !isSize(part.thickness)) return {};
    constexpr double longest = 4;  // times as long as wide
    const DrawnLength size(part.length, part.width * longest);
    const double l = size.drawn(), w = part.width, t = part.thickness;
    std::vector<Contour> face = sides(size, 0, w);
    for (const auto& [at, diameter] : part.holes) {
        const double r = diameter / 2;
        const auto x = size.place(at.x, r);
        if (x && isSize(r) && at.x > r && at.x < part.length - r && at.y > r && at.y < w - r)
            face.push_back(circle({*x, at.y}, r));
    }
    Figure figure;
    figure.areas.push_back({face, false});
    const double edge = l + std::max(l, w) * 0.15;
    figure.areas.push_back({{rectangle(edge, 0, edge + t, w)}, true});
    figure.dimensions = {spanOf(0, {0, 0}, {l, 0}, down), spanOf(1, {0, 0}, {0, w}, left),
                         spanOf(2, {edge, w}, {edge + t, w}, up)};
    figure.labels = {measure(part.length), measure(w), measure(t)};
    return figure;
}

/// How far the section reaches to the right at a height; its left end where it has nothing.
double reachAt(const SectionOutline& outline, double y) {
    double reach = 0;
    for (size_t i = 0; i < outline.outer.size(); ++i) {
        const Point a = outline.outer[i], b = outline.outer[(i + 1) % outline.outer.size()];
        if ((a.y <= y) != (b.y <= y))
            reach = std::max(reach, a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
    }
    return reach;
}

/// The heights of the edges that are seen from the right: where the section jumps back.
std::vector<double> seenEdges(const SectionOutline& outline) {
    constexpr int levels = 400;
    const Box box = outline.box();
    std::vector<double> edges;
    double before = 0;
    for (int i = 0; i < levels; ++i) {
        const double y = box.height() * (i + 0.5) / levels;
        const double reach = reachAt(outline, y);
        const bool jumps = std::abs(reach - before) > box.width() * 0.1;
        const bool isNew = edges.empty() || y - edges.back() > 2 * box.height() / levels;
        if (i > 0 && jumps && isNew) edges.push_back(y);
        before = reach;
    }
    return edges;
}

void addSeenEdges(Figure& figure, const SectionOutline& outline, const DrawnLength& size,
                  double begin) {
    const double end = begin + size.drawn();
    const double middle = begin + size.drawn() / 2, gap = size.breakGap() / 2;
    for (const double y : seenEdges(outline)) {
        if (!size.isBroken()) {
            figure.lines.push_back({{{begin, y}, {end, y}}});
            continue;
        }
        figure.lines.push_back({{{begin, y}, {middle - gap, y}}});
        figure.lines.push_back({{{middle + gap, y}, {end, y}}});
    }
}

Figure profileFigure(const DrawnPart& part) {
    const SectionOutline outline = sectionOutline(part.sectionType, part.sectionValues);
    if (outline.isEmpty() || !isSize(part.length)) return {};
    const Box box = outline.box();
    const double larger = std::max(box.width(), box.height());
    const DrawnLength size(part.length, larger * 2.2);
    const double begin = box.width() + larger * 0.5;
    const double end = begin + size.drawn();
    Figure figure;
    figure.areas.push_back({outline.contours(), true});
    figure.areas.push_back({sides(size, begin, box.height()), false});
    addSeenEdges(figure, outline, size, begin);
    const bool isRound = sectionValueKind(part.sectionType, 0) == ValueKind::diameter;
    figure.dimensions = {spanOf(0, {0, 0}, {0, box.height()}, left),
                         spanOf(1, {0, 0}, {box.width(), 0}, down),
                         spanOf(2, {begin, 0}, {end, 0}, down)};
    const Vor_String height = measure(box.height());
    figure.labels = {isRound ? "\xD8" + height : height,
                     isRound ? Vor_String() : measure(box.width()), measure(part.length)};
    return figure;
}

/// The proportions of ISO 4014: head 0.65 d high and 1.5 d over its flats, thread 2 d + 6 long, of
/// short bolts up to the head.
Figure boltFigure(const DrawnPart& part) {
    if (!isSize(part.length) || !isSize(part.diameter)) return {};
    const double d = part.diameter, length = part.length, half = d / 2;
    const double head = 0.65 * d, corners = 1.5 * d * 2 / std::sqrt(3.0) / 2;
    const DrawnLength size(length, 9 * d);
    const double end = size.drawn(), chamfer = std::min(0.08 * d, end / 4);
    Figure figure;
    const auto moved = [half](Contour contour) {
        for (Point& point : contour) point.y -= half;
        return contour;
    };
    for (const Contour& side : sides(size, 0, d)) figure.areas.push_back({{moved(side)}, false});
    const double bevel = head * 0.25;
    figure.areas.push_back({{{{-head + bevel, -corners},
                              {0, -corners},
                              {0, corners},
                              {-head + bevel, corners},
                              {-head, corners * 0.75},
                              {-head, -corners * 0.75}}},
                            false});
    for (const double y : {-corners / 2, corners / 2})
        figure.lines.push_back({{{-head, y}, {0, y}}});
    figure.lines.push_back({{{end - chamfer, -half}, {end - chamfer, half}}});
    const double thread = std::min(2 * d + 6, std::min(length, end * 0.45));
    figure.lines.push_back({{{end - thread, -half}, {end - thread, half}}});
    for (const double y : {-0.42 * d, 0.42 * d})
        figure.lines.push_back({{{end - thread, y}, {end, y}}, true});
    figure.dimensions = {spanOf(0, {0, -half}, {end, -half}, down),
                         spanOf(1, {end, -half}, {end, half}, right)};
    figure.labels = {measure(length), "M" + measure(d)};
    return figure;
}

}  // namespace

Figure partFigure(const DrawnPart& part) {
    switch (part.kind) {
        case DrawnPart::Kind::plate:
            return plateFigure(part);
        case DrawnPart::Kind::profile:
            return profileFigure(part);
        case DrawnPart::Kind::bolt:
            return boltFigure(part);
    }
    return {};
}

CBitmap partPicture(const DrawnPart& part, int width, int height) {
    const Figure figure = partFigure(part);
    if (figure.areas.empty()) return {};
    FigurePaper paper;
    paper.width = width;
    paper.height = height;
    paper.capHeight = 9;
    return painted(laidOut(figure, paper));
}

}  // namespace drawing
