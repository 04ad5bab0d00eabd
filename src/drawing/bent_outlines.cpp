// Cold-formed sections: a strip of one thickness bent along a path.
#include <algorithm>
#include <numbers>

#include "drawing/outline_building.h"

namespace drawing::building {

namespace {

using Path = std::vector<Point>;

/// A path along the outer face, walked so that the metal lies on its left.
std::optional<Contour> alongFace(const Path& path, double thickness) {
    return bent(path, {thickness, 0, thickness});
}

std::optional<Contour> alongMiddle(const Path& path, double thickness) {
    return bent(path, {thickness / 2, thickness / 2, thickness});
}

/// A channel whose flanges may end in lips: both flanges, and the web's points between them.
struct Channel {
    double height, width, thickness;
    double upperLip = 0, lowerLip = 0;  // 0: none
    double lipAngle = 90;               // between flange and lip, in degrees
    /// Of the web between its upper and its lower corner, as its left face runs.
    Path web = {};

    Point upperCorner() const { return {width, height}; }
    Point lowerCorner() const { return {width, 0}; }
    Point upperEnd() const { return upperCorner() + Point{leaning(), -upright()} * upperLip; }
    Point lowerEnd() const { return lowerCorner() + Point{leaning(), upright()} * lowerLip; }
    /// Outwards from the lips.
    Point upperNormal() const { return {upright(), leaning()}; }
    Point lowerNormal() const { return {upright(), -leaning()}; }

    std::optional<Contour> contour() const {
        Path path;
        if (upperLip > 0) path.push_back(upperEnd());
        path.insert(path.end(), {upperCorner(), {0, height}});
        path.insert(path.end(), web.begin(), web.end());
        path.insert(path.end(), {{0, 0}, lowerCorner()});
        if (lowerLip > 0) path.push_back(lowerEnd());
        return alongFace(path, thickness);
    }

