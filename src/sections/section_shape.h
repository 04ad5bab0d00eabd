// The exact shape of a section, finer than pictures need it. Only for figures.
#pragma once

#include <span>
#include <vector>

#include "drawing/plane.h"

/// The contours of a section type, counter-clockwise, holes clockwise; none when the values, in the
/// order of the type's columns, give no shape. x points right and y up, as in
/// drawing/section_outline.h. Arcs come in steps of a quarter of a degree, those of cold-formed
/// sections as they are drawn.
std::vector<drawing::Contour> sectionShape(int type, std::span<const double> values);
