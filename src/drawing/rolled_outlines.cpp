// Sections out of polygons with rounded corners: rolled ones, bars and tubes.
#include <algorithm>
#include <numbers>

#include "drawing/outline_building.h"

namespace drawing::building {

namespace {

constexpr double quarter = std::numbers::pi / 4;

/// The middle of the fillet in the corner `at`, whose centre lies on the side of `open`.
Point onFillet(Point at, Point open, double radius) {
    const Point centre = at + open * radius;
    return centre - unit(open) * radius;
}

/// The end of an angle's leg that stands up along the y axis: from its inner face over the toe to
/// its outer face at x = 0. EN 10056-1 gives thin legs toes of more than their thickness (3.5 mm at
/// 3 mm): such an arc ends in the edge where it meets the outer face.
struct LegEnd {
    LegEnd(double length, double thickness, double toe) {
        const double turn = toe > thickness ? std::acos(1 - thickness / toe) : 2 * quarter;
        reach = toe * std::sin(turn);
        const Point centre{thickness - toe, length - reach};
        points = arc(centre, toe, toe, 0, turn);
        if (toe < thickness) points.push_back({0, length});
        onToe = centre + towards(turn / 2) * toe;
    }
    double reach;  ///< of the arc along the leg
    std::vector<Point> points;
    Point onToe;
};

/// A tapered flange, as both the I and the U have them: from its edge at x = `edge` to the web's
/// face at x = `web`, below the top face at y = `top`.
struct TaperedFlange {
    double edge, web, top, thickness, slope, place;

