// How far lines cover the pixels of a picture.
#pragma once

#include <algorithm>

#include "drawing/plane.h"

namespace drawing {

/// The pixel that an edge lies in, in a picture that ends at `size`: 0 to `size`.
inline int pixelAt(double edge, int size) {
    return static_cast<int>(std::clamp(std::floor(edge), 0.0, static_cast<double>(size)));
}

/// The share of each pixel that a line of some pieces covers; where they meet it counts once. It
/// goes by the distance of the pixel's middle, which is exact along rows and columns, and gives
/// round ends and corners.
class LineCover {
  public:
    /// For pieces within `box`, on a picture of this size; all in pixels.
    LineCover(const Box& box, double width, int pictureWidth, int pictureHeight);

    void add(Point a, Point b);
    /// Calls `use(x, y, share)` for the pixels that are covered.
    template <class Use>
    void forEach(Use use) const {
        auto share = m_shares.begin();
        for (int y = m_first; y < m_last; ++y)
            for (int x = m_left; x < m_right; ++x, ++share)
                if (*share > 0) use(x, y, *share);
    }

  private:
    double reach() const { return m_radius + 0.5; }
    void addRow(Point a, Point b, int y);
    double shareAt(Point middle, Point a, Point b) const;

    double m_radius;
    int m_left, m_right, m_first, m_last;  ///< right and last lie beyond
    std::vector<double> m_shares;
};

}  // namespace drawing
