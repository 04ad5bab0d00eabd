// A figure as textbooks have them: cut metal hatched, edges dark, thin dimension lines with their
// labels. It is made in millimetres, y up, and laid out on paper of a size in pixels.
#pragma once

#include "drawing/section_outline.h"
#include "drawing/sketch.h"

namespace drawing {

struct FigureArea {
    std::vector<Contour> contours;  ///< even-odd
    bool isCut = true;              ///< cut metal is hatched, other metal seen from outside
};

struct FigureLine {
    std::vector<Point> points;
    bool isHidden = false;  ///< dashed: not there, or not seen
};

struct Figure {
    std::vector<FigureArea> areas;
    std::vector<FigureLine> lines;
    std::vector<Dimension> dimensions;
    /// By the dimensions' values. A dimension with an empty label, or without one, is left out.
    std::vector<Vor_String> labels;
};

struct FigurePaper {
    double width = 320;
    double height = 240;
    double capHeight = 11;      ///< of labels; 0: no dimensions, no hidden lines
    double lineWidth = 1.5;     ///< of edges
    double hatchSpacing = 5.5;  ///< 0: no hatching
};

VORMANT_API Figure figureOf(const SectionOutline& outline, std::vector<Vor_String> labels);
/// As large as the paper allows, in its middle. Empty for a figure without areas.
VORMANT_API Sketch laidOut(const Figure& figure, const FigurePaper& paper);

/// A, B, C … for so many values, as the forms that show the figure name their fields.
VORMANT_API std::vector<Vor_String> letterLabels(int count);
/// The values as they stand on drawings: "120", "R16", "8 %", "125°"; none for a value that is 0.
VORMANT_API std::vector<Vor_String> numberLabels(int type, std::span<const double> values);

}  // namespace drawing
