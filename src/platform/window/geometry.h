// Points and rectangles in pixels. A rectangle holds its left and top edge, not its right and
// bottom one.
#pragma once

struct CPoint {
    int x = 0;
    int y = 0;

    bool operator==(const CPoint&) const = default;
};

struct CSize {
    int width = 0;
    int height = 0;

    bool operator==(const CSize&) const = default;
};

struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    CSize size() const { return {width(), height()}; }
    CPoint topLeft() const { return {left, top}; }
    CRect movedBy(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    bool contains(CPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    bool operator==(const CRect&) const = default;
};