  private:
    double leaning() const { return -std::cos(lipAngle * std::numbers::pi / 180); }
    double upright() const { return std::sin(lipAngle * std::numbers::pi / 180); }
};

SectionOutline lipped(Values v, int widthAt, int lipAt, int thicknessAt) {
    const double h = v[0], b = v[static_cast<size_t>(widthAt)];
    const double lip = v[static_cast<size_t>(lipAt)], t = v[static_cast<size_t>(thicknessAt)];
    if (2 * t >= std::min(h, b)) return tooLarge(thicknessAt);
    if (2 * lip >= h) return tooLarge(lipAt);
    const Channel channel{h, b, t, lip, lip};
    return outlineOf(
        channel.contour(), thicknessAt,
        {span(0, {0, 0}, {0, h}, left), span(widthAt, {0, 0}, {b, 0}, down),
         span(lipAt, {b, h - lip}, {b, h}, right), across(thicknessAt, {0, h / 2}, {t, h / 2})});
}

/// The dimensions of two lips that lean.
std::vector<Dimension> leaningLips(const Channel& channel, int upperAt, int lowerAt, int angleAt) {
    return {span(upperAt, channel.upperEnd(), channel.upperCorner(), channel.upperNormal()),
            span(lowerAt, channel.lowerCorner(), channel.lowerEnd(), channel.lowerNormal()),
            angle(angleAt, channel.upperCorner(), {0, channel.height}, channel.upperEnd())};
}

}  // namespace

SectionOutline coldAngle(Values v) {
    const double h = v[0], b = v[1], tw = v[2], tf = v[3];
    if (tw >= b) return tooLarge(2);
    if (tf >= h) return tooLarge(3);
    const double inner = std::min({tw, tf, b - tw, h - tf});
    // Legs of two thicknesses go over into each other along an elliptic heel.
    const Point centre{tw + inner, tf + inner};
    using std::numbers::pi;
    Contour contour = arc(centre, centre.x, centre.y, pi, 1.5 * pi);
    contour.insert(contour.end(), {{b, 0}, {b, tf}});
    const auto fillet = arc(centre, inner, inner, 1.5 * pi, pi);
    contour.insert(contour.end(), fillet.begin(), fillet.end());
    contour.insert(contour.end(), {{tw, h}, {0, h}});
    return outlineOf(
        contour, 0,
        {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
         across(2, {0, h * 0.6}, {tw, h * 0.6}), across(3, {b * 0.6, 0}, {b * 0.6, tf})});
}

SectionOutline coldChannel(Values v) {
    const double h = v[0], upper = v[1], lower = v[2], t = v[3];
    if (2 * t >= h || t >= std::min(upper, lower)) return tooLarge(3);
    return outlineOf(alongFace({{upper, h}, {0, h}, {0, 0}, {lower, 0}}, t), 3,
                     {span(0, {0, 0}, {0, h}, left), span(1, {0, h}, {upper, h}, up),
                      span(2, {0, 0}, {lower, 0}, down), across(3, {0, h / 2}, {t, h / 2})});
}

SectionOutline cSection(Values v) {
    return lipped(v, 1, 2, 3);
}

SectionOutline cSleeve(Values v) {
    return lipped(v, 2, 1, 3);
}

SectionOutline cUnequal(Values v) {
    const double h = v[0], b = v[1], t = v[3];
    if (2 * t >= std::min(h, b)) return tooLarge(3);
    const Channel channel{h, b, t, v[2], v[4], v[5]};
    SectionOutline outline =
        outlineOf(channel.contour(), 3,
                  {span(0, {0, 0}, {0, h}, left), span(1, {0, 0}, {b, 0}, down),
                   across(3, {0, h / 2}, {t, h / 2})});
    for (const Dimension& each : leaningLips(channel, 2, 4, 5)) outline.dimensions.push_back(each);
    return outline;
}

SectionOutline zSection(Values v) {
    const double h = v[0], lip1 = v[1], flange1 = v[2], flange2 = v[3], lip2 = v[4], t = v[5];
    if (2 * t >= std::min({h, flange1, flange2}) || (lip1 > 0 && lip1 <= t) ||
        (lip2 > 0 && lip2 <= t))
        return tooLarge(5);
    if (lip1 + t >= h) return tooLarge(1);
    if (lip2 + t >= h) return tooLarge(4);
    // The web's left face lies at x = 0; the upper flange goes to the left, the lower to the right.
    const double half = t / 2;
    const double leftEnd = t - flange1, rightEnd = flange2;
    Path path{{half, h - half}, {half, half}};
    if (lip1 > 0)
        path.insert(path.begin(), {{leftEnd + half, h - lip1}, {leftEnd + half, h - half}});
    else
        path.insert(path.begin(), {leftEnd, h - half});
    if (lip2 > 0)
        path.insert(path.end(), {{rightEnd - half, half}, {rightEnd - half, lip2}});
    else
        path.push_back({rightEnd, half});
    return outlineOf(
        alongMiddle(path, t), 5,
        {span(0, {0, 0}, {leftEnd, h}, left, 1), span(1, {leftEnd, h - lip1}, {leftEnd, h}, left),
         span(2, {leftEnd, h}, {t, h}, up), span(3, {0, 0}, {rightEnd, 0}, down),
         span(4, {rightEnd, 0}, {rightEnd, lip2}, right), across(5, {0, h / 2}, {t, h / 2})});
}

SectionOutline vSection(Values v) {
    const double leg = v[0], t = v[1], degrees = v[2];
    const double half = degrees * std::numbers::pi / 360;
    if (leg <= t / std::tan(half)) return tooLarge(1);
    const Point rightEnd = Point{std::sin(half), std::cos(half)} * leg;
    const Point leftEnd{-rightEnd.x, rightEnd.y};
    const Point apex{0, 0};
    const Point inward = leftOf(unit(rightEnd)) * t;
    const Point middle = rightEnd * 0.62;
    return outlineOf(
        alongFace({leftEnd, apex, rightEnd}, t), 1,
        {span(0, apex, leftEnd, unit(leftOf(leftEnd))), across(1, middle + inward, middle),
         angle(2, {0, t / std::sin(half)}, {rightEnd.x, t / std::sin(half) + rightEnd.y},
               {leftEnd.x, t / std::sin(half) + leftEnd.y})});
}

SectionOutline hat(Values v) {
    const double h = v[0], b = v[1], t = v[2], foot = v[3];
    if (2 * t >= std::min(h, b)) return tooLarge(2);
    const double half = t / 2;
    const Path path{{-foot, half},        {half, half},     {half, h - half},
                    {b - half, h - half}, {b - half, half}, {b + foot, half}};
    return outlineOf(
        alongMiddle(path, t), 2,
        {span(0, {-foot, 0}, {0, h}, left), span(1, {0, h}, {b, h}, up),
         across(2, {0, h * 0.55}, {t, h * 0.55}), span(3, {b, 0}, {b + foot, 0}, down)});
}

SectionOutline crashBarrier(Values v) {
    const double h = v[0], depth = v[1], t = v[2], foot = v[3];
    if (t >= depth) return tooLarge(2);
    // Between the feet seven parts of one height: down a wave, its crest, up again, the valley in
    // the middle, and the second wave.
    const double part = (h - 2 * foot) / 7;
    if (part <= 0) return tooLarge(3);
    const double back = t / 2, front = depth - t / 2;
    Path path{{back, h}};
    double y = h - foot;
    for (const auto& [before, after] :
         {std::pair{back, front}, {front, back}, {back, front}, {front, back}}) {
        path.push_back({before, y});
        path.push_back({after, y - part});
        y -= 2 * part;
    }
    path.push_back({back, 0});
    return outlineOf(alongMiddle(path, t), 2,
                     {span(0, {0, 0}, {0, h}, left, 1), span(1, {0, 0}, {depth, h * 0.2}, down),
                      across(2, {0, h / 2}, {t, h / 2}), span(3, {0, h - foot}, {0, h}, left)});
}

namespace {

/// What the three sigma sections have in common: the middle of the web is set back.
struct SigmaWeb {
    double height, width, thickness, part1, part2, depth;

