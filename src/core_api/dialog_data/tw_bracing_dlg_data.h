// A bracing between two columns or beams.
#pragma once

#include "core_api/text/vor_string.h"

class VORMANT_API TwBracingDlgData {
  public:
    enum class Shape { single, crossed, v, invertedV, k };

    virtual ~TwBracingDlgData() = default;

    Shape shape = Shape::crossed;
    Vor_String sectionName;
    Vor_String material;
    // All in millimetres.
    double startOffset = 0;
    double endOffset = 0;
    double gussetThickness = 10;
    bool isBolted = true;
};
