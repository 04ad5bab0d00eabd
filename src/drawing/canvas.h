// Paints sketches into a bitmap, with smooth edges.
#pragma once

#include <array>

#include "drawing/sketch.h"
#include "platform/window/bitmap.h"

namespace drawing {

class VORMANT_API Canvas {
  public:
    Canvas(int width, int height, CBitmap::Pixel paper = CBitmap::white);

    /// `inkPixel` covers the paper as far as the area between the contours covers a pixel: one
    /// within another is a hole.
    void fill(std::span<const Contour> contours, CBitmap::Pixel inkPixel);
    /// With round ends and corners.
    void stroke(std::span<const Point> points, double width, CBitmap::Pixel inkPixel,
                bool isClosed = false, bool isDashed = false);
    void text(const Label& label, CBitmap::Pixel inkPixel);

    const CBitmap& bitmap() const { return m_bitmap; }

  private:
    void blend(int x, int y, CBitmap::Pixel inkPixel, double share);

    CBitmap m_bitmap;
};

/// The colours of picture files: dark lines on light metal, on white paper.
VORMANT_API const std::array<CBitmap::Pixel, inkCount>& paperInks();

/// The sketch as a picture of its size, in the colours of paperInks.
VORMANT_API CBitmap painted(const Sketch& sketch);

}  // namespace drawing
