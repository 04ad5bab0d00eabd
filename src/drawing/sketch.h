// A drawing before it is on paper: areas, lines and texts in pixels, y down. It is laid out once
// and painted by whoever shows it: Canvas makes a bitmap of it, a desktop paints it in any
// resolution and in the colours of its own.
#pragma once

#include <variant>

#include "core_api/text/vor_string.h"
#include "drawing/plane.h"

namespace drawing {

enum class Ink {
    metal,      ///< the fill of cut metal
    surface,    ///< the fill of metal that is seen from outside
    hatch,      ///< lines over cut metal
    outline,    ///< edges
    hidden,     ///< what is not there or not seen, and centre lines
    dimension,  ///< dimension lines and their arrow heads
    text,
};
inline constexpr int inkCount = 7;

/// Even-odd: a contour inside another one is a hole.
struct Fill {
    std::vector<Contour> contours;
    Ink ink = Ink::metal;
};

struct Stroke {
    std::vector<Point> points;
    Ink ink = Ink::outline;
    double width = 1;
    bool isClosed = false;
    bool isDashed = false;
};

enum class Anchor { left, centre, right };

/// One line of Windows-1252 text; `at` is its anchor at half the height of its capitals.
struct Label {
    Point at;
    Vor_String text;
    double capHeight = 8;
    Anchor anchor = Anchor::centre;
};

using SketchItem = std::variant<Fill, Stroke, Label>;

struct Sketch {
    double width = 0;
    double height = 0;
    std::vector<SketchItem> items;  ///< the later ones lie on top

    VORMANT_API void add(Fill fill);
    VORMANT_API void add(Stroke stroke);
    VORMANT_API void add(Label label);
};

/// What a label covers in the stroke font.
VORMANT_API Box boundsOf(const Label& label);

/// Lines at 45 degrees, `spacing` apart, where they lie inside the contours (even-odd).
VORMANT_API std::vector<Stroke> hatch(std::span<const Contour> contours, double spacing,
                                      double width);

}  // namespace drawing
