#include "drawing/line_cover.h"

namespace drawing {

LineCover::LineCover(const Box& box, double width, int pictureWidth, int pictureHeight)
    : m_radius(width / 2),
      m_left(pixelAt(box.left - reach(), pictureWidth)),
      m_right(pixelAt(box.right + reach() + 1, pictureWidth)),
      m_first(pixelAt(box.bottom - reach(), pictureHeight)),
      m_last(pixelAt(box.top + reach() + 1, pictureHeight)),
      m_shares(static_cast<size_t>(m_right - m_left) * static_cast<size_t>(m_last - m_first)) {}

void LineCover::add(Point a, Point b) {
    const int first = std::max(m_first, pixelAt(std::min(a.y, b.y) - reach(), m_last));
    const int last = pixelAt(std::max(a.y, b.y) + reach() + 1, m_last);
    for (int y = first; y < last; ++y) addRow(a, b, y);
}

void LineCover::addRow(Point a, Point b, int y) {
    // Where the line comes near the row.
    double from = a.x, to = b.x;
    if (const double rise = b.y - a.y; rise != 0) {
        const double below = (y + 0.5 - reach() - a.y) / rise;
        const double above = (y + 0.5 + reach() - a.y) / rise;
        from = a.x + (b.x - a.x) * std::clamp(below, 0.0, 1.0);
        to = a.x + (b.x - a.x) * std::clamp(above, 0.0, 1.0);
    }
    const int left = std::max(m_left, pixelAt(std::min(from, to) - reach(), m_right));
    const int right = pixelAt(std::max(from, to) + reach() + 1, m_right);
    const auto row = static_cast<size_t>(y - m_first) * static_cast<size_t>(m_right - m_left);
    for (int x = left; x < right; ++x) {
        double& share = m_shares[row + static_cast<size_t>(x - m_left)];
        share = std::max(share, shareAt({x + 0.5, y + 0.5}, a, b));
    }
}

double LineCover::shareAt(Point middle, Point a, Point b) const {
    const Point along = b - a, from = middle - a;
    const double square = dot(along, along);
    const double part = square > 0 ? std::clamp(dot(from, along) / square, 0.0, 1.0) : 0;
    const Point away = from - along * part;
    const double distance = std::sqrt(dot(away, away));
    return std::clamp(reach() - distance, 0.0, std::min(1.0, 2 * m_radius));
}

}  // namespace drawing
