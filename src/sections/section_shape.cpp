#include "sections/section_shape.h"

#include <numbers>
#include <optional>

#include "drawing/contours.h"
#include "drawing/section_outline.h"

namespace {

using drawing::Contour, drawing::Corner;
using Values = std::span<const double>;

constexpr double fineStep = std::numbers::pi / 720;

/// Of a tapered flange, `width` beside the web, as both the I and the channel have it.
struct Flange {
    Flange(Values v, double width)
        : atEdge(v[3] - v[6] / 100 * v[7]), atWeb(v[3] + v[6] / 100 * (width - v[7])) {}
    double atEdge;
    double atWeb;
};

std::vector<Corner> taperedI(Values v) {
    const double h = v[0], b = v[1], root = v[4], toe = v[5], side = (b - v[2]) / 2;
    const auto [e, w] = Flange(v, side);
    return {{{0, 0}},
            {{b, 0}},
            {{b, e}, toe},
            {{b - side, w}, root},
            {{b - side, h - w}, root},
            {{b, h - e}, toe},
            {{b, h}},
            {{0, h}},
            {{0, h - e}, toe},
            {{side, h - w}, root},
            {{side, w}, root},
            {{0, e}, toe}};
}

std::vector<Corner> iSection(Values v) {
    const double tapered[] = {v[0], v[1], v[2], v[3], v[4], 0, 0, 0};
    return taperedI(tapered);
}

std::vector<Corner> channel(Values v) {
    const double h = v[0], b = v[1], web = v[2], root = v[4], toe = v[5];
    const auto [e, w] = Flange(v, b - web);
    return {{{0, 0}},          {{b, 0}}, {{b, e}, toe}, {{web, w}, root}, {{web, h - w}, root},
            {{b, h - e}, toe}, {{b, h}}, {{0, h}}};
}

std::vector<Corner> angle(Values v) {
    const double h = v[0], b = v[1], standing = v[2], lying = v[3], root = v[4], toe = v[5];
    return {{{0, 0}}, {{b, 0}}, {{b, lying}, toe}, {{standing, lying}, root}, {{standing, h}, toe},
            {{0, h}}};
}

std::vector<Corner> tSection(Values v) {
    const double h = v[0], b = v[1], under = v[0] - v[3], side = (b - v[2]) / 2, root = v[4];
    return {{{side, 0}}, {{b - side, 0}}, {{b - side, under}, root}, {{b, under}}, {{b, h}},
            {{0, h}},    {{0, under}},    {{side, under}, root}};
}

std::vector<Corner> box(double left, double bottom, double right, double top, double radius = 0) {
    return {{{left, bottom}, radius},
            {{right, bottom}, radius},
            {{right, top}, radius},
            {{left, top}, radius}};
}

/// The corners of the outer face, then those of the hole.
using Faces = std::vector<std::vector<Corner>>;

Faces rectangularTube(Values v) {
    const double h = v[0], b = v[1], t = v[2], radius = v[3];
    return {box(0, 0, b, h, radius), box(t, t, b - t, h - t, drawing::innerTubeRadius(radius, t))};
}

Faces roundTube(Values v) {
    const double d = v[0], t = v[1];
    return {box(0, 0, d, d, d / 2), box(t, t, d - t, d - t, d / 2 - t)};
}

/// None for cold-formed sections.
Faces facesOf(int type, Values v) {
    switch (type) {
        case 1:
            return {iSection(v)};
        case 3:
            return {angle(v)};
        case 5:
        case 17:
            return {tSection(v)};
        case 6:
            return {taperedI(v)};
        case 7:
            return {channel(v)};
        case 8:
            return {box(0, 0, v[0], v[1])};
        case 9:
            return {box(0, 0, v[0], v[0], v[0] / 2)};
        case 10:
            return rectangularTube(v);
        case 11:
            return roundTube(v);
        default:
            return {};
    }
}

}  // namespace

std::vector<Contour> sectionShape(int type, std::span<const double> values) {
    const drawing::SectionOutline drawn = drawing::sectionOutline(type, values);
    if (drawn.isEmpty()) return {};
    std::vector<Contour> contours;
    for (const std::vector<Corner>& face : facesOf(type, values)) {
        auto contour = drawing::rounded(face, fineStep);
        if (!contour) return drawn.contours();  // toes thicker than their legs end in a face
        if (!contours.empty()) *contour = Contour(contour->rbegin(), contour->rend());
        contours.push_back(std::move(*contour));
    }
    return contours.empty() ? drawn.contours() : contours;
}
