#include "drawing/figure.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "drawing/dimension_lines.h"

namespace drawing {

namespace {

std::vector<Contour> allContours(const Figure& figure) {
    std::vector<Contour> all;
    for (const FigureArea& area : figure.areas)
        all.insert(all.end(), area.contours.begin(), area.contours.end());
    return all;
}

void addAreas(Sketch& sketch, const Figure& figure, const View& view, const FigurePaper& paper) {
    for (const FigureArea& area : figure.areas) {
        Fill fill{.contours = {}, .ink = area.isCut ? Ink::metal : Ink::surface};
        for (const Contour& contour : area.contours) fill.contours.push_back(view(contour));
        sketch.add(fill);
        if (area.isCut && paper.hatchSpacing > 0)
            for (Stroke& stroke : hatch(fill.contours, paper.hatchSpacing, 0.8))
                sketch.add(std::move(stroke));
        for (const Contour& contour : fill.contours)
            sketch.add(Stroke{.points = contour,
                              .ink = Ink::outline,
                              .width = paper.lineWidth,
                              .isClosed = true});
    }
    if (paper.capHeight <= 0) return;
    for (const FigureLine& line : figure.lines)
        sketch.add(Stroke{.points = view(line.points),
                          .ink = line.isHidden ? Ink::hidden : Ink::outline,
                          .width = line.isHidden ? 1 : paper.lineWidth,
                          .isDashed = line.isHidden});
}

void addDimensions(Sketch& sketch, const Figure& figure, const View& view,
                   const FigurePaper& paper) {
    if (paper.capHeight <= 0) return;
    std::vector<DimensionLines::Wanted> wanted;
    for (const Dimension& each : figure.dimensions) {
        const auto value = static_cast<size_t>(each.value);
        if (value < figure.labels.size() && !figure.labels[value].isEmpty())
            wanted.push_back({each, figure.labels[value]});
    }
    std::vector<Contour> edges;
    for (const Contour& contour : allContours(figure)) edges.push_back(view(contour));
    DimensionLines(sketch, edges, paper.capHeight).draw(wanted, view);
}

Sketch drawn(const Figure& figure, const View& view, const FigurePaper& paper) {
    Sketch sketch{.width = paper.width, .height = paper.height, .items = {}};
    addAreas(sketch, figure, view, paper);
    addDimensions(sketch, figure, view, paper);
    return sketch;
}

/// What is drawn, with the width of lines.
Box inkOf(const Sketch& sketch) {
    std::vector<Point> all;
    const auto add = [&all](const Box& box, double by) {
        all.push_back({box.left - by, box.bottom - by});
        all.push_back({box.right + by, box.top + by});
    };
    for (const SketchItem& item : sketch.items) {
        if (const auto* fill = std::get_if<Fill>(&item))
            for (const Contour& contour : fill->contours) add(boundsOf(contour), 0);
        if (const auto* stroke = std::get_if<Stroke>(&item))
            add(boundsOf(stroke->points), stroke->width / 2);
        if (const auto* label = std::get_if<Label>(&item)) add(boundsOf(*label), 1);
    }
    return boundsOf(all);
}

/// The metal as large as it gets between the margins that its dimensions need.
struct Margins {
    double left = 0, right = 0, top = 0, bottom = 0;
};

View viewOf(const Box& metal, const Margins& margins, const FigurePaper& paper) {
    const double wide = std::max(8.0, paper.width - margins.left - margins.right);
    const double high = std::max(8.0, paper.height - margins.top - margins.bottom);
    const double scale =
        std::min(wide / std::max(metal.width(), 1e-9), high / std::max(metal.height(), 1e-9));
    const Point middle{margins.left + wide / 2, margins.top + high / 2};
    return {scale, {middle.x - metal.centre().x * scale, middle.y + metal.centre().y * scale}};
}

}  // namespace

Figure figureOf(const SectionOutline& outline, std::vector<Vor_String> labels) {
    Figure figure;
    if (outline.isEmpty()) return figure;
    figure.areas.push_back({outline.contours(), true});
    for (const auto& ghost : outline.ghosts) figure.lines.push_back({ghost, true});
    figure.dimensions = outline.dimensions;
    figure.labels = std::move(labels);
    return figure;
}

Sketch laidOut(const Figure& figure, const FigurePaper& paper) {
    std::vector<Point> all;
    for (const Contour& contour : allContours(figure))
        all.insert(all.end(), contour.begin(), contour.end());
    if (all.empty()) return {.width = paper.width, .height = paper.height, .items = {}};
    const Box metal = boundsOf(all);
    // How much room dimensions need is known once they are drawn; they hardly change with scale.
    const double border = std::min(6.0, paper.width * 0.04);
    Margins margins;
    for (int round = 0; round < 4; ++round) {
        const View view = viewOf(metal, margins, paper);
        const Box ink = inkOf(drawn(figure, view, paper));
        const Point low = view({metal.left, metal.bottom}), high = view({metal.right, metal.top});
        margins = {low.x - ink.left + border, ink.right - high.x + border,
                   high.y - ink.bottom + border, ink.top - low.y + border};
    }
    return drawn(figure, viewOf(metal, margins, paper), paper);
}

std::vector<Vor_String> numberLabels(int type, std::span<const double> values) {
    std::vector<Vor_String> labels;
    for (int i = 0; i < sectionValueCount(type) && i < static_cast<int>(values.size()); ++i) {
        const double value = values[static_cast<size_t>(i)];
        const Vor_String number(value, 2);
        switch (sectionValueKind(type, i)) {
            case ValueKind::radius:
                labels.push_back("R" + number);
                break;
            case ValueKind::diameter:
                labels.push_back("\xD8" + number);
                break;
            case ValueKind::slope:
                labels.push_back(number + " %");
                break;
            case ValueKind::angle:
                labels.push_back(number + "\xB0");
                break;
            case ValueKind::size:
            case ValueKind::edge:
                labels.push_back(number);
                break;
        }
        if (value == 0) labels.back().clear();
    }
    return labels;
}

std::vector<Vor_String> letterLabels(int count) {
    std::vector<Vor_String> labels;
    for (int i = 1; i <= count; ++i) labels.push_back(getAlfabet(i));
    return labels;
}

}  // namespace drawing
