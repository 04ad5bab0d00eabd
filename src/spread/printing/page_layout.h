// Which rows and columns of a sheet come on which page, and at which scale. Millimetres throughout;
// a pixel of the sheet is 1/96 inch on paper at scale 1.
#pragma once

#include <vector>

#include "platform/export.h"
#include "spread/control/grid.h"
#include "spread/tw_sheet_settings.h"

namespace printing {

inline constexpr double millimetresPerPixel = 25.4 / 96;

struct Paper {
    double width = 210;
    double height = 297;
    Paper turned() const { return {height, width}; }
    bool operator==(const Paper&) const = default;
};

struct Rect {
    double left = 0, top = 0;
    double width = 0, height = 0;
    double right() const { return left + width; }
    double bottom() const { return top + height; }
    bool operator==(const Rect&) const = default;
};

/// What one page shows of the sheet; hidden rows and columns are left out.
struct Page {
    std::vector<int> cols;
    std::vector<int> rows;
};

struct PageLayout {
    Paper paper;  ///< turned for landscape
    bool isLandscape = false;
    double scale = 1;
    Rect body;                ///< between the margins, header and footer
    std::vector<Page> pages;  ///< downwards first; never empty
    double millimetres(int pixels) const { return pixels * millimetresPerPixel * scale; }
};

/// Heights of the page header and footer in millimetres. With smart print a sheet that is too wide
/// for the paper is turned, then made smaller (down to a half), until its columns fit on one page;
/// when even that is too little, and without smart print, the columns go on on further pages. What
/// is printed ends with the last row and column that hold anything, a text that reaches over empty
/// cells included. A row of pictures comes on the page of the row above it. Header rows and columns
/// of the sheet come again on every page.
VORMANT_API PageLayout layOutPages(const control::Grid& grid, const TwSheetSettings& settings,
                                   Paper paper, double headerHeight, double footerHeight);

}  // namespace printing
