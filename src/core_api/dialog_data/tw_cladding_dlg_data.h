// How a wall or roof is covered with panels.
#pragma once

#include "core_api/text/vor_string.h"

class VORMANT_API TwCladdingDlgData {
  public:
    enum class Direction { upright, level };

    virtual ~TwCladdingDlgData() = default;

    Vor_String panelName;
    Direction direction = Direction::upright;
    // All in millimetres.
    double panelWidth = 1000;
    double longestPanel = 6000;
    double overlap = 0;
    double startOffset = 0;
    bool hasTrims = true;
};