    double thicknessAt(double x) const {
        const double fromEdge = std::abs(x - edge);
        return thickness + (fromEdge - place) * slope;
    }
    Point atEdge() const { return {edge, top - thicknessAt(edge)}; }
    Point atWeb() const { return {web, top - thicknessAt(web)}; }
};

/// The value that keeps a tapered section from being one; nothing when it can be.
std::optional<int> taperProblem(Values v, double flangeWidth) {
    const double height = v[0], flange = v[3], slope = v[6] / 100, place = v[7];
    if (flangeWidth <= 0) return 2;
    if (2 * flange >= height) return 3;
    if (place > flangeWidth) return 7;
    if (flange - place * slope <= 0 || 2 * (flange + (flangeWidth - place) * slope) >= height)
        return 6;
    return std::nullopt;
}

}  // namespace

SectionOutline iSection(Values v) {
    const double h = v[0], b = v[1], tw = v[2], tf = v[3], r = v[4];
    if (tw >= b) return tooLarge(2);
    if (2 * tf >= h) return tooLarge(3);
    const double web = (b - tw) / 2;  // where the web begins
    const Corner corners[] = {
        {{0, 0}},       {{b, 0}}, {{b, tf}}, {{b - web, tf}, r}, {{b - web, h - tf}, r},
        {{b, h - tf}},  {{b, h}}, {{0, h}},  {{0, h - tf}},      {{web, h - tf}, r},
        {{web, tf}, r}, {{0, tf}}};
    return outlineOf(
        rounded(corners), 4,
        {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
         across(2, {web, h * 0.55}, {b - web, h * 0.55}), span(3, {b, h - tf}, {b, h}, right),
         leader(4, {b, h / 2}, onFillet({b - web, tf}, {1, 1}, r))});
}

SectionOutline angleSection(Values v) {
    const double h = v[0], b = v[1], tw = v[2], tf = v[3], root = v[4], toe = v[5];
    if (tw >= b) return tooLarge(2);
    if (tf >= h) return tooLarge(3);
    if (toe > std::max(root, std::min(tw, tf))) return tooLarge(5);
    const LegEnd standing(h, tw, toe), lying(b, tf, toe);
    if (standing.reach > h - tf || lying.reach > b - tw) return tooLarge(5);
    std::vector<Corner> corners{{{0, 0}}};
    for (auto point = lying.points.rbegin(); point != lying.points.rend(); ++point)
        corners.push_back({{point->y, point->x}});
    corners.push_back({{tw, tf}, root});
    for (const Point& point : standing.points) corners.push_back({point});
    return outlineOf(
        rounded(corners), 4,
        {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
         across(2, {0, h * 0.62}, {tw, h * 0.62}), across(3, {b * 0.68, 0}, {b * 0.68, tf}),
         leader(4, {b, h}, onFillet({tw, tf}, {1, 1}, root)),
         leader(5, {b, h * 1.5}, standing.onToe)});
}

SectionOutline tSection(Values v) {
    const double h = v[0], b = v[1], tw = v[2], tf = v[3], r = v[4];
    if (tw >= b) return tooLarge(2);
    if (tf >= h) return tooLarge(3);
    const double web = (b - tw) / 2;
    const Corner corners[] = {{{web, 0}},    {{b - web, 0}},    {{b - web, h - tf}, r},
                              {{b, h - tf}}, {{b, h}},          {{0, h}},
                              {{0, h - tf}}, {{web, h - tf}, r}};
    return outlineOf(
        rounded(corners), 4,
        {span(0, {web, 0}, {0, h}, left), span(1, {0, h}, {b, h}, up),
         across(2, {web, h * 0.25}, {b - web, h * 0.25}), span(3, {b, h - tf}, {b, h}, right),
         leader(4, {b, h * 0.3}, onFillet({b - web, h - tf}, {1, -1}, r))});
}

SectionOutline cutT(Values v) {
    SectionOutline outline = tSection(v);
    if (outline.isEmpty()) return outline;
    const double web = (v[1] - v[2]) / 2;
    const double rest = v[0] * 0.16;  // of the web that was cut off
    outline.ghosts = {{{web, 0}, {web, -rest}}, {{v[1] - web, 0}, {v[1] - web, -rest}}};
    return outline;
}

SectionOutline taperedI(Values v) {
    const double h = v[0], b = v[1], tw = v[2], tf = v[3], root = v[4], toe = v[5];
    const double web = (b - tw) / 2;
    if (const auto problem = taperProblem(v, web)) return tooLarge(*problem);
    const TaperedFlange flange{0, web, h, tf, v[6] / 100, v[7]};
    // One quarter, mirrored to the other three.
    const Corner edge{flange.atEdge(), toe};
    const Corner inside{flange.atWeb(), root};
    const auto acrossX = [b](Corner c) { return Corner{{b - c.at.x, c.at.y}, c.radius}; };
    const auto acrossY = [h](Corner c) { return Corner{{c.at.x, h - c.at.y}, c.radius}; };
    const Corner corners[] = {{{0, 0}},
                              {{b, 0}},
                              acrossX(acrossY(edge)),
                              acrossX(acrossY(inside)),
                              acrossX(inside),
                              acrossX(edge),
                              {{b, h}},
                              {{0, h}},
                              edge,
                              inside,
                              acrossY(inside),
                              acrossY(edge)};
    const double x = b - v[7];
    const double sloped = b * 0.22;
    return outlineOf(
        rounded(corners), toe > flange.thicknessAt(0) ? 5 : 4,
        {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
         across(2, {web, h * 0.5}, {b - web, h * 0.5}), across(3, {x, h}, {x, h - tf}),
         leader(4, {web - h, h / 2}, onFillet({web, flange.atWeb().y}, {-1, -1}, root)),
         leader(5, {b + h, h * 0.35}, onFillet(acrossX(acrossY(edge)).at, {-1, -1}, toe)),
         leader(6, {sloped, h / 2}, {sloped, flange.thicknessAt(sloped)}),
         span(7, {x, h}, {b, h}, up)});
}

SectionOutline taperedU(Values v) {
    const double h = v[0], b = v[1], tw = v[2], tf = v[3], root = v[4], toe = v[5];
    if (const auto problem = taperProblem(v, b - tw)) return tooLarge(*problem);
    const TaperedFlange flange{b, tw, h, tf, v[6] / 100, v[7]};
    const Corner edge{flange.atEdge(), toe};
    const Corner inside{flange.atWeb(), root};
    const auto below = [h](Corner c) { return Corner{{c.at.x, h - c.at.y}, c.radius}; };
    const Corner corners[] = {{{0, 0}}, {{b, 0}}, below(edge), below(inside),
                              inside,   edge,     {{b, h}},    {{0, h}}};
    const double x = b - v[7];
    const double sloped = b * 0.55;
    return outlineOf(rounded(corners), toe > flange.thicknessAt(b) ? 5 : 4,
                     {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
                      across(2, {0, h * 0.5}, {tw, h * 0.5}), across(3, {x, h}, {x, h - tf}),
                      leader(4, {tw + h, h * 0.2}, onFillet({tw, flange.atWeb().y}, {1, -1}, root)),
                      leader(5, {b + h, h * 0.35}, onFillet(below(edge).at, {-1, -1}, toe)),
                      leader(6, {sloped, h / 2}, {sloped, flange.thicknessAt(sloped)}),
                      span(7, {x, h}, {b, h}, up)});
}

SectionOutline flat(Values v) {
    const double b = v[0], t = v[1];
    const Corner corners[] = {{{0, 0}}, {{b, 0}}, {{b, t}}, {{0, t}}};
    return outlineOf(rounded(corners), 0,
                     {span(0, {0, 0}, {b, 0}, down), span(1, {b, 0}, {b, t}, right)});
}

SectionOutline roundBar(Values v) {
    const double r = v[0] / 2;
    return outlineOf(circle({r, r}, r), 0, {span(0, {0, r}, {2 * r, r}, down)});
}

SectionOutline rectangularTube(Values v) {
    const double h = v[0], b = v[1], t = v[2], r = v[3];
    if (2 * t >= std::min(h, b)) return tooLarge(2);
    const Corner outer[] = {{{0, 0}, r}, {{b, 0}, r}, {{b, h}, r}, {{0, h}, r}};
    const double ri = innerTubeRadius(r, t);
    const Corner inner[] = {{{t, t}, ri}, {{b - t, t}, ri}, {{b - t, h - t}, ri}, {{t, h - t}, ri}};
    const Point centre{b - r, h - r};
    SectionOutline outline =
        outlineOf(rounded(outer), 3,
                  {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
                   across(2, {b, h * 0.42}, {b - t, h * 0.42}),
                   leader(3, {b * 2, h + b}, centre + towards(quarter) * r)});
    const auto hole = rounded(inner);
    if (outline.isEmpty() || !hole) return tooLarge(3);
    outline.holes.emplace_back(hole->rbegin(), hole->rend());
    return outline;
}

SectionOutline roundTube(Values v) {
    const double r = v[0] / 2, t = v[1];
    if (t >= r) return tooLarge(1);
    SectionOutline outline =
        outlineOf(circle({r, r}, r), 0,
                  {span(0, {0, r}, {2 * r, r}, down), across(1, {2 * r, r}, {2 * r - t, r})});
    const Contour hole = circle({r, r}, r - t);
    outline.holes.emplace_back(hole.rbegin(), hole.rend());
    return outline;
}

}  // namespace drawing::building

double drawing::innerTubeRadius(double outer, double thickness) {
    return std::max(outer - thickness, std::min(thickness, outer * 2 / 3));
}
