// How much room a cell's text takes. A desktop measures with its fonts; without one the widths of a
// usual screen typeface are estimated, so that layouts come out alike everywhere.
#pragma once

#include <string_view>

#include "platform/export.h"
#include "spread/control/cell_format.h"

namespace control {

struct TextSize {
    int width = 0;   ///< pixels
    int height = 0;  ///< pixels
};

/// Width in pixels of one line of text.
using MeasureLine = int (*)(std::string_view line, const Font& font);
/// Replaces the measuring; null for the estimate.
VORMANT_API void setMeasureLine(MeasureLine measure);

/// Room for `text` in a cell of this format, with the cell's margins; pictures need none.
TextSize fittedSize(std::string_view text, const CellFormat& format);

}  // namespace control
