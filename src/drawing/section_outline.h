// From the values of a section to its shape: what tables, figures and pictures of parts draw.
//
// A section type is a number from 1 to 24; its values come in the order of its value columns, in
// millimetres unless said otherwise. x points right and y up, the section's box begins at (0, 0).
// What the values of each type measure:
//
//    1 I                height, width, web thickness, flange thickness, root radius
//    2 cold-formed L    height, width, thickness of the upright leg, of the lying leg
//    3 angle            height, width, thickness of the upright leg, of the lying leg, root radius,
//                       toe radius (inner edge of both ends)
//    4 cold-formed U    height, width of the upper flange, of the lower flange, thickness
//    5 T                height, width, web thickness, flange thickness, root radius
//    6 tapered I        height, width, web thickness, flange thickness, root radius, toe radius,
//    7 tapered U        slope of the inner flange faces in per cent, and how far from the flange's
//                       edge the flange thickness is measured
//    8 flat             width, thickness
//    9 round bar        diameter
//   10 rectangular tube height, width, thickness, outer corner radius (the inner one follows, see
//                       innerTubeRadius)
//   11 round tube       diameter, thickness
//   12 C                height, width, lip, thickness
//   13 Z                height, upper lip, upper flange, lower flange, lower lip, thickness
//   14 V                leg, thickness, angle between the legs in degrees
//   15 hat              height, width of the crown, thickness, foot (from the web outwards)
//   16 crash barrier    height, width (how deep its two waves are), thickness, foot (the flat edge
//                       above and below the waves)
//   17 T cut from an I  as 5
//   18 sigma            height, width, thickness, web part 1 (beside the flanges), web part 2 (in
//                       the middle), web depth (how far the middle is set back), edge
//   19 sigma, unequal   height, width, thickness, web part 1, web part 2, web depth, upper edge,
//                       lower edge, angle between flange and edge in degrees
//   20 sigma sleeve     height, width, thickness, web part 1, web part 2, web depth
//   21 C, unequal       height, width, upper lip, thickness, lower lip, angle between flange and
//   lip
//                       in degrees
//   22 C sleeve         height, lip, width, thickness
//   23 single cleat     height, width of its base, thickness, width of its flange, edge
//   24 double cleat     height, width of the base between the webs' outer faces, thickness, width
//                       of the left flange, of the right one, edges, angle between flange and edge
//                       in degrees
//
// Lips and edges of 0 are left out. Cold-formed parts are measured over their outer faces to the
// corner that the faces would make without a bend. Their bends have an inner radius of one
// thickness, less where a part is too short.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "drawing/plane.h"

namespace drawing {

inline constexpr int sectionOutlineTypes = 24;

/// How a value shows in a figure.
struct Dimension {
    enum class Kind {
        span,    ///< between extension lines beside the section, on the side of `away`
        across,  ///< in place, arrows from both outer sides; the label beyond `to`
        leader,  ///< an arrow from the label near `from` to the spot `to`
        angle,   ///< an arc about `centre` from the ray to `from` to the ray to `to`
    };
    Kind kind = Kind::span;
    int value = 0;  ///< from 0
    Point from{};
    Point to{};
    /// Span: one of the four sides, or the outward normal of an oblique part.
    Point away{};
    /// Span: how many other dimension lines lie between it and the section.
    int lane = 0;
    Point centre{};
    /// Across: where a face does not reach the dimension, a line leads there from this point.
    Point reach{};
    bool hasReach = false;
};

struct OutlineProblem {
    enum class Kind {
        none,
        noType,
        missing,      ///< fewer values than the type has
        notPositive,  ///< has to be greater than 0
        negative,     ///< has to be 0 or more
        notAnAngle,   ///< has to lie between 0 and 180 degrees
        tooLarge,     ///< for the other values
        collision,    ///< parts run into each other
    };
    Kind kind = Kind::none;
    int value = -1;  ///< from 0; -1: none in particular
};

struct SectionOutline {
    Contour outer;               ///< counter-clockwise; empty when the values make no section
    std::vector<Contour> holes;  ///< clockwise
    std::vector<Dimension> dimensions;
    /// Lines of what is no part of the section but helps to read it, such as the other half of a
    /// beam that was cut.
    std::vector<std::vector<Point>> ghosts;
    OutlineProblem problem;

    bool isEmpty() const { return outer.empty(); }
    Box box() const { return boundsOf(outer); }
    /// In square millimetres, holes taken off.
    VORMANT_API double area() const;
    VORMANT_API std::vector<Contour> contours() const;
};

enum class ValueKind {
    size,      ///< above 0
    edge,      ///< a size that may be 0: the part is not there
    radius,    ///< from 0
    diameter,  ///< above 0
    slope,     ///< per cent, from 0
    angle,     ///< degrees between 0 and 180
};

/// How many values a type has; 0 for no type.
VORMANT_API int sectionValueCount(int type);
/// A size when there is no such value.
VORMANT_API ValueKind sectionValueKind(int type, int value);
/// Values beyond those of the type are left alone.
VORMANT_API SectionOutline sectionOutline(int type, std::span<const double> values);
/// Values that show each part of the type clearly, rather than those of a size on the market.
VORMANT_API std::span<const double> textbookValues(int type);

/// EN 10210-2 and EN 10219-2 give the corner radii for calculation in pairs: 1.0 t inside 1.5 t
/// (no common centre), and one less by t from 2.0 t on.
VORMANT_API double innerTubeRadius(double outer, double thickness);

/// What is wrong, in the working language; `names` are those of the values. Empty for none.
VORMANT_API Vor_String problemText(const OutlineProblem& problem, const Vor_StringArray& names);

}  // namespace drawing
