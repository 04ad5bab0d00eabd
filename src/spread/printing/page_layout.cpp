#include "spread/printing/page_layout.h"

#include <algorithm>
#include <functional>

#include "spread/control/text_fit.h"
#include "spread/control/text_overflow.h"

namespace printing {

using control::Grid;
using control::headerIndex;

namespace {

// Lines (rows or columns) that are printed, with their sizes in pixels.
struct PrintedLines {
    std::vector<int> numbers;
    std::vector<int> sizes;
    int total = 0;

    PrintedLines(int last, const std::function<int(int)>& sizeOf) {
        for (int line = 1; line <= last; ++line) {
            const int size = sizeOf(line);
            if (size <= 0) continue;
            numbers.push_back(line);
            sizes.push_back(size);
            total += size;
        }
    }
};

// Cuts lines into groups that fit into `room` pixels; a line that is larger stands alone. A line
// that belongs to the one before it comes into the same group, unless both are too large for one.
std::vector<std::vector<int>> groups(
    const PrintedLines& lines, double room,
    const std::function<bool(int)>& belongsToLast = [](int) { return false; }) {
    std::vector<std::vector<int>> all(1);
    double used = 0;
    const auto isTooMuch = [&](double size) {
        constexpr double tolerance = 1e-6;
        return size > room + tolerance;
    };
    for (size_t i = 0; i < lines.numbers.size(); ++i) {
        double needed = lines.sizes[i];
        if (i + 1 < lines.numbers.size() && belongsToLast(lines.numbers[i + 1]) &&
            !isTooMuch(needed + lines.sizes[i + 1]))
            needed += lines.sizes[i + 1];
        if (isTooMuch(used + needed) && !all.back().empty()) {
            all.emplace_back();
            used = 0;
        }
        all.back().push_back(lines.numbers[i]);
        used += lines.sizes[i];
    }
    return all;
}

// A picture belongs to the row above it where that is not one of pictures itself.
bool hasPicture(const Grid& grid, int row) {
    const int cols = grid.sheet().cells().lastCol();
    for (int col = 1; col <= cols; ++col)
        if (grid.format(col, row).type.kind == control::CellKind::picture) return true;
    return false;
}

bool isPictureOfRowAbove(const Grid& grid, int row) {
    return row > 1 && hasPicture(grid, row) && !hasPicture(grid, row - 1);
}

struct UsedArea {
    int col = 0, row = 0;
};

UsedArea usedArea(const Grid& grid) {
    UsedArea used{grid.sheet().cells().lastCol(), grid.sheet().cells().lastRow()};
    for (const control::Span& span : grid.sides().spans.all()) {
        if (span.col > 0) used.col = std::max(used.col, span.col + span.cols - 1);
        if (span.row > 0) used.row = std::max(used.row, span.row + span.rows - 1);
    }
    const control::SideTables& sides = grid.sides();
    if (!sides.cols.texts.empty()) used.col = std::max(used.col, sides.cols.texts.rbegin()->first);
    if (!sides.rows.texts.empty()) used.row = std::max(used.row, sides.rows.texts.rbegin()->first);
    return {std::min(used.col, grid.cols()), std::min(used.row, grid.rows())};
}

// As far as the texts near the last column reach, so that they come onto the paper whole.
int lastTextCol(const Grid& grid, UsedArea used) {
    constexpr int nearby = 40;
    int last = used.col;
    for (int row = 1; used.col > 0 && row <= used.row; ++row) {
        int col = used.col;
        while (col > 1 && col > used.col - nearby && control::isRoomForText(grid, col, row)) --col;
        const int limit = control::lastColumnForText(grid, {col, row});
        if (limit <= used.col) continue;
        const std::string text = grid.text(col, row, control::Reading::data);
        int rest = control::fittedSize(text, grid.format(col, row)).width - grid.colWidth(col);
        for (int reached = col; rest > 0 && reached < limit; rest -= grid.colWidth(reached))
            last = std::max(last, ++reached);
    }
    return last;
}

struct Fit {
    bool isLandscape;
    double scale;
};

// `pixels` of columns on a page whose margins leave `widthOf(isLandscape)` millimetres.
Fit smartFit(double pixels, const std::function<double(bool)>& widthOf) {
    constexpr double smallestPortrait = 0.75;
    constexpr double smallest = 0.5;
    const auto scaleFor = [&](bool isLandscape) {
        return std::min(1.0, widthOf(isLandscape) / (pixels * millimetresPerPixel));
    };
    if (scaleFor(false) >= 1) return {false, 1};
    if (scaleFor(true) >= 1) return {true, 1};
    if (scaleFor(false) >= smallestPortrait) return {false, scaleFor(false)};
    if (scaleFor(true) >= smallest) return {true, scaleFor(true)};
    return {false, 1};
}

}  // namespace

PageLayout layOutPages(const Grid& grid, const TwSheetSettings& settings, Paper paper,
                       double headerHeight, double footerHeight) {
    const UsedArea used = usedArea(grid);
    const PrintedLines cols(lastTextCol(grid, used), [&](int col) { return grid.colWidth(col); });
    const PrintedLines rows(used.row, [&](int row) { return grid.rowHeight(row); });
    const int headWidth = settings.rowHeader ? grid.colWidth(headerIndex) : 0;
    const int headHeight = settings.colHeader ? grid.rowHeight(headerIndex) : 0;
    const auto paperOf = [&](bool isLandscape) { return isLandscape ? paper.turned() : paper; };
    const auto bodyWidth = [&](bool isLandscape) {
        return std::max(paperOf(isLandscape).width - settings.marginLeft - settings.marginRight,
                        1.0);
    };
    PageLayout layout;
    const Fit fit = settings.smartPrint ? smartFit(std::max(cols.total + headWidth, 1), bodyWidth)
                                        : Fit{false, 1};
    layout.isLandscape = fit.isLandscape;
    layout.scale = fit.scale;
    layout.paper = paperOf(fit.isLandscape);
    layout.body = {static_cast<double>(settings.marginLeft), settings.marginTop + headerHeight,
                   bodyWidth(fit.isLandscape),
                   std::max(layout.paper.height - settings.marginTop - settings.marginBottom -
                                headerHeight - footerHeight,
                            1.0)};
    const double pixel = layout.millimetres(1);
    const auto across = groups(cols, layout.body.width / pixel - headWidth);
    const auto downwards = groups(rows, layout.body.height / pixel - headHeight,
                                  [&](int row) { return isPictureOfRowAbove(grid, row); });
    for (const std::vector<int>& pageCols : across)
        for (const std::vector<int>& pageRows : downwards)
            layout.pages.push_back({pageCols, pageRows});
    return layout;
}

}  // namespace printing