    explicit SigmaWeb(Values v)
        : height(v[0]), width(v[1]), thickness(v[2]), part1(v[3]), part2(v[4]), depth(v[5]) {}

    std::optional<int> problem() const {
        if (2 * thickness >= std::min(height, width)) return 2;
        if (2 * part1 >= height) return 3;
        if (2 * part1 + part2 > height) return 4;
        if (depth + thickness >= width) return 5;
        return std::nullopt;
    }
    Channel channel(double upperLip, double lowerLip, double lipAngle = 90) const {
        const double low = (height - part2) / 2;  // where the middle begins
        return {height,
                width,
                thickness,
                upperLip,
                lowerLip,
                lipAngle,
                {{0, height - part1}, {depth, height - low}, {depth, low}, {0, part1}}};
    }
    SectionOutline outline(const Channel& from) const {
        const double h = height, low = (height - part2) / 2;
        Dimension depthLine = across(5, {0, h / 2}, {depth, h / 2});
        depthLine.reach = {0, h - part1};
        depthLine.hasReach = true;
        return outlineOf(from.contour(), 2,
                         {span(0, {0, 0}, {0, h}, left, 1), span(1, {0, 0}, {width, 0}, down),
                          across(2, {width * 0.4, 0}, {width * 0.4, thickness}),
                          span(3, {0, h - part1}, {0, h}, left),
                          span(4, {depth, low}, {depth, h - low}, left), depthLine});
    }
};

}  // namespace

SectionOutline sigma(Values v) {
    const SigmaWeb web(v);
    if (const auto problem = web.problem()) return tooLarge(*problem);
    const double h = web.height, b = web.width, lip = v[6];
    if (2 * lip >= h) return tooLarge(6);
    SectionOutline outline = web.outline(web.channel(lip, lip));
    outline.dimensions.push_back(span(6, {b, h - lip}, {b, h}, right));
    return outline;
}

SectionOutline sigmaUnequal(Values v) {
    const SigmaWeb web(v);
    if (const auto problem = web.problem()) return tooLarge(*problem);
    const Channel channel = web.channel(v[6], v[7], v[8]);
    SectionOutline outline = web.outline(channel);
    for (const Dimension& each : leaningLips(channel, 6, 7, 8)) outline.dimensions.push_back(each);
    return outline;
}

SectionOutline sigmaSleeve(Values v) {
    const SigmaWeb web(v);
    if (const auto problem = web.problem()) return tooLarge(*problem);
    return web.outline(web.channel(0, 0));
}

SectionOutline singleCleat(Values v) {
    const double h = v[0], base = v[1], t = v[2], flange = v[3], edge = v[4];
    if (2 * t >= std::min(h, flange) || t >= std::min(base, edge)) return tooLarge(2);
    if (edge + t >= h) return tooLarge(4);
    // The base goes to the left of the web, the flange at its head to the right.
    const double half = t / 2;
    const Path path{{-base + t, half},
                    {half, half},
                    {half, h - half},
                    {flange - half, h - half},
                    {flange - half, h - edge}};
    return outlineOf(alongMiddle(path, t), 2,
                     {span(0, {-base + t, 0}, {0, h}, left), span(1, {-base + t, 0}, {t, 0}, down),
                      across(2, {0, h * 0.45}, {t, h * 0.45}), span(3, {0, h}, {flange, h}, up),
                      span(4, {flange, h - edge}, {flange, h}, right)});
}

SectionOutline doubleCleat(Values v) {
    const double h = v[0], base = v[1], t = v[2], flange1 = v[3], flange2 = v[4], edge = v[5];
    const double degrees = v[6];
    if (2 * t >= std::min({h, base, flange1, flange2}) || t >= edge) return tooLarge(2);
    if (edge + t >= h) return tooLarge(5);
    // The faces on top of the flanges and inside the webs; walked from the left edge to the right
    // one the metal lies on the right. Flanges reach from the inner faces of the webs.
    const Point leftCorner{t - flange1, h}, rightCorner{base - t + flange2, h};
    const auto edgeEnd = [&](Point corner, Point in, double side) {
        const double turn = (180 - degrees) * std::numbers::pi / 180 * side;
        return corner + Point{in.x * std::cos(turn), in.x * std::sin(turn)} * edge;
    };
    const Point leftEnd = edgeEnd(leftCorner, left, 1);
    const Point rightEnd = edgeEnd(rightCorner, right, -1);
    const Path path{leftEnd,       leftCorner,    {t, h},      {t, t},
                    {base - t, t}, {base - t, h}, rightCorner, rightEnd};
    const Point outward = unit(leftOf(rightEnd - rightCorner));
    return outlineOf(
        bent(path, {0, t, t}), 2,
        {span(0, {0, 0}, {leftCorner.x, h}, left), span(1, {0, 0}, {base, 0}, down),
         across(2, {0, h * 0.4}, {t, h * 0.4}), span(3, leftCorner, {t, h}, up),
         span(4, {base - t, h}, rightCorner, up), span(5, rightEnd, rightCorner, outward),
         angle(6, rightCorner, rightEnd, {base - t, h})});
}

}  // namespace drawing::building
