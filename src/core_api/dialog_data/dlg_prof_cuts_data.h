// How the ends of a member are cut against another one.
#pragma once

#include <functional>

#include "core_api/text/vor_string.h"

class VORMANT_API DlgProfCutsData {
  public:
    enum class Shape { square, mitred, coped };

    virtual ~DlgProfCutsData() = default;

    Vor_String memberName;
    Shape shape = Shape::square;
    double gap = 0;     ///< millimetres
    double angle = 90;  ///< degrees, to the member's axis
    double radius = 0;  ///< millimetres, of the corner of a cope
    /// Hears of the edited cuts when the user confirms. May be empty.
    std::function<void(const DlgProfCutsData&)> apply;
};
