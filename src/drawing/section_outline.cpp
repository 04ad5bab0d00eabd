#include "drawing/section_outline.h"

#include <algorithm>
#include <array>

#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "drawing/outline_building.h"

namespace drawing {

namespace {

using namespace building;

constexpr int mostValues = 9;

struct TypeRow {
    Builder build;
    int count;
    std::array<double, mostValues> textbook;
    std::array<ValueKind, mostValues> kinds{};
};

constexpr ValueKind size = ValueKind::size, edge = ValueKind::edge, radius = ValueKind::radius,
                    diameter = ValueKind::diameter, slope = ValueKind::slope,
                    turn = ValueKind::angle;

constexpr TypeRow types[sectionOutlineTypes] = {
    {iSection, 5, {200, 140, 12, 20, 18}, {size, size, size, size, radius}},
    {coldAngle, 4, {120, 100, 8, 8}},
    {angleSection, 6, {130, 110, 16, 16, 16, 9}, {size, size, size, size, radius, radius}},
    {coldChannel, 4, {140, 80, 105, 8}},
    {tSection, 5, {140, 140, 14, 18, 16}, {size, size, size, size, radius}},
    {taperedI,
     8,
     {200, 150, 13, 18, 16, 8, 14, 37.5},
     {size, size, size, size, radius, radius, slope, edge}},
    {taperedU,
     8,
     {200, 110, 13, 18, 16, 9, 8, 55},
     {size, size, size, size, radius, radius, slope, edge}},
    {flat, 2, {150, 30}},
    {roundBar, 1, {100}, {diameter}},
    {rectangularTube, 4, {140, 110, 10, 20}, {size, size, size, radius}},
    {roundTube, 2, {120, 10}, {diameter, size}},
    {cSection, 4, {160, 90, 30, 6}, {size, size, edge, size}},
    {zSection, 6, {160, 28, 75, 85, 28, 6}, {size, edge, size, size, edge, size}},
    {vSection, 3, {110, 9, 80}, {size, size, turn}},
    {hat, 4, {90, 80, 6, 40}},
    {crashBarrier, 4, {310, 110, 9, 36}},
    {cutT, 5, {140, 140, 14, 18, 16}, {size, size, size, size, radius}},
    {sigma, 7, {220, 100, 6, 50, 70, 26, 30}, {size, size, size, size, size, edge, edge}},
    {sigmaUnequal,
     9,
     {230, 115, 6, 50, 80, 28, 44, 36, 70},
     {size, size, size, size, size, edge, edge, edge, turn}},
    {sigmaSleeve, 6, {220, 100, 6, 50, 70, 26}, {size, size, size, size, size, edge}},
    {cUnequal, 6, {170, 110, 48, 6, 36, 70}, {size, size, edge, size, edge, turn}},
    {cSleeve, 4, {160, 30, 90, 6}, {size, edge, size, size}},
    {singleCleat, 5, {130, 90, 7, 80, 30}},
    {doubleCleat, 7, {120, 90, 7, 65, 80, 32, 110}, {size, size, size, size, size, size, turn}},
};

const TypeRow* find(int type) {
    return type >= 1 && type <= sectionOutlineTypes ? &types[type - 1] : nullptr;
}

OutlineProblem check(const TypeRow& type, Values values) {
    using Kind = OutlineProblem::Kind;
    for (int i = 0; i < type.count; ++i) {
        const auto at = static_cast<size_t>(i);
        if (at >= values.size() || !std::isfinite(values[at])) return {Kind::missing, i};
        const double value = values[at];
        switch (type.kinds[at]) {
            case ValueKind::size:
            case ValueKind::diameter:
                if (value <= 0) return {Kind::notPositive, i};
                break;
            case ValueKind::edge:
            case ValueKind::radius:
            case ValueKind::slope:
                if (value < 0) return {Kind::negative, i};
                break;
            case ValueKind::angle:
                if (value <= 0 || value >= 180) return {Kind::notAnAngle, i};
                break;
        }
    }
    return {};
}

SectionOutline failed(OutlineProblem problem) {
    SectionOutline outline;
    outline.problem = problem;
    return outline;
}

/// Figures are easiest to lay out when the section begins at the origin.
void moveToOrigin(SectionOutline& outline) {
    const Box box = outline.box();
    const Point by{-box.left, -box.bottom};
    const auto move = [by](std::vector<Point>& points) {
        for (Point& point : points) point = point + by;
    };
    move(outline.outer);
    for (Contour& hole : outline.holes) move(hole);
    for (auto& ghost : outline.ghosts) move(ghost);
    for (Dimension& each : outline.dimensions)
        for (Point* point : {&each.from, &each.to, &each.centre, &each.reach}) *point = *point + by;
}

int textOf(OutlineProblem::Kind kind) {
    using Kind = OutlineProblem::Kind;
    switch (kind) {
        case Kind::noType:
            return 25050;
        case Kind::missing:
            return 25051;
        case Kind::notPositive:
            return 25052;
        case Kind::negative:
            return 25053;
        case Kind::notAnAngle:
            return 25054;
        case Kind::tooLarge:
            return 25055;
        case Kind::collision:
        case Kind::none:
            break;
    }
    return 25056;
}

}  // namespace

double SectionOutline::area() const {
    double sum = 0;
    for (const Contour& contour : contours()) sum += signedArea(contour);
    return sum;
}

std::vector<Contour> SectionOutline::contours() const {
    std::vector<Contour> all;
    if (isEmpty()) return all;
    all.push_back(outer);
    all.insert(all.end(), holes.begin(), holes.end());
    return all;
}

int sectionValueCount(int type) {
    const TypeRow* found = find(type);
    return found ? found->count : 0;
}

std::span<const double> textbookValues(int type) {
    const TypeRow* found = find(type);
    if (!found) return {};
    return std::span(found->textbook).first(static_cast<size_t>(found->count));
}

ValueKind sectionValueKind(int type, int value) {
    return value >= 0 && value < sectionValueCount(type)
               ? find(type)->kinds[static_cast<size_t>(value)]
               : ValueKind::size;
}

SectionOutline sectionOutline(int type, std::span<const double> values) {
    using Kind = OutlineProblem::Kind;
    const TypeRow* found = find(type);
    if (!found) return failed({Kind::noType, -1});
    if (const OutlineProblem problem = check(*found, values); problem.kind != Kind::none)
        return failed(problem);
    SectionOutline outline = found->build(values);
    if (outline.problem.kind != Kind::none) return outline;
    if (!isSimple(outline.outer)) return failed({Kind::collision, -1});
    moveToOrigin(outline);
    return outline;
}

Vor_String problemText(const OutlineProblem& problem, const Vor_StringArray& names) {
    if (problem.kind == OutlineProblem::Kind::none) return {};
    Vor_String text = dialString(textOf(problem.kind));
    if (problem.value >= 0 && problem.value < names.length())
        text.replaceSubString("%1", names[problem.value]);
    else
        text.replaceSubString("%1", getAlfabet(problem.value + 1));
    return text;
}

namespace building {

SectionOutline tooLarge(int value) {
    return failed({OutlineProblem::Kind::tooLarge, value});
}

SectionOutline outlineOf(const std::optional<Contour>& contour, int value,
                         std::initializer_list<Dimension> dimensions) {
    if (!contour) return tooLarge(value);
    SectionOutline outline;
    outline.outer = *contour;
    outline.dimensions = dimensions;
    return outline;
}

Dimension span(int value, Point from, Point to, Point away, int lane) {
    return {.kind = Dimension::Kind::span,
            .value = value,
            .from = from,
            .to = to,
            .away = away,
            .lane = lane};
}

Dimension across(int value, Point from, Point to) {
    return {.kind = Dimension::Kind::across, .value = value, .from = from, .to = to};
}

Dimension leader(int value, Point from, Point to) {
    return {.kind = Dimension::Kind::leader, .value = value, .from = from, .to = to};
}

Dimension angle(int value, Point centre, Point from, Point to) {
    return {
        .kind = Dimension::Kind::angle, .value = value, .from = from, .to = to, .centre = centre};
}

}  // namespace building

}  // namespace drawing
