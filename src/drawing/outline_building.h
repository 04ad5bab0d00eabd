// What the builders of outlines share: the values of a type with what each may be, and the pieces
// of a result. Only for the files of this folder that build outlines.
#pragma once

#include <initializer_list>

#include "drawing/contours.h"
#include "drawing/section_outline.h"

namespace drawing::building {

using Values = std::span<const double>;
using Builder = SectionOutline (*)(Values);

inline constexpr Point left{-1, 0}, right{1, 0}, up{0, 1}, down{0, -1};

SectionOutline tooLarge(int value);

/// The outline of a contour, or the complaint that `value` is too large when it did not fit.
SectionOutline outlineOf(const std::optional<Contour>& contour, int value,
                         std::initializer_list<Dimension> dimensions);

Dimension span(int value, Point from, Point to, Point away, int lane = 0);
Dimension across(int value, Point from, Point to);
Dimension leader(int value, Point from, Point to);
Dimension angle(int value, Point centre, Point from, Point to);

// Rolled sections.
SectionOutline iSection(Values);
SectionOutline angleSection(Values);
SectionOutline tSection(Values);
SectionOutline cutT(Values);
SectionOutline taperedI(Values);
SectionOutline taperedU(Values);

// Bars and tubes.
SectionOutline flat(Values);
SectionOutline roundBar(Values);
SectionOutline rectangularTube(Values);
SectionOutline roundTube(Values);

// Bent from a strip.
SectionOutline coldAngle(Values);
SectionOutline coldChannel(Values);
SectionOutline cSection(Values);
SectionOutline cUnequal(Values);
SectionOutline cSleeve(Values);
SectionOutline zSection(Values);
SectionOutline vSection(Values);
SectionOutline hat(Values);
SectionOutline crashBarrier(Values);
SectionOutline sigma(Values);
SectionOutline sigmaUnequal(Values);
SectionOutline sigmaSleeve(Values);
SectionOutline singleCleat(Values);
SectionOutline doubleCleat(Values);

}  // namespace drawing::building
