#include "platform/window/device_context.h"

#include <algorithm>
#include <cstdlib>

namespace {

bool isInside(const CBitmap& bitmap, int x, int y) {
    return x >= 0 && x < bitmap.width() && y >= 0 && y < bitmap.height();
}

}  // namespace

void BitmapDC::fill(const CRect& rect, CBitmap::Pixel colour) {
    const int right = std::min(rect.right, m_target.width());
    const int bottom = std::min(rect.bottom, m_target.height());
    for (int y = std::max(rect.top, 0); y < bottom; ++y)
        for (int x = std::max(rect.left, 0); x < right; ++x) m_target.set(x, y, colour);
}

// Steps along the longer side; a dash is three pixels on, three off.
void BitmapDC::line(CPoint from, CPoint to, const Pen& pen) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const int steps = std::max({std::abs(dx), std::abs(dy), 1});
    for (int i = 0; i <= steps; ++i) {
        if (pen.isDashed && i / 3 % 2 == 1) continue;
        const int x = from.x + (2 * dx * i + (dx < 0 ? -steps : steps)) / (2 * steps);
        const int y = from.y + (2 * dy * i + (dy < 0 ? -steps : steps)) / (2 * steps);
        const int half = pen.width / 2;
        for (int oy = -half; oy < pen.width - half; ++oy)
            for (int ox = -half; ox < pen.width - half; ++ox)
                if (isInside(m_target, x + ox, y + oy)) m_target.set(x + ox, y + oy, pen.colour);
    }
}

void BitmapDC::frame(const CRect& rect, const Pen& pen) {
    const int right = rect.right - 1;
    const int bottom = rect.bottom - 1;
    line({rect.left, rect.top}, {right, rect.top}, pen);
    line({right, rect.top}, {right, bottom}, pen);
    line({right, bottom}, {rect.left, bottom}, pen);
    line({rect.left, bottom}, {rect.left, rect.top}, pen);
}

void BitmapDC::bitmap(const CBitmap& picture, CPoint at, int64_t without) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const CBitmap::Pixel pixel = picture.at(x, y);
            if (pixel == without || !isInside(m_target, at.x + x, at.y + y)) continue;
            m_target.set(at.x + x, at.y + y, pixel);
        }
    }
}
