// The fonts of cells as this desktop has them. A cell's font height is that of a whole line, of
// which the letters take four fifths: the usual 15 gives the size of the dialogs' own font.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <string_view>

#include "spread/control/cell_format.h"

struct CellFont {
    QFont font;
    QFontMetrics metrics;
};

/// At `zoom` percent. Remembered for as long as the program runs; a sheet has a handful. A family
/// that is not installed becomes that of dialogs.
const CellFont& cellFont(const control::Font& font, int zoom = 100);
/// Pixels of a grid as pixels of a view.
constexpr int zoomed(int pixels, int zoom) {
    return (pixels * zoom + 50) / 100;
}
/// From now on grids fit their columns to what these fonts take.
void measureWithCellFonts();
